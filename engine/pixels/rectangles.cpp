#include "engine/pixels/rectangles.h"

#include <algorithm>
#include <cstddef>

namespace {

/// The pixels of a part of a row, which counts from the top.
std::span<pixel> part_of_row(bitmap & image, const rectangle & part, int y)
{
    return image.row(image.height() - 1 - y)
        .subspan(static_cast<std::size_t>(part.left), static_cast<std::size_t>(part.width));
}

std::span<const pixel> part_of_row(const bitmap & image, const rectangle & part, int y)
{
    return image.row(image.height() - 1 - y)
        .subspan(static_cast<std::size_t>(part.left), static_cast<std::size_t>(part.width));
}

/// The same rectangle with its sides in order.
rectangle ordered(const rectangle & area)
{
    return rectangle_between(std::min(area.left, area.right()), std::min(area.top, area.bottom()),
                             std::max(area.left, area.right()), std::max(area.top, area.bottom()));
}

}  // namespace

bool are_same(const bitmap & one, const bitmap & other)
{
    if (one.width() != other.width() || one.height() != other.height())
        return false;
    for (int y = 0; y < one.height(); ++y)
        if (!std::ranges::equal(channels(one.row(y)), channels(other.row(y))))
            return false;
    return true;
}

bool holds(const bitmap & image, const rectangle & area)
{
    return area.width > 0 && area.height > 0 && area.left >= 0 && area.top >= 0 &&
           area.right() <= image.width() && area.bottom() <= image.height();
}

void fill_bounds(bitmap & target, const pixel_bounds & bounds, rgb_triple color)
{
    const int left = std::max(bounds.left, 0), right = std::min(bounds.right, target.width() - 1);
    const int high = std::min(bounds.high, target.height() - 1);
    for (int y = std::max(bounds.low, 0); y <= high && left <= right; ++y)
        std::ranges::fill(
            target.row(y).subspan(static_cast<std::size_t>(left), static_cast<std::size_t>(right + 1 - left)),
            pixel(color));
}

void blend_rectangle(bitmap & target, const rectangle & area, rgb_triple color, int alpha)
{
    if (!holds(target, area))
        return;
    for (int y = area.top; y < area.bottom(); ++y)
        for (pixel & each : part_of_row(target, area, y)) {
            each.blue = blended(each.blue, color.blue, alpha);
            each.green = blended(each.green, color.green, alpha);
            each.red = blended(each.red, color.red, alpha);
        }
}

void paste_rectangle(bitmap & target, const bitmap & source, rectangle part, position at, int alpha)
{
    part = ordered(part);
    const rectangle place{.left = at.left, .top = at.top, .width = part.width, .height = part.height};
    if (!holds(source, part) || !holds(target, place))
        return;
    for (int y = 0; y < part.height; ++y) {
        const std::span<const std::uint8_t> above = channels(part_of_row(source, part, part.top + y));
        const std::span<std::uint8_t> below = channels(part_of_row(target, place, place.top + y));
        if (alpha == plain_copy)
            std::ranges::copy(above, below.begin());
        else
            std::ranges::transform(
                below, above, below.begin(),
                [alpha](std::uint8_t lower, std::uint8_t upper) { return blended(lower, upper, alpha); });
    }
}

void paste_weighed(bitmap & target, const bitmap & source, position at, int alpha)
{
    paste_rectangle(target, source, {.left = 0, .top = 0, .width = source.width(), .height = source.height()},
                    at, alpha);
}
