#include "engine/pixels/corners.h"

#include "engine/pixels/corner_tables.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

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
        const std::span<std::uint8_t> to = photo.row(y);
        const std::span<const std::uint8_t> from = canvas.row(canvas_y);
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (table[i] < depth)
                continue;
            restore(to, from, static_cast<int>(i));
            restore(to, from, width - static_cast<int>(i));
        }
    }

    void restore(std::span<std::uint8_t> to, std::span<const std::uint8_t> from, int x) const
    {
        const std::ptrdiff_t to_byte = static_cast<std::ptrdiff_t>(x) * pixel_bytes;
        const std::ptrdiff_t from_byte = static_cast<std::ptrdiff_t>(left + x) * pixel_bytes;
        if (to_byte < 0 || from_byte < 0 || to_byte >= std::ssize(to) || from_byte >= std::ssize(from))
            return;
        std::memcpy(&to[static_cast<std::size_t>(to_byte)], &from[static_cast<std::size_t>(from_byte)],
                    pixel_bytes);
    }
};

}  // namespace

void cut_corners(bitmap & photo, const bitmap & canvas, int width, int height, int left, int bottom_row)
{
    if (!photo || !canvas)
        return;
    const std::span<const std::uint8_t> table = corner_table(std::min(width, height));
    const corner_cut cut{photo, canvas, left, bottom_row};
    const std::uint8_t deepest = *std::ranges::max_element(table);
    for (std::size_t depth = 0; depth <= deepest; ++depth) {
        cut.cut_row(static_cast<int>(depth), depth, table, width);
        cut.cut_row(height - static_cast<int>(depth), depth, table, width);
    }
}
