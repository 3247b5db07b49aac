#pragma once

#include "support/MFreeImage.h"

#include <functional>
#include <vector>

/// The library's turn of a picture (`rotated` of the binding), worked out for a part of the result alone: a
/// tilted photo needs a small part of two large turned pictures. Every byte equals the library's. Angles are
/// whole degrees, positive counter-clockwise as seen; rows count from the **bottom**, as in `bitmap::row`.

/// Size of the turned picture.
picture_size turned_size(picture_size size, int degrees);

/// A place in a picture, in pixels from its lower left corner: pixel (0, 0) covers 0 to 1 in both directions.
struct picture_point {
    double x = 0, y = 0;
};

/// Where the turn puts a point of a picture of that size, up to the roundings of the pixels.
picture_point turned_point(picture_size size, int degrees, picture_point point);

/// Pixels of a picture, far sides exclusive.
struct pixel_window {
    int left = 0, low = 0, right = 0, high = 0;
    bool operator==(const pixel_window &) const = default;
};

bool is_empty(const pixel_window & window);

/// What lies in both.
pixel_window common(const pixel_window & one, const pixel_window & other);

/// Columns of one row, `last` exclusive.
struct column_span {
    int first = 0, last = 0;
};

/// Some columns in each of a run of rows, from row `low` up.
struct row_spans {
    int low = 0;
    std::vector<column_span> rows;
};

/// All columns of a window.
row_spans spans_of(const pixel_window & window);

/// The columns that lie in the four-sided figure with these corners, in order round it, or within `slack`
/// pixels of it, cut at `bounds`.
row_spans spans_of(const std::vector<picture_point> & corners, double slack, const pixel_window & bounds);

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

/// Takes a finished row: its number, its first column and the pixels from there on.
using row_taker = std::function<void(int row, int first, std::span<const marked_pixel> pixels)>;

/// Hands over the wanted pixels of the turned picture row by row, from the bottom. Wanted columns outside the
/// turned picture are an error of the caller.
void turn_rows(const marked_picture & picture, int degrees, const row_spans & wanted, const row_taker & take);
