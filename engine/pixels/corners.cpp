#include "engine/pixels/corners.h"

#include "engine/pixels/corner_tables.h"

#include <algorithm>
#include <cstddef>

namespace {

struct corner_cut {
    bitmap & photo;
    const bitmap & canvas;
    int left = 0, bottom_row = 0;

    /// Cuts a row of both corners of a side, `depth` rows from it. The right corner starts one pixel outside
    /// the photo, as does the top one.
    void cut_row(int y, std::size_t depth, std::span<const std::uint8_t> table, int width) const
    {
        const int canvas_y = bottom_row + y;
        if (y < 0 || y >= photo.height() || canvas_y < 0 || canvas_y >= canvas.height())
            return;
        const std::span<pixel> to = photo.row(y);
        const std::span<const pixel> from = canvas.row(canvas_y);
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (table[i] < depth)
                continue;
            restore(to, from, static_cast<int>(i));
            restore(to, from, width - static_cast<int>(i));
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

void cut_corners(bitmap & photo, const bitmap & canvas, const rectangle & place)
{
    if (!photo || !canvas)
        return;
    const std::span<const std::uint8_t> table = corner_table(std::min(place.width, place.height));
    const corner_cut cut{photo, canvas, place.left, canvas.height() - place.bottom()};
    const std::uint8_t deepest = *std::ranges::max_element(table);
    for (std::size_t depth = 0; depth <= deepest; ++depth) {
        cut.cut_row(static_cast<int>(depth), depth, table, place.width);
        cut.cut_row(place.height - static_cast<int>(depth), depth, table, place.width);
    }
}
