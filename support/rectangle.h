#pragma once

/// A rectangle of pixels of a bitmap or a poster: x to the right, y down from the top.
struct rectangle {
    int left = 0, top = 0, width = 0, height = 0;

    /// The column and the row behind the last.
    constexpr int right() const { return left + width; }
    constexpr int bottom() const { return top + height; }
    bool operator==(const rectangle &) const = default;
};

constexpr rectangle rectangle_between(int left, int top, int right, int bottom)
{
    return {.left = left, .top = top, .width = right - left, .height = bottom - top};
}

/// The rectangle with so many pixels more on each side.
constexpr rectangle grown(const rectangle & area, int by)
{
    return {.left = area.left - by,
            .top = area.top - by,
            .width = area.width + 2 * by,
            .height = area.height + 2 * by};
}

/// The same rectangle where each pixel has become that many, in each direction.
constexpr rectangle enlarged(const rectangle & area, int scale)
{
    return {.left = area.left * scale,
            .top = area.top * scale,
            .width = area.width * scale,
            .height = area.height * scale};
}

/// Where something's upper left pixel comes to lie.
struct position {
    int left = 0, top = 0;
};
