#pragma once

#include <algorithm>

/// The gap that is kept free between photos gives way where nothing would be left of them; as long as a pixel
/// of each is left it is as asked.

/// The largest of `gaps` equal gaps that together leave a quarter of `room` to the photos, which is 0 or
/// more.
constexpr int widest_gap(int room, int gaps)
{
    return std::max(room, 0) * 3 / 4 / std::max(gaps, 1);
}

/// The gap on both sides of a photo in `room`.
constexpr int gap_beside(int gap, int room)
{
    return room - 2 * gap >= 1 ? gap : std::min(gap, widest_gap(room, 2));
}
