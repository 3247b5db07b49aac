#include "engine/pixels/draw_frame.h"

#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"

#include <gtest/gtest.h>

namespace {

struct draw_frame_test : testing::Test {
    draw_frame_test() { main.run.frame_color = {200, 100, 50}; }
    scripted_desktop desk;
    frmMain main{desk, listed({})};

    std::string framed(bitmap & target, int left, int row, int height, int width, int rotation)
    {
        draw_frame(main, target, left, row, height, width, rotation);
        return drawn(target, [&](rgb_triple color) { return color == main.run.frame_color ? '#' : '.'; });
    }
};

}  // namespace

TEST_F(draw_frame_test, a_frame_of_1_at_full_size_is_a_line_one_pixel_wide)
{
    main.run.frame_size = 1;
    bitmap target(7, 6);
    EXPECT_EQ(framed(target, 2, 2, 2, 3, 0),
              ".......\n"
              ".#####.\n"
              ".#...#.\n"
              ".#...#.\n"
              ".#####.\n"
              ".......\n");
}

TEST_F(draw_frame_test, is_one_line_wider_in_a_preview)
{
    main.run.frame_size = 1;
    main.in_preview = true;
    bitmap target(7, 6);
    EXPECT_EQ(framed(target, 2, 2, 2, 3, 0),
              "#######\n"
              "#######\n"
              "##...##\n"
              "##...##\n"
              "#######\n"
              "#######\n");
}

TEST_F(draw_frame_test, is_one_line_wider_from_a_rotation_of_10_on)
{
    main.run.frame_size = 1;
    bitmap at_5(7, 6), at_10(7, 6), at_minus_15(7, 6);
    EXPECT_EQ(framed(at_5, 2, 2, 2, 3, 5), framed(at_minus_15, 2, 2, 2, 3, -15));
    EXPECT_EQ(framed(at_10, 2, 2, 2, 3, 10).substr(0, 8), "#######\n");
    EXPECT_EQ(framed(at_5, 2, 2, 2, 3, 9).substr(0, 8), ".......\n");
}

TEST_F(draw_frame_test, lowers_left_and_row_by_1)
{
    main.run.frame_size = 4;
    bitmap target(20, 20);
    int left = 8, row = 9;
    draw_frame(main, target, left, row, 4, 5, 0);
    EXPECT_EQ(left, 7);
    EXPECT_EQ(row, 8);
}

TEST_F(draw_frame_test, without_a_size_nothing_is_painted_or_lowered)
{
    bitmap target(7, 6);
    int left = 2, row = 2;
    draw_frame(main, target, left, row, 2, 3, 0);
    EXPECT_TRUE(same(target, bitmap(7, 6)));
    EXPECT_EQ(left, 2);
    EXPECT_EQ(row, 2);
}

TEST_F(draw_frame_test, rounded_photos_have_none_by_the_boxs_own_flags)
{
    main.run.frame_size = 1;
    main.chkRounded.tick(true);
    main.frmOrnaments.enable(false);  // as it is during a run
    bitmap target(7, 6);
    int left = 2, row = 2;
    draw_frame(main, target, left, row, 2, 3, 0);
    EXPECT_TRUE(same(target, bitmap(7, 6)));
    EXPECT_EQ(left, 2);
}

TEST_F(draw_frame_test, a_tick_in_a_box_that_is_hidden_or_disabled_does_not_count)
{
    EXPECT_FALSE(rounded_photos(main));
    main.chkRounded.tick(true);
    EXPECT_TRUE(rounded_photos(main));
    main.chkRounded.enable(false);
    EXPECT_FALSE(rounded_photos(main));
    main.chkRounded.enable(true);
    main.chkRounded.show(false);
    EXPECT_FALSE(rounded_photos(main));
}

TEST_F(draw_frame_test, is_cut_at_the_edges_of_the_target)
{
    main.run.frame_size = 2;
    bitmap target(5, 4);
    EXPECT_EQ(framed(target, -1, -1, 3, 3, 0),
              "####.\n"
              "####.\n"
              "..##.\n"
              "..##.\n");
}

TEST_F(draw_frame_test, far_outside_or_without_a_target_nothing_happens)
{
    main.run.frame_size = 2;
    bitmap target(5, 4), none;
    EXPECT_EQ(framed(target, 500, -900, 3, 3, 0), ".....\n.....\n.....\n.....\n");
    EXPECT_EQ(framed(none, 0, 0, 3, 3, 0), "");
}

TEST_F(draw_frame_test, a_negative_size_paints_nothing_but_lowers)
{
    main.run.frame_size = -3;
    bitmap target(20, 20);
    int left = 5, row = 5;
    draw_frame(main, target, left, row, 9, 9, 0);
    EXPECT_TRUE(same(target, bitmap(20, 20)));
    EXPECT_EQ(left, 4);
}

TEST_F(draw_frame_test, agrees_with_its_slow_twin)
{
    for (const int size : {1, 2, 10, 13})
        for (const int rotation : {0, 10})
            for (const int left : {-3, 15, 40}) {
                main.run.frame_size = static_cast<int16>(size);
                bitmap found = graded(60, 50), expected = graded(60, 50);
                int moved_left = left, moved_row = 12;
                draw_frame(main, found, moved_left, moved_row, 20, 30, rotation);
                draw_frame_by_pixel(expected, left, 12, 20, 30, rotation == 0 ? size - 1 : size,
                                    main.run.frame_color);
                EXPECT_TRUE(same(found, expected)) << size << ", " << rotation << ", " << left;
            }
}
