#include "engine/pixels/row_scaler.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

// The image library itself says what every byte has to be.

namespace {

constexpr std::array ways{arithmetic::one_by_one, arithmetic::many_at_once};

struct change {
    picture_size from, to;
};

void PrintTo(const change & what, std::ostream * into)
{
    *into << what.from.width << " x " << what.from.height << " to " << what.to.width << " x "
          << what.to.height;
}

bool is_known(arithmetic way)
{
    return way == arithmetic::one_by_one || best_arithmetic() == way;
}

void expect_as_the_library(const bitmap & image, picture_size to, scaling_memory & memory)
{
    const picture_size from{.width = image.width(), .height = image.height()};
    const bitmap expected = rescaled(image, to.width, to.height);
    ASSERT_TRUE(expected);
    for (const arithmetic way : ways)
        if (is_known(way)) {
            EXPECT_TRUE(same(scaled_by_rows(image, all_scaled(from, to), memory, way), expected))
                << testing::PrintToString(change{from, to}) << ", way " << static_cast<int>(way);
        }
}

}  // namespace

TEST(row_scaler, small_pictures_become_what_the_library_makes_of_them)
{
    constexpr std::array sides{1, 2, 3, 4, 5, 7, 8, 13, 16, 31};
    scaling_memory memory;
    for (const int width : sides)
        for (const int height : sides) {
            const bitmap image = noise(width, height);
            for (const int new_width : sides)
                for (const int new_height : sides)
                    expect_as_the_library(image, {.width = new_width, .height = new_height}, memory);
        }
}

class row_scaler_sizes : public testing::TestWithParam<change> {};

TEST_P(row_scaler_sizes, become_what_the_library_makes_of_them)
{
    scaling_memory memory;
    expect_as_the_library(noise(GetParam().from.width, GetParam().from.height), GetParam().to, memory);
}

INSTANTIATE_TEST_SUITE_P(real, row_scaler_sizes,
                         testing::Values(change{{4000, 3000}, {450, 338}}, change{{3000, 4000}, {287, 383}},
                                         change{{4000, 3000}, {200, 150}}, change{{2048, 1365}, {2047, 1365}},
                                         change{{1620, 1080}, {2000, 1333}}, change{{200, 150}, {333, 250}},
                                         change{{640, 480}, {640, 97}}, change{{640, 480}, {97, 480}},
                                         change{{640, 480}, {641, 97}}, change{{640, 480}, {320, 240}},
                                         change{{300, 200}, {600, 400}}, change{{333, 777}, {1000, 111}},
                                         change{{777, 333}, {111, 1000}}));

INSTANTIATE_TEST_SUITE_P(extreme, row_scaler_sizes,
                         testing::Values(change{{1, 9000}, {1, 2}}, change{{9000, 1}, {2, 1}},
                                         change{{32767, 1}, {3, 5}}, change{{1, 32767}, {5, 3}},
                                         change{{1, 1}, {3000, 2}}, change{{2, 1}, {1, 3000}},
                                         change{{32767, 2}, {32766, 2}}, change{{2, 32767}, {2, 32766}},
                                         change{{5000, 3}, {1, 1}}, change{{3, 5000}, {1, 1}}));

// Equal bytes, extremes and even steps are where a sum comes nearest to the half of a byte.
TEST(row_scaler, even_and_striped_pictures_become_what_the_library_makes_of_them)
{
    scaling_memory memory;
    for (const int level : {0, 1, 127, 128, 254, 255}) {
        bitmap image = plain(96, 64, {static_cast<std::uint8_t>(level), 255, 0});
        expect_as_the_library(image, {.width = 31, .height = 21}, memory);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); x += 2)
                set_pixel(image, x, y, {0, 0, 255});
        for (const int part : {2, 3, 4, 6, 8})
            expect_as_the_library(image, {.width = 96 / part, .height = 64 / part}, memory);
        expect_as_the_library(image, {.width = 192, .height = 128}, memory);
    }
}

TEST(row_scaler, a_grey_picture_becomes_what_the_library_makes_of_it)
{
    bitmap image = noise(90, 70);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const std::uint8_t level = pixel_at(image, x, y)->red;
            set_pixel(image, x, y, {level, level, level});
        }
    scaling_memory memory;
    expect_as_the_library(image, {.width = 37, .height = 23}, memory);
    expect_as_the_library(image, {.width = 101, .height = 23}, memory);
}

TEST(row_scaler, a_part_is_the_part_of_the_whole)
{
    const bitmap image = noise(210, 160);
    scaling_memory memory;
    for (const picture_size scaled : {picture_size{70, 51}, picture_size{300, 90}, picture_size{210, 300},
                                      picture_size{210, 160}, picture_size{91, 160}}) {
        const bitmap whole = rescaled(image, scaled.width, scaled.height);
        for (const arithmetic way : ways) {
            if (!is_known(way))
                continue;
            for (const auto & [left, top, right, bottom] : {std::array{0, 0, 1, 1},
                                                            {69, 50, 70, 51},
                                                            {3, 7, 60, 44},
                                                            {0, 20, 70, 30},
                                                            {30, 0, 33, 51}}) {
                const scaling_plan plan{.source = {210, 160},
                                        .scaled = scaled,
                                        .wanted = rectangle_between(left, top, right, bottom)};
                EXPECT_TRUE(
                    same(scaled_by_rows(image, plan, memory, way), copied(whole, left, top, right, bottom)));
            }
        }
    }
}

TEST(row_scaler, asks_only_for_the_rows_that_the_part_needs)
{
    scaling_memory memory;
    const row_scaler middle({.source = {100, 1000}, .scaled = {10, 100}, .wanted = {0, 40, 10, 20}}, memory);
    // Each row is made of those of twice its height round its middle.
    EXPECT_EQ(middle.first_row(), 395);
    EXPECT_EQ(middle.end_row(), 605);
    const row_scaler all(all_scaled({100, 1000}, {10, 100}), memory);
    EXPECT_EQ(all.first_row(), 0);
    EXPECT_EQ(all.end_row(), 1000);
}

TEST(row_scaler, memory_of_a_large_picture_does_no_harm_to_a_small_one)
{
    scaling_memory memory;
    expect_as_the_library(noise(500, 400), {.width = 90, .height = 70}, memory);
    expect_as_the_library(noise(40, 30), {.width = 9, .height = 7}, memory);
    expect_as_the_library(noise(40, 30), {.width = 90, .height = 70}, memory);
}

TEST(row_scaler, a_plan_whose_part_leaves_the_picture_is_impossible)
{
    const scaling_plan good = all_scaled({40, 30}, {20, 15});
    EXPECT_TRUE(is_possible(good));
    const auto changed = [&](auto change) {
        scaling_plan plan = good;
        change(plan);
        return is_possible(plan);
    };
    EXPECT_FALSE(changed([](scaling_plan & plan) { plan.wanted.left = 1; }));
    EXPECT_FALSE(changed([](scaling_plan & plan) { plan.wanted.top = -1; }));
    EXPECT_FALSE(changed([](scaling_plan & plan) { plan.wanted.width = 0; }));
    EXPECT_FALSE(changed([](scaling_plan & plan) { plan.wanted.height = 16; }));
    EXPECT_FALSE(changed([](scaling_plan & plan) { plan.scaled.width = 8 * 32768; }));
    EXPECT_FALSE(changed([](scaling_plan & plan) { plan.source.height = 0; }));
}
