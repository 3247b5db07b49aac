#include "engine/pixels/marked_picture.h"

#include <algorithm>

namespace {

constexpr std::ptrdiff_t pixel_size = sizeof(pixel);

marked_pixel mark_at(const marked_picture & picture, int x, int y)
{
    if (picture.marks == nullptr)
        return static_cast<marked_pixel>(full_mark) << 24;
    const rgb_triple color =
        pixel_at(*picture.marks, x - picture.marked.left, y - picture.marked.low).value_or(rgb_triple{});
    const int level = std::max({color.red, color.green, color.blue});
    return static_cast<marked_pixel>(level * 255 / 256) << 24;
}

marked_pixel unmarked(pixel color)
{
    return color.blue | static_cast<marked_pixel>(color.green) << 8 |
           static_cast<marked_pixel>(color.red) << 16;
}

/// The steps of one coordinate that fall into `low` to `high`, exclusive.
column_span steps_inside(int start, int step, int count, int low, int high)
{
    if (step == 0)
        return {.first = 0, .last = low <= start && start < high ? count : 0};
    const int first = step > 0 ? low - start : start - (high - 1);
    return {.first = std::max(first, 0), .last = std::min(first + high - low, count)};
}

column_span steps_inside(const pixel_walk & walk, const pixel_window & window)
{
    const column_span across = steps_inside(walk.x, walk.step_x, walk.count, window.left, window.right);
    const column_span along = steps_inside(walk.y, walk.step_y, walk.count, window.low, window.high);
    return {.first = std::max(across.first, along.first), .last = std::min(across.last, along.last)};
}

}  // namespace

void read_walk(const marked_picture & picture, const pixel_walk & walk, marked_pixel * into)
{
    std::fill_n(into, walk.count, 0);
    const pixel_window whole{.left = 0, .low = 0, .right = picture.size.width, .high = picture.size.height};
    const bitmap & part = *picture.part;
    const pixel_window here{.left = picture.left,
                            .low = picture.low,
                            .right = picture.left + part.width(),
                            .high = picture.low + part.height()};
    const column_span known = steps_inside(walk, common(whole, here));
    if (known.first < known.last) {
        const int x = walk.x + known.first * walk.step_x, y = walk.y + known.first * walk.step_y;
        // A row may end in bytes that are no pixel: along a column the step is in bytes.
        const std::uint8_t * bytes =
            channels(part.row(y - picture.low)).data() + (x - picture.left) * pixel_size;
        const std::ptrdiff_t pitch =
            part.height() > 1 ? channels(part.row(1)).data() - channels(part.row(0)).data() : 0;
        const std::ptrdiff_t step = walk.step_x * pixel_size + walk.step_y * pitch;
        for (int i = known.first; i < known.last; ++i)
            into[i] = unmarked(*reinterpret_cast<const pixel *>(bytes + (i - known.first) * step));
    }
    const column_span marked = steps_inside(walk, common(whole, picture.marked));
    for (int i = marked.first; i < marked.last; ++i)
        into[i] |= mark_at(picture, walk.x + i * walk.step_x, walk.y + i * walk.step_y);
}
