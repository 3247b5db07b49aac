#pragma once

#include "engine/pixels/row_spans.h"
#include "support/MFreeImage.h"

#include <cstdint>

/// A large picture of which a part is at hand. Each pixel has a mark beside its colour, which is turned with
/// it.
struct marked_picture {
    picture_size size;              ///< of the whole
    const bitmap * part = nullptr;  ///< all else is black
    int left = 0, low = 0;          ///< where the part lies; it may reach beyond the whole
    pixel_window marked;            ///< pixels with a mark; all else has the mark 0
    const bitmap * marks =
        nullptr;  ///< size of `marked`: the largest channel is the mark; none: all are `full_mark`
};

/// What white leaves on black when it is pasted with alpha 255.
inline constexpr int full_mark = 254;

/// A pixel in one word: blue in the lowest byte, green, red, and the mark in the highest.
using marked_pixel = std::uint32_t;

/// A walk over the picture before any turn, along a row or a column.
struct pixel_walk {
    int x = 0, y = 0;            ///< where it starts
    int step_x = 0, step_y = 0;  ///< one of them 1 or -1, the other 0
    int count = 0;
};

/// The pixels on the walk; zero outside the picture.
void read_walk(const marked_picture & picture, const pixel_walk & walk, marked_pixel * into);
