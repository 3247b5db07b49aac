#include "engine/pixels/corners.h"

#include "engine/pixels/corner_tables.h"
#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace {

constexpr rgb_triple cut_color{200, 200, 200}, background{30, 60, 90};

/// The place of a photo whose lower left pixel stands at column `left`, row `row` from the canvas's bottom.
rectangle place_at(const bitmap & canvas, picture_size size, int left, int row)
{
    return {.left = left,
            .top = canvas.height() - (row + size.height),
            .width = size.width,
            .height = size.height};
}

/// A photo of one colour whose corners were cut; '.' is the background.
std::string cut(int width, int height)
{
    bitmap photo = plain(width, height, cut_color);
    const bitmap canvas = plain(300, 300, background);
    cut_corners(photo, canvas, place_at(canvas, {width, height}, 10, 10));
    return drawn(photo, [](rgb_triple color) { return color == background ? '.' : '#'; });
}

int total(std::span<const std::uint8_t> table)
{
    return std::accumulate(table.begin(), table.end(), 0);
}

}  // namespace

TEST(corner_tables, the_size_classes_begin_at_60_110_190_280_400_and_600)
{
    EXPECT_EQ(corner_table(0).size(), 6U);
    EXPECT_EQ(corner_table(59).size(), 6U);
    EXPECT_EQ(corner_table(60).size(), 15U);
    EXPECT_EQ(corner_table(109).size(), 15U);
    EXPECT_EQ(corner_table(110).size(), 36U);
    EXPECT_EQ(corner_table(189).size(), 36U);
    EXPECT_EQ(corner_table(190).size(), 45U);
    EXPECT_EQ(corner_table(279).size(), 45U);
    EXPECT_EQ(corner_table(280).size(), 71U);
    EXPECT_EQ(corner_table(399).size(), 71U);
    EXPECT_EQ(corner_table(400).size(), 111U);
    EXPECT_EQ(corner_table(599).size(), 111U);
    EXPECT_EQ(corner_table(600).size(), 180U);
    EXPECT_EQ(corner_table(30000).size(), 180U);
}

TEST(corner_tables, begin_and_end_as_they_were_drawn)
{
    for (const auto & [side, first] :
         {std::pair{50, 5}, {100, 14}, {150, 35}, {200, 45}, {300, 70}, {500, 111}, {700, 160}}) {
        EXPECT_EQ(corner_table(side).front(), first) << side;
        EXPECT_EQ(corner_table(side).back(), 0) << side;
    }
}

TEST(corner_tables, cut_as_many_pixels_as_they_were_drawn_to)
{
    EXPECT_EQ(total(corner_table(50)), 12);
    EXPECT_EQ(total(corner_table(100)), 63);
    EXPECT_EQ(total(corner_table(150)), 326);
    EXPECT_EQ(total(corner_table(200)), 562);
    EXPECT_EQ(total(corner_table(300)), 1252);
    EXPECT_EQ(total(corner_table(500)), 3120);
    EXPECT_EQ(total(corner_table(700)), 6361);
}

TEST(corner_tables, fall_all_the_way_but_for_the_kink_of_the_largest)
{
    for (const int side : {50, 100, 150, 200, 300, 500})
        EXPECT_TRUE(std::ranges::is_sorted(corner_table(side), std::ranges::greater{})) << side;
    const std::span<const std::uint8_t> largest = corner_table(600);
    EXPECT_EQ(largest[73], 31);
    EXPECT_EQ(largest[74], 39);
    EXPECT_EQ(largest[75], 29);
    EXPECT_TRUE(std::ranges::is_sorted(largest.first(74), std::ranges::greater{}));
    EXPECT_TRUE(std::ranges::is_sorted(largest.subspan(75), std::ranges::greater{}));
}

TEST(cut_corners, the_smallest_table_drawn)
{
    // The right corners begin one pixel outside the photo, and so do the top ones.
    EXPECT_EQ(cut(16, 14),
              ".....#######....\n"
              "...###########..\n"
              "..#############.\n"
              ".###############\n"
              ".###############\n"
              "################\n"
              "################\n"
              "################\n"
              ".###############\n"
              ".###############\n"
              "..#############.\n"
              "...###########..\n"
              ".....#######....\n"
              "......#####.....\n");
}

TEST(cut_corners, agrees_with_its_slow_twin)
{
    const bitmap canvas = graded(760, 700);
    for (const picture_size size : {picture_size{1, 1},
                                    {4, 3},
                                    {59, 70},
                                    {60, 75},
                                    {150, 120},
                                    {250, 200},
                                    {300, 390},
                                    {450, 410},
                                    {700, 610}}) {
        bitmap found = plain(size.width, size.height, cut_color);
        bitmap expected = plain(size.width, size.height, cut_color);
        cut_corners(found, canvas, place_at(canvas, size, 30, 20));
        cut_corners_by_pixel(expected, canvas, size.width, size.height, 30, 20,
                             corner_table(std::min(size.width, size.height)));
        EXPECT_TRUE(same(found, expected)) << size.width << " by " << size.height;
    }
}

TEST(cut_corners, keeps_the_photo_where_there_is_no_background)
{
    const bitmap canvas = graded(100, 90);
    for (const int left : {-200, -30, 60, 200})
        for (const int row : {-200, -20, 50, 200}) {
            bitmap found = plain(80, 70, cut_color), expected = plain(80, 70, cut_color);
            cut_corners(found, canvas, place_at(canvas, {80, 70}, left, row));
            cut_corners_by_pixel(expected, canvas, 80, 70, left, row, corner_table(70));
            EXPECT_TRUE(same(found, expected)) << left << ", " << row;
        }
}

TEST(cut_corners, a_photo_of_another_size_than_told_agrees_too)
{
    const bitmap canvas = graded(300, 300);
    for (const picture_size size : {picture_size{79, 70}, {81, 70}, {80, 69}, {80, 71}}) {
        bitmap found = plain(size.width, size.height, cut_color);
        bitmap expected = plain(size.width, size.height, cut_color);
        cut_corners(found, canvas, place_at(canvas, {80, 70}, 9, 8));
        cut_corners_by_pixel(expected, canvas, 80, 70, 9, 8, corner_table(70));
        EXPECT_TRUE(same(found, expected)) << size.width << " by " << size.height;
    }
}

TEST(cut_corners, the_bottom_loses_one_row_more_than_the_top_and_the_left_one_column_more_than_the_right)
{
    const bitmap canvas = plain(800, 800, background);
    bitmap photo = plain(700, 700, cut_color);
    cut_corners(photo, canvas, place_at(canvas, {700, 700}, 10, 10));
    const auto cut_in_column = [&](int x, int from, int to) {
        int count = 0;
        for (int y = from; y < to; ++y)
            count += pixel_at(photo, x, y) == background ? 1 : 0;
        return count;
    };
    EXPECT_EQ(cut_in_column(0, 0, 350), 161);
    EXPECT_EQ(cut_in_column(0, 350, 700), 160);
    EXPECT_EQ(cut_in_column(699, 0, 350), 150);  // the table's second entry
    EXPECT_EQ(cut_in_column(74, 0, 350), 40);    // the kink
    EXPECT_EQ(cut_in_column(73, 0, 350), 32);
}

TEST(cut_corners, without_a_photo_or_a_canvas_nothing_happens)
{
    bitmap none, photo = plain(20, 20, cut_color);
    cut_corners(none, plain(30, 30, background), {.left = 0, .top = 10, .width = 20, .height = 20});
    EXPECT_FALSE(none);
    cut_corners(photo, none, {.left = 0, .top = 10, .width = 20, .height = 20});
    EXPECT_TRUE(same(photo, plain(20, 20, cut_color)));
}
