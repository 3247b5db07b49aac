#include "engine/pixels/caption_scan.h"

#include "engine/pixels/row_spans.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

constexpr int left_out = empty_caption_margin + 1;

// The last row and column that are looked at.
int last_row(const bitmap & caption)
{
    return caption.height() - left_out;
}

int last_column(const bitmap & caption)
{
    return caption.width() - left_out;
}

// The colours of a caption.
struct lettering {
    rgb_triple ground, color;
};

// The product of two ways from the ground, as vectors of their channels.
int along(rgb_triple ground, rgb_triple one, rgb_triple other)
{
    return (one.red - ground.red) * (other.red - ground.red) +
           (one.green - ground.green) * (other.green - ground.green) +
           (one.blue - ground.blue) * (other.blue - ground.blue);
}

// `share` of `whole` parts of the upper colour.
std::uint8_t mixed(int below, int above, int share, int whole)
{
    return static_cast<std::uint8_t>((below * (whole - share) + above * share + whole / 2) / whole);
}

pixel lettered(pixel below, pixel seen, const lettering & text)
{
    const int whole = along(text.ground, text.color, text.color);
    const int share = std::clamp(along(text.ground, seen, text.color), 0, whole);
    if (share == 0)
        return below;
    return rgb_triple{.red = mixed(below.red, text.color.red, share, whole),
                      .green = mixed(below.green, text.color.green, share, whole),
                      .blue = mixed(below.blue, text.color.blue, share, whole)};
}

// The caption's columns, `left` further right in the target.
void print_row(std::span<pixel> target, std::span<const pixel> source, column_span columns, int left,
               const lettering & text)
{
    for (int x = columns.first; x < columns.last; ++x) {
        const int column = left + x;
        pixel & below = target[static_cast<std::size_t>(column)];
        below = lettered(below, source[static_cast<std::size_t>(x)], text);
    }
}

}  // namespace

rgb_triple ground_of(const bitmap & caption)
{
    return pixel_at(caption, 0, 0).value_or(rgb_triple{});
}

void print_text(bitmap & target, const bitmap & caption, rgb_triple color, int left, int low)
{
    const lettering text{.ground = ground_of(caption), .color = color};
    const column_span columns{.first = std::max(0, -left),
                              .last = std::min(last_column(caption) + 1, target.width() - left)};
    for (int y = 0; y <= last_row(caption); ++y)
        if (y + low >= 0 && y + low < target.height())
            print_row(target.row(y + low), caption.row(y), columns, left, text);
}
