#pragma once

#include "support/MFreeImage.h"

#include <string>

/// A bitmap of one colour.
bitmap plain(int width, int height, rgb_triple color);

/// A bitmap whose pixel (x, y), counted from the top, has the colour `color_at(x, y)`.
template <typename Color>
bitmap colored(int width, int height, Color color_at)
{
    bitmap image(width, height);
    for (int y = 0; y < height; ++y) {
        int x = 0;
        for (pixel & each : image.row(height - 1 - y))
            each = color_at(x++, y);
    }
    return image;
}

/// A bitmap in which every pixel tells where it is: red and green rise with column and row from the top.
bitmap graded(int width, int height);

/// A bitmap of chance, the same each time: no encoder makes it small, and no turn leaves it as it is.
bitmap noise(int width, int height);

/// Pixel (x, y) counted from the top; fails the test outside the bitmap.
rgb_triple seen(const bitmap & image, int x, int y);

/// The whole bitmap as letters, one line a row from the top: `letters` gives the letter of a pixel.
template <typename Letters>
std::string drawn(const bitmap & image, Letters letters)
{
    std::string text;
    for (int y = image.height() - 1; y >= 0; --y) {
        for (const pixel & each : image.row(y))
            text += letters(each);
        text += '\n';
    }
    return text;
}

/// True when both have the same size and the same pixels.
bool same(const bitmap & left, const bitmap & right);
