#include "engine/pixels/scaling_weights.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace {

double tent(double distance)
{
    distance = std::abs(distance);
    return distance < 1 ? 1 - distance : 0;
}

// The library weighs pixels before it knows that they count for nothing, and drops those at the right alone:
// one at the left stays with its weight of 0, which changes no sum.
int weigh(std::span<double> into, int first, double center, double slope)
{
    double total = 0;
    for (std::size_t i = 0; i < into.size(); ++i) {
        const double weight =
            slope * tent(slope * (static_cast<double>(first) + static_cast<double>(i) + 0.5 - center));
        into[i] = weight;
        total += weight;
    }
    if (total > 0 && total != 1)
        for (double & weight : into)
            weight /= total;
    std::size_t count = into.size();
    while (count > 0 && into[count - 1] == 0)
        --count;
    return static_cast<int>(count);
}

}  // namespace

scaling_weights::scaling_weights(int source, int target)
{
    assert(source > 0 && target > 0);
    const double scale = static_cast<double>(target) / static_cast<double>(source);
    const double slope = scale < 1 ? scale : 1;
    const double reach = scale < 1 ? 1 / scale : 1;
    const double offset = 0.5 / scale;
    room = 2 * static_cast<int>(std::ceil(reach)) + 1;
    windows.resize(static_cast<std::size_t>(target));
    weights.resize(static_cast<std::size_t>(target) * static_cast<std::size_t>(room));
    identity = source == target;
    for (int i = 0; i < target; ++i) {
        const double center = static_cast<double>(i) / scale + offset;
        const int first = std::max(0, static_cast<int>(center - reach + 0.5));
        const int end = std::min(static_cast<int>(center + reach + 0.5), source);
        const std::size_t start = static_cast<std::size_t>(i) * static_cast<std::size_t>(room);
        const int count = weigh({weights.data() + start, static_cast<std::size_t>(std::max(end - first, 0))},
                                first, center, slope);
        windows[static_cast<std::size_t>(i)] = {.first = first, .count = count};
        most = std::max(most, count);
    }
}

scaling_window scaling_weights::operator[](int index) const
{
    const std::size_t at = static_cast<std::size_t>(index);
    return {.first = windows[at].first,
            .weights = {weights.data() + at * static_cast<std::size_t>(room),
                        static_cast<std::size_t>(windows[at].count)}};
}
