#include "engine/pixels/area_turn.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

/// The whole picture turned by the code under test, in the binding's form.
bitmap turned_whole(const bitmap & image, int degrees)
{
    const picture_size size{.width = image.width(), .height = image.height()};
    const picture_size result = turned_size(size, degrees);
    bitmap made(result.width, result.height);
    turn_rows({.size = size, .part = &image, .marked = {}}, degrees,
              spans_of({.left = 0, .low = 0, .right = result.width, .high = result.height}),
              [&](int row, int first, std::span<const marked_pixel> pixels) {
                  for (std::size_t i = 0; i < pixels.size(); ++i)
                      set_pixel(made, first + static_cast<int>(i), row,
                                {.red = static_cast<std::uint8_t>(pixels[i] >> 16),
                                 .green = static_cast<std::uint8_t>(pixels[i] >> 8),
                                 .blue = static_cast<std::uint8_t>(pixels[i])});
              });
    return made;
}

}  // namespace

TEST(area_turn, every_byte_of_a_turned_picture_is_the_librarys)
{
    for (const picture_size size : {picture_size{61, 40}, picture_size{37, 50}, picture_size{1, 1}})
        for (int degrees = -180; degrees <= 180; degrees += degrees % 45 == 0 ? 1 : 2) {
            const bitmap image = noise(size.width, size.height);
            EXPECT_TRUE(same(turned_whole(image, degrees), rotated(image, degrees)))
                << size.width << " by " << size.height << " turned by " << degrees;
        }
}

namespace {

/// The middle of all that is bright, from the lower left corner.
picture_point middle_of_light(const bitmap & image)
{
    double light = 0, x = 0, y = 0;
    for (int row = 0; row < image.height(); ++row)
        for (int column = 0; column < image.width(); ++column) {
            const int value = image.row(row)[static_cast<std::size_t>(column)].blue;
            light += value;
            x += value * (column + 0.5);
            y += value * (row + 0.5);
        }
    return {.x = x / light, .y = y / light};
}

}  // namespace

TEST(area_turn, tells_where_a_point_comes_to_lie)
{
    bitmap image(120, 70);
    for (int y = 20; y < 26; ++y)
        for (int x = 80; x < 88; ++x)
            set_pixel(image, x, y, {.red = 240, .green = 240, .blue = 240});
    for (int degrees : {-170, -120, -90, -45, -30, -5, 0, 5, 20, 45, 60, 90, 135, 180}) {
        const picture_point found = middle_of_light(rotated(image, degrees));
        const picture_point told = turned_point({.width = 120, .height = 70}, degrees, {.x = 84, .y = 23});
        EXPECT_NEAR(told.x, found.x, 0.1) << degrees;
        EXPECT_NEAR(told.y, found.y, 0.1) << degrees;
    }
}

TEST(area_turn, gives_some_columns_of_some_rows_as_the_whole_would_have_them)
{
    const bitmap image = noise(90, 60);
    for (int degrees : {-100, -40, -7, 12, 33, 45, 75}) {
        const bitmap whole = rotated(image, degrees);
        const row_spans wanted{.low = 20, .rows = {{.first = 30, .last = 50}, {}, {.first = 5, .last = 36}}};
        int rows = 0;
        turn_rows({.size = {.width = 90, .height = 60}, .part = &image, .marked = {}}, degrees, wanted,
                  [&](int row, int first, std::span<const marked_pixel> pixels) {
                      ++rows;
                      for (std::size_t i = 0; i < pixels.size(); ++i) {
                          const rgb_triple color = *pixel_at(whole, first + static_cast<int>(i), row);
                          EXPECT_EQ(pixels[i], static_cast<marked_pixel>(color.blue | color.green << 8 |
                                                                         color.red << 16));
                      }
                  });
        EXPECT_EQ(rows, 2);
    }
}

TEST(area_turn, turns_marks_like_a_channel_of_their_own)
{
    const bitmap image = noise(50, 40);
    bitmap marks(50, 40), sheet(20, 12);
    fill(sheet, {.red = 255, .green = 255, .blue = 255});
    paste(marks, sheet, 18, 40 - 7 - 12, 255);
    for (int degrees : {-80, -30, 5, 45, 90}) {
        const bitmap expected = rotated(marks, degrees);
        turn_rows({.size = {.width = 50, .height = 40},
                   .part = &image,
                   .marked = {.left = 18, .low = 7, .right = 38, .high = 19}},
                  degrees,
                  spans_of({.left = 0, .low = 0, .right = expected.width(), .high = expected.height()}),
                  [&](int row, int, std::span<const marked_pixel> pixels) {
                      for (std::size_t i = 0; i < pixels.size(); ++i)
                          EXPECT_EQ(pixels[i] >> 24, expected.row(row)[i].blue);
                  });
    }
}

TEST(spans_of, cover_a_four_sided_figure_and_what_is_near_it)
{
    const pixel_window bounds{.left = 0, .low = 0, .right = 20, .high = 14};
    const std::vector<picture_point> corners{
        {.x = 8, .y = 1}, {.x = 16, .y = 6}, {.x = 11, .y = 15}, {.x = 3, .y = 9}};
    const row_spans spans = spans_of(corners, 1, bounds);
    EXPECT_EQ(spans.low, 0);
    EXPECT_EQ(spans.rows.size(), 14U);
    // Every point of the sides lies inside, with a pixel to spare.
    for (std::size_t side = 0; side < 4; ++side)
        for (double part = 0; part <= 1; part += 0.05) {
            const picture_point &from = corners[side], &to = corners[(side + 1) % 4];
            const double x = from.x + part * (to.x - from.x), y = from.y + part * (to.y - from.y);
            if (y >= 14)
                continue;
            const column_span & row = spans.rows[static_cast<std::size_t>(y)];
            EXPECT_LE(row.first, x - 0.9);
            EXPECT_GE(row.last, x + 0.9);
        }
    EXPECT_GT(spans.rows[0].first, 3);  // not simply everything
}
