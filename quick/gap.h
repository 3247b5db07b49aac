#pragma once

#include <algorithm>

/// The gap that is kept free between photos gives way where nothing would be left of them.

/// The largest of `gaps` equal gaps that together leave a quarter of `room` to the photos, which is 0 or
/// more.
constexpr int widest_gap(int room, int gaps)
{
    return std::max(room, 0) * 3 / 4 / std::max(gaps, 1);
}
