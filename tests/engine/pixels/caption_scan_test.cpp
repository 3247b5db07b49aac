#include "engine/pixels/caption_scan.h"

#include "tests/pictures.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr rgb_triple white{.red = 255, .green = 255, .blue = 255};
constexpr rgb_triple ink{.red = 10, .green = 20, .blue = 30};
constexpr rgb_triple sky{.red = 90, .green = 120, .blue = 200};

// A colour on the way from one to the other.
rgb_triple between(rgb_triple from, rgb_triple to, double share)
{
    const auto mixed = [share](int one, int other) {
        return static_cast<std::uint8_t>(std::lround(one + (other - one) * share));
    };
    return {.red = mixed(from.red, to.red),
            .green = mixed(from.green, to.green),
            .blue = mixed(from.blue, to.blue)};
}

// The share of the ink in a pixel that was drawn on a ground.
double share_of(rgb_triple color, rgb_triple ground, rgb_triple text)
{
    const double along = (color.red - ground.red) * (text.red - ground.red) +
                         (color.green - ground.green) * (text.green - ground.green) +
                         (color.blue - ground.blue) * (text.blue - ground.blue);
    const double whole = std::pow(text.red - ground.red, 2) + std::pow(text.green - ground.green, 2) +
                         std::pow(text.blue - ground.blue, 2);
    return whole == 0 ? 0 : std::min(std::max(along / whole, 0.0), 1.0);
}

// The same, one pixel after the other.
void print_by_pixel(bitmap & target, const bitmap & caption, int left, int low)
{
    const rgb_triple ground = *pixel_at(caption, 0, 0);
    for (int y = 0; y <= caption.height() - 5; ++y)
        for (int x = 0; x <= caption.width() - 5; ++x)
            if (const auto below = pixel_at(target, x + left, y + low))
                set_pixel(target, x + left, y + low,
                          between(*below, ink, share_of(*pixel_at(caption, x, y), ground, ink)));
}

// A stroke with smooth edges, in shares of the ink from left to right.
constexpr double stroke[] = {0, 0.25, 1, 0.5, 0};

bitmap smooth_caption(rgb_triple ground, rgb_triple text)
{
    bitmap caption = plain(20, 12, ground);
    for (int y = 1; y < 5; ++y)
        for (int x = 0; x < 5; ++x)
            set_pixel(caption, x + 3, y, between(ground, text, stroke[x]));
    return caption;
}

}  // namespace

TEST(caption_scan, the_last_rows_and_columns_are_not_printed)
{
    bitmap canvas = plain(40, 40, sky), caption = plain(20, 12, white);
    set_pixel(caption, 16, 3, ink);
    set_pixel(caption, 3, 8, ink);
    print_text(canvas, caption, ink, 5, 5);
    EXPECT_TRUE(same(canvas, plain(40, 40, sky)));
    set_pixel(caption, 15, 7, ink);
    print_text(canvas, caption, ink, 5, 5);
    EXPECT_EQ(*pixel_at(canvas, 20, 12), ink);
}

TEST(caption_scan, blanks_print_nothing)
{
    bitmap canvas = plain(40, 40, sky);
    print_text(canvas, plain(20, 12, white), ink, 5, 5);
    EXPECT_TRUE(same(canvas, plain(40, 40, sky)));
}

TEST(caption_scan, only_the_text_reaches_the_canvas)
{
    bitmap canvas = plain(8, 12, sky);
    bitmap caption = plain(9, 8, white);
    for (const int x : {0, 2, 4, 8})
        for (int y = 2; y < 8; ++y)
            set_pixel(caption, x, y, ink);
    print_text(canvas, caption, ink, 1, 3);
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

TEST(caption_scan, a_smooth_edge_mixes_the_ink_with_what_lies_below)
{
    for (const rgb_triple ground : {white, rgb_triple{}})
        for (const rgb_triple below : {white, sky, rgb_triple{}}) {
            bitmap canvas = plain(20, 20, below);
            print_text(canvas, smooth_caption(ground, ink), ink, 0, 0);
            for (int x = 0; x < 5; ++x) {
                const rgb_triple seen_color = *pixel_at(canvas, x + 3, 2),
                                 wanted = between(below, ink, stroke[x]);
                EXPECT_NEAR(seen_color.red, wanted.red, 6) << x;
                EXPECT_NEAR(seen_color.green, wanted.green, 6) << x;
                EXPECT_NEAR(seen_color.blue, wanted.blue, 6) << x;
            }
        }
}

TEST(caption_scan, white_letters_leave_no_rim_on_white)
{
    bitmap canvas = plain(20, 20, white);
    print_text(canvas, smooth_caption({}, white), white, 0, 0);
    EXPECT_TRUE(same(canvas, plain(20, 20, white)));
}

TEST(caption_scan, a_text_in_the_colour_of_its_ground_prints_nothing)
{
    bitmap canvas = plain(20, 20, sky);
    print_text(canvas, plain(15, 15, ink), ink, 0, 0);
    EXPECT_TRUE(same(canvas, plain(20, 20, sky)));
}

TEST(caption_scan, rows_print_as_pixels_do_wherever_the_caption_stands)
{
    const bitmap caption = graded(250, 30);
    for (const auto & [left, low] :
         {std::pair{0, 0}, {-13, -7}, {35, 25}, {-260, 0}, {-200, 3}, {60, 10}, {10, 60}}) {
        bitmap rows = plain(50, 40, sky), pixels = plain(50, 40, sky);
        print_text(rows, caption, ink, left, low);
        print_by_pixel(pixels, caption, left, low);
        EXPECT_TRUE(same(rows, pixels)) << left << ", " << low;
    }
}

TEST(caption_scan, a_picture_too_small_for_text_prints_nothing)
{
    bitmap canvas = plain(10, 10, sky);
    print_text(canvas, plain(3, 3, ink), ink, 0, 0);
    print_text(canvas, {}, ink, 0, 0);
    EXPECT_TRUE(same(canvas, plain(10, 10, sky)));
}
