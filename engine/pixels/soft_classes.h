#pragma once

#include <algorithm>

/// How wide the edge of a soft photo fades out, by the smaller of its sides in pixels.
struct soft_class {
    int feather = 0;  ///< pixels
    double step = 0;  ///< alpha that each pixel outwards loses
    bool operator==(const soft_class &) const = default;
};

constexpr soft_class soft_class_of(int smaller_side)
{
    if (smaller_side < 120)
        return {.feather = 5, .step = 50.0};
    if (smaller_side < 200)
        return {.feather = 17, .step = 15.0};
    if (smaller_side < 270)
        return {.feather = 50, .step = 5.1};
    return {.feather = 80, .step = 3.2};
}
