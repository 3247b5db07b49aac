#include "engine/pixels/draw_frame.h"

#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

const ornaments of_1{.frame = 1, .frame_color = {200, 100, 50}};

/// A photo of that size whose lower left pixel stands at column `left`, row `row` from the bottom.
rectangle photo_at(const bitmap & target, int left, int row, int height, int width)
{
    return {.left = left, .top = target.height() - (row + height), .width = width, .height = height};
}

std::string framed(bitmap & target, const rectangle & photo, const ornaments & worn, int rotation = 0)
{
    draw_frame(target, photo, worn, rotation);
    return drawn(target, [&](rgb_triple color) { return color == worn.frame_color ? '#' : '.'; });
}

ornaments of_size(int frame)
{
    ornaments worn = of_1;
    worn.frame = frame;
    return worn;
}

}  // namespace

TEST(draw_frame, a_frame_of_1_at_full_size_is_a_line_one_pixel_wide)
{
    bitmap target(7, 6);
    EXPECT_EQ(framed(target, photo_at(target, 2, 2, 2, 3), of_1),
              ".......\n"
              ".#####.\n"
              ".#...#.\n"
              ".#...#.\n"
              ".#####.\n"
              ".......\n");
}

TEST(draw_frame, is_cut_at_the_edges_of_the_target)
{
    bitmap target(5, 4);
    EXPECT_EQ(framed(target, photo_at(target, -1, -1, 3, 3), of_size(2)),
              "####.\n"
              "####.\n"
              "..##.\n"
              "..##.\n");
}

TEST(draw_frame, far_outside_or_without_a_target_nothing_happens)
{
    bitmap target(5, 4), none;
    EXPECT_EQ(framed(target, photo_at(target, 500, -900, 3, 3), of_size(2)), ".....\n.....\n.....\n.....\n");
    EXPECT_EQ(framed(none, photo_at(none, 0, 0, 3, 3), of_size(2)), "");
}

TEST(draw_frame, is_one_line_wider_in_a_preview)
{
    ornaments worn = of_1;
    worn.size = run_size::preview;
    bitmap target(7, 6);
    EXPECT_EQ(framed(target, photo_at(target, 2, 2, 2, 3), worn),
              "#######\n"
              "#######\n"
              "##...##\n"
              "##...##\n"
              "#######\n"
              "#######\n");
}

TEST(draw_frame, is_one_line_wider_from_a_rotation_of_10_on)
{
    const auto at = [](int rotation) {
        bitmap target(7, 6);
        return framed(target, photo_at(target, 2, 2, 2, 3), of_1, rotation);
    };
    EXPECT_EQ(at(5), at(-15));
    EXPECT_EQ(at(9), at(0));
    EXPECT_EQ(at(10).substr(0, 8), "#######\n");
    EXPECT_EQ(at(5).substr(0, 8), ".......\n");
}

TEST(draw_frame, without_a_size_or_below_nothing_is_painted)
{
    for (const int size : {0, -3}) {
        bitmap target(20, 20);
        draw_frame(target, photo_at(target, 5, 5, 9, 9), of_size(size), 0);
        EXPECT_TRUE(same(target, bitmap(20, 20))) << size;
    }
}

TEST(draw_frame, rounded_photos_have_none_and_those_with_cut_corners_have_one)
{
    ornaments worn = of_1;
    worn.corners = photo_corners::rounded;
    bitmap target(7, 6);
    draw_frame(target, photo_at(target, 2, 2, 2, 3), worn, 0);
    EXPECT_TRUE(same(target, bitmap(7, 6)));
    worn.corners = photo_corners::cut;
    draw_frame(target, photo_at(target, 2, 2, 2, 3), worn, 0);
    EXPECT_FALSE(same(target, bitmap(7, 6)));
}

TEST(draw_frame, agrees_with_its_slow_twin)
{
    for (const int size : {1, 2, 10, 13})
        for (const int rotation : {0, 10})
            for (const int left : {-3, 15, 40}) {
                bitmap found = graded(60, 50), expected = graded(60, 50);
                draw_frame(found, photo_at(found, left, 12, 20, 30), of_size(size), rotation);
                draw_frame_by_pixel(expected, left, 12, 20, 30, rotation == 0 ? size - 1 : size,
                                    of_1.frame_color);
                EXPECT_TRUE(same(found, expected)) << size << ", " << rotation << ", " << left;
            }
}
