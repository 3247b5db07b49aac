#include "engine/area_turn.h"

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

bitmap noise(int width, int height)
{
    bitmap image(width, height);
    std::uint32_t state = 1;
    for (int y = 0; y < height; ++y)
        for (std::uint8_t & byte : image.row(y)) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<std::uint8_t>(state >> 24);
        }
    return image;
}

}  // namespace

TEST(area_turn, every_byte_of_a_turned_picture_is_the_librarys)
{
    for (const picture_size size :
         {picture_size{61, 40}, picture_size{37, 50}, picture_size{1, 1}})
        for (int degrees = -180; degrees <= 180; degrees += degrees % 45 == 0 ? 1 : 2) {
            const bitmap image = noise(size.width, size.height);
            EXPECT_TRUE(same(turned_whole(image, degrees), rotated(image, degrees)))
                << size.width << " by " << size.height << " turned by " << degrees;
        }
}
