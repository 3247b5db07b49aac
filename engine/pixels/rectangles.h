#pragma once

#include "support/MFreeImage.h"
#include "support/rectangle.h"

/// Rectangles of bitmaps, row by row, without scratch bitmaps.

/// Columns and rows of a bitmap, row 0 at the **bottom**; all four bounds inclusive.
struct pixel_bounds {
    int left = 0, right = 0, low = 0, high = 0;
};

/// The same bounds where each pixel has become that many, in each direction.
constexpr pixel_bounds enlarged(const pixel_bounds & bounds, int scale)
{
    return {.left = bounds.left * scale,
            .right = (bounds.right + 1) * scale - 1,
            .low = bounds.low * scale,
            .high = (bounds.high + 1) * scale - 1};
}

/// What becomes of a channel when one of that alpha, 0 to 255 or `plain_copy`, is laid on it: the library's
/// own arithmetic.
constexpr std::uint8_t blended(int below, int above, int alpha)
{
    return static_cast<std::uint8_t>(((above - below) * alpha + below * 256) >> 8);
}

/// True for bitmaps of one size with the same pixels, or none both.
bool are_same(const bitmap & one, const bitmap & other);

/// True when the area is not empty and lies in the bitmap.
bool holds(const bitmap & image, const rectangle & area);

/// Sets every pixel inside the bounds; what lies outside the target is ignored.
void fill_bounds(bitmap & target, const pixel_bounds & bounds, rgb_triple color);

/// What pasting a plain bitmap of that colour with that alpha (0 to 255) does: refused whole when the area is
/// empty or leaves the target.
void blend_rectangle(bitmap & target, const rectangle & area, rgb_triple color, int alpha);

/// What `copied` and then `paste` do with a part of a photo, `plain_copy` as alpha included: a negative width
/// or height is put in order, and a part that is empty, leaves the source or would leave the target is
/// refused whole.
void paste_rectangle(bitmap & target, const bitmap & source, rectangle part, position at, int alpha);

/// What `paste` does, in a fraction of its time where the alpha weighs.
void paste_weighed(bitmap & target, const bitmap & source, position at, int alpha);
