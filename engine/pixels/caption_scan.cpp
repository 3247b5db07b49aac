#include "engine/pixels/caption_scan.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace {

constexpr int text_contrast = 110;
constexpr int left_out = 5;

rgb_triple color_at(std::span<const std::uint8_t> row, int x)
{
    const std::size_t at = static_cast<std::size_t>(x) * pixel_bytes;
    return {.red = row[at + 2], .green = row[at + 1], .blue = row[at]};
}

// The last row and column that are looked at.
int last_row(const bitmap & caption)
{
    return caption.height() - left_out;
}

int last_column(const bitmap & caption)
{
    return caption.width() - left_out;
}

bool row_has_text(const bitmap & caption, int y, rgb_triple ground)
{
    const std::span<const std::uint8_t> row = caption.row(y);
    for (int x = 0; x <= last_column(caption); ++x)
        if (is_text(color_at(row, x), ground))
            return true;
    return false;
}

void print_row(std::span<std::uint8_t> target, std::span<const std::uint8_t> source, int first, int last,
               int left, rgb_triple ground)
{
    for (int x = first; x <= last; ++x) {
        if (!is_text(color_at(source, x), ground))
            continue;
        const auto from = source.begin() + static_cast<std::ptrdiff_t>(x) * pixel_bytes;
        std::copy_n(from, pixel_bytes, target.begin() + static_cast<std::ptrdiff_t>(x + left) * pixel_bytes);
    }
}

}  // namespace

rgb_triple ground_of(const bitmap & caption)
{
    return pixel(caption, 0, 0).value_or(rgb_triple{});
}

bool is_text(rgb_triple color, rgb_triple ground)
{
    return std::abs(color.red - ground.red) > text_contrast ||
           std::abs(color.green - ground.green) > text_contrast ||
           std::abs(color.blue - ground.blue) > text_contrast;
}

int first_text_row(const bitmap & caption)
{
    const rgb_triple ground = ground_of(caption);
    for (int y = 0; y <= last_row(caption); ++y)
        if (row_has_text(caption, y, ground))
            return y;
    return 0;
}

void print_text(bitmap & target, const bitmap & caption, int left, int low)
{
    const rgb_triple ground = ground_of(caption);
    const int first = std::max(0, -left);
    const int last = std::min(last_column(caption), target.width() - 1 - left);
    for (int y = first_text_row(caption); y <= last_row(caption); ++y)
        if (y + low >= 0 && y + low < target.height())
            print_row(target.row(y + low), caption.row(y), first, last, left, ground);
}
