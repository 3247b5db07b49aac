#pragma once

#include "engine/pixels/scaling_rows.h"
#include "support/MFreeImage.h"
#include "support/rectangle.h"

#include <cstdint>
#include <span>
#include <vector>

/// The pixels of a turned picture along a row of the canvas, each weighed of the four around its place in the
/// picture.

/// Places in the picture are whole numbers of this part of a pixel: a row of the longest canvas doesn't
/// gather an error that shows.
using fine_place = std::int64_t;
inline constexpr int place_bits = 32;

/// A place in the picture, counted from the middle of its first pixel, or a step between two.
struct fine_spot {
    fine_place column = 0, line = 0;
};

inline fine_spot further(const fine_spot & from, const fine_spot & step, int pixels)
{
    return {.column = from.column + pixels * step.column, .line = from.line + pixels * step.line};
}

/// The rows of a bitmap from its top.
std::vector<const pixel *> rows_from_top(const bitmap & image);

/// The rows of the picture from its top, and how far its pixels are covered, in red, 255 wholly; without rows
/// of that, what is filled is covered and the rest isn't.
struct turned_source {
    std::vector<const pixel *> colors, covers;
    rectangle filled;
};

/// Pixels of the canvas, where in the picture the first of them lies, and how far on each next one. All of
/// them lie between four pixels of the picture.
struct turned_row {
    std::span<pixel> into;
    fine_spot start, step;
};

/// Either arithmetic puts down the same bytes.
void put_turned(const turned_source & source, const turned_row & row, arithmetic way);
