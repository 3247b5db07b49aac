#include "frames/sets/frame_layout.h"

#include "support/numbers.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int key_tolerance = 110;
constexpr int left_out_of_icon = 2;
constexpr double smallest_size = 1;

struct span {
    int first = 0, last = 0;
};

// Columns and rows beyond the bitmap are left out.
void fill_columns(bitmap & frame, int y, span columns, rgb_triple color)
{
    const int first = std::max(0, columns.first);
    const int last = std::min(frame.width() - 1, columns.last);
    for (int x = first; x <= last; ++x)
        frame.row(y)[static_cast<std::size_t>(x)] = color;
}

bitmap ground(const picture_size & size, rgb_triple outside, rgb_triple inside)
{
    constexpr int left = 8, low = 7, beyond = 9, above = 10;
    bitmap frame(size.width, size.height);
    fill(frame, outside);
    for (int y = low; y <= size.height - above; ++y)
        fill_columns(frame, y, {.first = left, .last = size.width - beyond}, inside);
    return frame;
}

bool is_key(pixel color, rgb_triple key)
{
    return std::abs(color.blue - key.blue) <= key_tolerance &&
           std::abs(color.green - key.green) <= key_tolerance &&
           std::abs(color.red - key.red) <= key_tolerance;
}

bool fits(const caption_band & band, const picture_size & text)
{
    return band.width - band.fit_margin > text.width && text.height < band.fit_below;
}

bool fills(const caption_band & band, const picture_size & text)
{
    return band.width - band.grow_margin < text.width || text.height > band.tallest;
}

}  // namespace

rgb_triple split_color(std::uint32_t value)
{
    return get_rgb_triple(value);
}

bitmap portrait_ground(rgb_triple outside, rgb_triple inside)
{
    return ground(portrait_size, outside, inside);
}

bitmap landscape_ground(rgb_triple outside, rgb_triple inside, rgb_triple ribbon)
{
    constexpr int left = 19, right = 58, low = 50, high = 227;
    bitmap frame = ground(landscape_size, outside, inside);
    for (int y = low; y <= high + right - left; ++y)
        fill_columns(frame, y, {.first = left + std::max(0, y - high), .last = right}, ribbon);
    return frame;
}

void chamfer_band(bitmap & frame, rgb_triple inside)
{
    constexpr int low = 17, high = 62;
    for (int step = 0; step <= high - low; ++step) {
        fill_columns(frame, low + step, {.first = 19, .last = 58 - step}, inside);
        fill_columns(frame, low + step, {.first = 425 + step, .last = 480}, inside);
    }
}

caption_band portrait_band(icon_room room)
{
    caption_band band{.width = 330,
                      .height = 65,
                      .grow_margin = 67,
                      .tallest = 61,
                      .fit_margin = 67,
                      .fit_below = 62,
                      .first_size = 28,
                      .line_room = 60,
                      .cut_bottom = 61,
                      .left = 16,
                      .top = 444};
    if (room == icon_room::left) {
        band.width = 295;
        band.left = 51;
        band.shift = 15;
    }
    return band;
}

// The two margins differ on purpose: the ends of this band are cut off slantwise.
caption_band landscape_band()
{
    return {.width = 470,
            .height = 46,
            .grow_margin = 77,
            .tallest = 38,
            .fit_margin = 140,
            .fit_below = 39,
            .first_size = 17,
            .line_room = 46,
            .shift = 10,
            .cut_bottom = 42,
            .left = 19,
            .top = 289};
}

double caption_size(const caption_band & band, const std::function<picture_size(double size)> & measured)
{
    double size = band.first_size;
    while (!fills(band, measured(size)))
        ++size;
    do
        --size;
    while (size > smallest_size && !fits(band, measured(size)));
    return size;
}

bitmap caption_surface(const caption_band & band, rgb_triple ground, const bitmap & text)
{
    bitmap surface(band.width, band.height);
    fill(surface, ground);
    const int left = nearest((band.width - text.width()) / 2.0 + band.shift);
    const int top = nearest((band.line_room - text.height()) / 2.0);
    const bitmap seen =
        copied(text, std::max(0, -left), std::max(0, -top), std::min(text.width(), band.width - left),
               std::min(text.height(), band.height - top));
    if (seen)
        paste(surface, seen, std::max(0, left), std::max(0, top), plain_copy);
    return surface;
}

void paste_caption(bitmap & frame, const bitmap & surface, const caption_band & band)
{
    constexpr int margin = 15;
    const bitmap cut = copied(surface, 1, 1, surface.width() - margin, band.cut_bottom);
    if (cut)
        paste(frame, cut, band.left, band.top, plain_copy);
}

void lay_icon(bitmap & frame, const bitmap & icon, rgb_triple key)
{
    const int columns = std::min(icon.width() - left_out_of_icon, frame.width());
    const int rows = std::min(icon.height() - left_out_of_icon, frame.height());
    for (int y = 0; y < rows; ++y) {
        const std::span<const pixel> from = icon.row(y);
        const std::span<pixel> to = frame.row(y);
        for (std::size_t x = 0; x < static_cast<std::size_t>(std::max(columns, 0)); ++x)
            if (!is_key(from[x], key))
                to[x] = from[x];
    }
}
