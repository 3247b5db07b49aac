#pragma once

#include <vector>

/// Places in pictures: points, windows, and the columns that are wanted of each row. Rows count from the
/// **bottom**.

/// A place in a picture, in pixels from its lower left corner: pixel (0, 0) covers 0 to 1 in both directions.
struct picture_point {
    double x = 0, y = 0;
};

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
