#include "engine/pixels/rectangles.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

/// The library's own arithmetic of a paste.
std::uint8_t blended(int below, int above, int alpha)
{
    return static_cast<std::uint8_t>(((above - below) * alpha + below * 256) >> 8);
}

/// First byte of a pixel, from the top.
std::uint8_t * bytes_at(bitmap & image, int x, int y)
{
    return image.row(image.height() - 1 - y).data() + static_cast<std::ptrdiff_t>(x) * pixel_bytes;
}

const std::uint8_t * bytes_at(const bitmap & image, int x, int y)
{
    return image.row(image.height() - 1 - y).data() + static_cast<std::ptrdiff_t>(x) * pixel_bytes;
}

/// Bytes from a row to the one below it as seen. Asking for each row anew would cost more than the pixels of
/// a strip one pixel wide.
std::ptrdiff_t step_down(const bitmap & image)
{
    return image.height() > 1 ? image.row(0).data() - image.row(1).data() : 0;
}

bool holds(const bitmap & image, const rectangle & area)
{
    return area.left < area.right && area.top < area.bottom && area.left >= 0 && area.top >= 0 &&
           area.right <= image.width() && area.bottom <= image.height();
}

}  // namespace

void fill_bounds(bitmap & target, const pixel_bounds & bounds, rgb_triple color)
{
    const int left = std::max(bounds.left, 0), right = std::min(bounds.right, target.width() - 1);
    const int high = std::min(bounds.high, target.height() - 1);
    for (int y = std::max(bounds.low, 0); y <= high && left <= right; ++y) {
        std::uint8_t * bytes = target.row(y).data() + static_cast<std::ptrdiff_t>(left) * pixel_bytes;
        for (int x = left; x <= right; ++x, bytes += pixel_bytes) {
            bytes[0] = color.blue;
            bytes[1] = color.green;
            bytes[2] = color.red;
        }
    }
}

void blend_rectangle(bitmap & target, const rectangle & area, rgb_triple color, int alpha)
{
    if (!holds(target, area))
        return;
    const std::ptrdiff_t step = step_down(target);
    std::uint8_t * line = bytes_at(target, area.left, area.top);
    for (int y = area.top; y < area.bottom; ++y, line += step) {
        std::uint8_t * bytes = line;
        for (int x = area.left; x < area.right; ++x, bytes += pixel_bytes) {
            bytes[0] = blended(bytes[0], color.blue, alpha);
            bytes[1] = blended(bytes[1], color.green, alpha);
            bytes[2] = blended(bytes[2], color.red, alpha);
        }
    }
}

void paste_rectangle(bitmap & target, const bitmap & source, rectangle part, int left, int top, int alpha)
{
    if (part.right < part.left)
        std::swap(part.left, part.right);
    if (part.bottom < part.top)
        std::swap(part.top, part.bottom);
    const int width = part.right - part.left, height = part.bottom - part.top;
    if (!holds(source, part) || !holds(target, {left, top, left + width, top + height}))
        return;
    const std::ptrdiff_t step_above = step_down(source), step_below = step_down(target);
    const std::uint8_t * above = bytes_at(source, part.left, part.top);
    std::uint8_t * below = bytes_at(target, left, top);
    const std::ptrdiff_t count = static_cast<std::ptrdiff_t>(width) * pixel_bytes;
    for (int y = 0; y < height; ++y, above += step_above, below += step_below) {
        if (alpha == plain_copy)
            std::memcpy(below, above, static_cast<std::size_t>(count));
        else
            for (std::ptrdiff_t i = 0; i < count; ++i)
                below[i] = blended(below[i], above[i], alpha);
    }
}
