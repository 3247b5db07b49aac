#include "engine/pixels/caption_scan.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

constexpr rgb_triple white{.red = 255, .green = 255, .blue = 255};
constexpr rgb_triple ink{.red = 10, .green = 20, .blue = 30};
constexpr rgb_triple sky{.red = 90, .green = 120, .blue = 200};

// The same, one pixel after the other.
void print_by_pixel(bitmap & target, const bitmap & caption, int left, int low)
{
    const rgb_triple ground = *pixel_at(caption, 0, 0);
    for (int y = first_text_row(caption); y <= caption.height() - 5; ++y)
        for (int x = 0; x <= caption.width() - 5; ++x)
            if (is_text(*pixel_at(caption, x, y), ground))
                set_pixel(target, x + left, y + low, *pixel_at(caption, x, y));
}

}  // namespace

TEST(caption_scan, text_differs_by_more_than_110_in_one_channel)
{
    EXPECT_FALSE(is_text({.red = 145, .green = 255, .blue = 255}, white));
    EXPECT_TRUE(is_text({.red = 144, .green = 255, .blue = 255}, white));
    EXPECT_TRUE(is_text({.red = 255, .green = 144, .blue = 255}, white));
    EXPECT_TRUE(is_text({.red = 255, .green = 255, .blue = 144}, white));
    EXPECT_TRUE(is_text({.red = 111}, {}));
    EXPECT_FALSE(is_text({.red = 110}, {}));
}

TEST(caption_scan, the_first_text_row_is_counted_from_the_bottom)
{
    bitmap caption = plain(20, 12, white);
    set_pixel(caption, 7, 4, ink);
    set_pixel(caption, 3, 6, ink);
    EXPECT_EQ(first_text_row(caption), 4);
}

TEST(caption_scan, the_last_rows_and_columns_are_not_looked_at)
{
    bitmap caption = plain(20, 12, white);
    set_pixel(caption, 16, 3, ink);
    set_pixel(caption, 3, 8, ink);
    EXPECT_EQ(first_text_row(caption), 0);
    set_pixel(caption, 15, 7, ink);
    EXPECT_EQ(first_text_row(caption), 7);
}

TEST(caption_scan, blanks_have_no_text_row_and_print_nothing)
{
    bitmap canvas = plain(40, 40, sky);
    const bitmap caption = plain(20, 12, white);
    EXPECT_EQ(first_text_row(caption), 0);
    print_text(canvas, caption, 5, 5);
    EXPECT_TRUE(same(canvas, plain(40, 40, sky)));
}

TEST(caption_scan, only_the_text_reaches_the_canvas)
{
    bitmap canvas = plain(8, 12, sky);
    bitmap caption = plain(9, 8, white);
    for (const int x : {0, 2, 4, 8})
        for (int y = 2; y < 8; ++y)
            set_pixel(caption, x, y, ink);
    print_text(canvas, caption, 1, 3);
    EXPECT_EQ(drawn(canvas, [](rgb_triple seen_color) { return seen_color == ink ? '#' : '.'; }),
              "........\n"
              "........\n"
              "........\n"
              "........\n"
              "........\n"
              ".#.#.#..\n"
              ".#.#.#..\n"
              "........\n"
              "........\n"
              "........\n"
              "........\n"
              "........\n");
}

TEST(caption_scan, rows_print_as_pixels_do_wherever_the_caption_stands)
{
    const bitmap caption = graded(250, 30);
    for (const auto & [left, low] :
         {std::pair{0, 0}, {-13, -7}, {35, 25}, {-260, 0}, {-200, 3}, {60, 10}, {10, 60}}) {
        bitmap rows = plain(50, 40, sky), pixels = plain(50, 40, sky);
        print_text(rows, caption, left, low);
        print_by_pixel(pixels, caption, left, low);
        EXPECT_TRUE(same(rows, pixels)) << left << ", " << low;
    }
}

TEST(caption_scan, a_picture_too_small_for_text_prints_nothing)
{
    bitmap canvas = plain(10, 10, sky);
    print_text(canvas, plain(3, 3, ink), 0, 0);
    print_text(canvas, {}, 0, 0);
    EXPECT_TRUE(same(canvas, plain(10, 10, sky)));
}
