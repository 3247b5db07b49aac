#include "engine/pixels/caption_scan.h"

#include "engine/pixels/row_spans.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace {

constexpr int text_contrast = 110;
constexpr int left_out = 4;

// The last row and column that are looked at.
int last_row(const bitmap & caption, int scale)
{
    return caption.height() - 1 - left_out * scale;
}

int last_column(const bitmap & caption, int scale)
{
    return caption.width() - 1 - left_out * scale;
}

bool row_has_text(const bitmap & caption, int y, rgb_triple ground, int scale)
{
    const std::span<const pixel> row = caption.row(y);
    for (int x = 0; x <= last_column(caption, scale); ++x)
        if (is_text(row[static_cast<std::size_t>(x)], ground))
            return true;
    return false;
}

// The caption's columns, `left` further right in the target.
void print_row(std::span<pixel> target, std::span<const pixel> source, column_span columns, int left,
               rgb_triple ground)
{
    for (int x = columns.first; x < columns.last; ++x) {
        const pixel seen = source[static_cast<std::size_t>(x)];
        const int column = left + x;
        if (is_text(seen, ground))
            target[static_cast<std::size_t>(column)] = seen;
    }
}

}  // namespace

rgb_triple ground_of(const bitmap & caption)
{
    return pixel_at(caption, 0, 0).value_or(rgb_triple{});
}

bool is_text(rgb_triple color, rgb_triple ground)
{
    return std::abs(color.red - ground.red) > text_contrast ||
           std::abs(color.green - ground.green) > text_contrast ||
           std::abs(color.blue - ground.blue) > text_contrast;
}

int first_text_row(const bitmap & caption, int scale)
{
    const rgb_triple ground = ground_of(caption);
    for (int y = 0; y <= last_row(caption, scale); ++y)
        if (row_has_text(caption, y, ground, scale))
            return y;
    return 0;
}

void print_text(bitmap & target, const bitmap & caption, int left, int low, int scale)
{
    const rgb_triple ground = ground_of(caption);
    const column_span columns{.first = std::max(0, -left),
                              .last = std::min(last_column(caption, scale) + 1, target.width() - left)};
    for (int y = first_text_row(caption, scale); y <= last_row(caption, scale); ++y)
        if (y + low >= 0 && y + low < target.height())
            print_row(target.row(y + low), caption.row(y), columns, left, ground);
}
