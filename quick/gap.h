#pragma once

#include <algorithm>

/// The gap that is kept free between photos gives way where nothing would be seen of them; as long as each
/// photo shows, in the preview too, it is as asked.

constexpr int least_seen = 10;  ///< pixels of the poster: one and a half in the preview

/// The largest of `gaps` equal gaps that together leave a quarter of `room` to the photos, which is 0 or
/// more.
constexpr int widest_gap(int room, int gaps)
{
    return std::max(room, 0) * 3 / 4 / std::max(gaps, 1);
}

/// The gap on both sides of a photo in `room`.
constexpr int gap_beside(int gap, int room)
{
    return room - 2 * gap >= least_seen ? gap : std::min(gap, widest_gap(room, 2));
}
