#include "tests/pictures.h"

#include "engine/pixels/rectangles.h"

#include <algorithm>
#include <gtest/gtest.h>

bitmap plain(int width, int height, rgb_triple color)
{
    bitmap image(width, height);
    fill(image, color);
    return image;
}

bitmap noise(int width, int height)
{
    bitmap image(width, height);
    std::uint32_t state = 1;
    for (int y = 0; y < height; ++y)
        for (std::uint8_t & byte : channels(image.row(y))) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<std::uint8_t>(state >> 24);
        }
    return image;
}

bitmap graded(int width, int height)
{
    return colored(width, height, [](int x, int y) {
        return rgb_triple{static_cast<std::uint8_t>(x % 256), static_cast<std::uint8_t>(y % 256),
                          static_cast<std::uint8_t>((x / 256 * 16 + y / 256) % 256)};
    });
}

rgb_triple seen(const bitmap & image, int x, int y)
{
    const std::optional<rgb_triple> found = pixel_at(image, x, image.height() - 1 - y);
    EXPECT_TRUE(found) << "no pixel at " << x << ", " << y << " in " << image.width() << " by "
                       << image.height();
    return found.value_or(rgb_triple{});
}

bool same(const bitmap & left, const bitmap & right)
{
    return are_same(left, right);
}
