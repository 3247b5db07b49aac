#include "engine/pixels/corners.h"

#include "engine/pixels/corner_tables.h"
#include "support/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

/// Rows that the table cuts from a column; between its columns, and half a column beyond its ends, the curve
/// goes on straight.
double rows_cut(std::span<const std::uint8_t> table, double column)
{
    const auto rows = [&](std::ptrdiff_t at) {
        return at < std::ssize(table) ? table[static_cast<std::size_t>(at)] + 1.0 : 0.0;
    };
    const auto before = std::max(static_cast<std::ptrdiff_t>(std::floor(column)), std::ptrdiff_t{0});
    return std::lerp(rows(before), rows(before + 1), column - static_cast<double>(before));
}

/// For each drawn column from the photo's side the drawn rows that are cut.
std::vector<int> drawn_table(std::span<const std::uint8_t> table, int scale)
{
    std::vector<int> rows;
    for (int column = 0; column < std::ssize(table) * scale; ++column)
        rows.push_back(nearest(scale * rows_cut(table, (column + 0.5) / scale - 0.5)));
    return rows;
}

struct corner_cut {
    bitmap & photo;
    const bitmap & canvas;
    int left = 0, bottom_row = 0;
    int right_corner = 0;         ///< the column of the photo on which that begins
    std::vector<int> rows_cut{};  ///< of each column

    /// Cuts a row of both corners of a side, `depth` rows from it.
    void cut_row(int y, int depth) const
    {
        const int canvas_y = bottom_row + y;
        if (y < 0 || y >= photo.height() || canvas_y < 0 || canvas_y >= canvas.height())
            return;
        const std::span<pixel> to = photo.row(y);
        const std::span<const pixel> from = canvas.row(canvas_y);
        for (std::size_t i = 0; i < rows_cut.size(); ++i) {
            if (rows_cut[i] <= depth)
                continue;
            restore(to, from, static_cast<int>(i));
            restore(to, from, right_corner - static_cast<int>(i));
        }
    }

    void restore(std::span<pixel> to, std::span<const pixel> from, int x) const
    {
        const int column = left + x;
        if (x >= 0 && column >= 0 && x < std::ssize(to) && column < std::ssize(from))
            to[static_cast<std::size_t>(x)] = from[static_cast<std::size_t>(column)];
    }
};

}  // namespace

void cut_corners(bitmap & photo, const bitmap & canvas, const rectangle & place, int scale)
{
    if (!photo || !canvas)
        return;
    const std::span<const std::uint8_t> table = corner_table(std::min(place.width, place.height));
    // The right corner starts one pixel of the layout outside the photo, as does the top one.
    const corner_cut cut{.photo = photo,
                         .canvas = canvas,
                         .left = place.left * scale,
                         .bottom_row = canvas.height() - place.bottom() * scale,
                         .right_corner = (place.width + 1) * scale - 1,
                         .rows_cut = drawn_table(table, scale)};
    const int top_corner = (place.height + 1) * scale - 1;
    const int deepest = std::ranges::max(cut.rows_cut);
    for (int depth = 0; depth < deepest; ++depth) {
        cut.cut_row(depth, depth);
        cut.cut_row(top_corner - depth, depth);
    }
}
