#include "engine/pixels/paste_turned.h"

#include "tests/pictures.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

constexpr rgb_triple backdrop{40, 50, 60}, pure_white{255, 255, 255};

/// The picture with an empty pixel on each side.
covered_picture framed_by_nothing(const bitmap & image)
{
    covered_picture made{.colors = bitmap(image.width() + 2, image.height() + 2), .cover = {}, .filled = {}};
    paste(made.colors, image, 1, 1, plain_copy);
    made.filled = {.left = 1, .top = 1, .width = image.width(), .height = image.height()};
    return made;
}

struct covered_sum {
    double mass = 0, x = 0, y = 0;
};

/// How much white there is, and its middle.
covered_sum white_on_black(const bitmap & canvas)
{
    covered_sum sum;
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x) {
            const double level = seen(canvas, x, y).red / 255.0;
            sum.mass += level;
            sum.x += level * (x + 0.5);
            sum.y += level * (y + 0.5);
        }
    return {.mass = sum.mass, .x = sum.x / sum.mass, .y = sum.y / sum.mass};
}

}  // namespace

TEST(paste_turned, without_a_turn_is_a_paste)
{
    const bitmap image = graded(20, 12);
    bitmap canvas = plain(40, 30, backdrop), expected = plain(40, 30, backdrop);
    paste(expected, image, 7, 9, plain_copy);
    paste_turned(canvas, framed_by_nothing(image), {.from = {1, 1}, .to = {7, 9}, .degrees = 0});
    EXPECT_TRUE(same(canvas, expected));
}

TEST(paste_turned, a_quarter_is_clockwise_and_moves_whole_pixels)
{
    const bitmap image = graded(20, 12);
    bitmap canvas = plain(40, 30, backdrop);
    paste_turned(canvas, framed_by_nothing(image), {.from = {1, 1}, .to = {25, 5}, .degrees = 90});
    const bitmap expected = colored(40, 30, [&](int x, int y) {
        const int column = y - 5, row = 24 - x;
        return column >= 0 && column < 20 && row >= 0 && row < 12 ? seen(image, column, row) : backdrop;
    });
    EXPECT_TRUE(same(canvas, expected));
}

TEST(paste_turned, keeps_area_and_middle_at_every_angle)
{
    for (int degrees = -85; degrees <= 90; degrees += 5) {
        bitmap canvas(160, 160);
        paste_turned(canvas, framed_by_nothing(plain(80, 50, pure_white)),
                     {.from = {41, 26}, .to = {80.25, 79.5}, .degrees = degrees});
        const covered_sum found = white_on_black(canvas);
        EXPECT_NEAR(found.mass, 80 * 50, 40) << degrees;
        EXPECT_NEAR(found.x, 80.25, 0.1) << degrees;
        EXPECT_NEAR(found.y, 79.5, 0.1) << degrees;
    }
}

TEST(paste_turned, the_upper_left_corner_lies_where_the_turn_brings_it)
{
    bitmap image = plain(60, 40, {});
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x)
            set_pixel(image, x, 39 - y, pure_white);
    for (const int degrees : {-60, -20, 15, 75}) {
        bitmap canvas(160, 160);
        paste_turned(canvas, framed_by_nothing(image), {.from = {1, 1}, .to = {80, 80}, .degrees = degrees});
        const covered_sum found = white_on_black(canvas);
        const double angle = degrees * std::numbers::pi / 180;
        EXPECT_NEAR(found.x, 80 + 5 * std::cos(angle) - 5 * std::sin(angle), 0.05) << degrees;
        EXPECT_NEAR(found.y, 80 + 5 * std::sin(angle) + 5 * std::cos(angle), 0.05) << degrees;
    }
}

TEST(paste_turned, what_is_covered_in_part_lets_the_canvas_through)
{
    covered_picture picture{.colors = bitmap(12, 12), .cover = bitmap(12, 12), .filled = {}};
    for (int y = 1; y < 11; ++y)
        for (int x = 1; x < 11; ++x) {
            set_pixel(picture.colors, x, y, {100, 0, 0});
            set_pixel(picture.cover, x, y, {128, 128, 128});
        }
    bitmap canvas = plain(30, 30, {200, 100, 0});
    paste_turned(canvas, picture, {.from = {6, 6}, .to = {15, 15}, .degrees = 30});
    EXPECT_EQ(seen(canvas, 15, 15), (rgb_triple{200, 50, 0}));
    EXPECT_EQ(seen(canvas, 2, 2), (rgb_triple{200, 100, 0}));
}

TEST(paste_turned, what_leaves_the_canvas_is_ignored)
{
    for (const picture_point to : {picture_point{-30, 10}, {0, 0}, {39, 29}, {500, 500}, {20, -8}}) {
        bitmap canvas = plain(40, 30, backdrop), large = plain(2040, 2030, backdrop);
        const covered_picture picture = framed_by_nothing(graded(20, 12));
        paste_turned(canvas, picture, {.from = {11, 7}, .to = to, .degrees = 35});
        paste_turned(large, picture, {.from = {11, 7}, .to = {to.x + 1000, to.y + 1000}, .degrees = 35});
        EXPECT_TRUE(same(canvas, copied(large, 1000, 1000, 1040, 1030))) << to.x;
    }
}
