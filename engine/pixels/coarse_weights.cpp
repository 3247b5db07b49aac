#include "engine/pixels/coarse_weights.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// 255 times 2 to this power has to fit into 32 bits, with room for a half and a doubt.
constexpr int most_bits = 22;

constexpr double largest_byte = 255;

int bits_for(const scaling_window & window)
{
    const double largest = std::ranges::max(window.weights);
    int bits = most_bits;
    while (bits > 0 && std::ldexp(largest, bits) + 1 > std::numeric_limits<std::int16_t>::max())
        --bits;
    return bits;
}

}  // namespace

coarse_weights::coarse_weights(const scaling_weights & exact)
{
    for (int i = 0; i < exact.size(); ++i)
        add(exact[i]);
}

void coarse_weights::add(const scaling_window & window)
{
    const int bits = bits_for(window);
    const std::size_t start = weights.size();
    double above = 0, below = 0;
    for (const double weight : window.weights) {
        const double scaled = std::ldexp(weight, bits), kept = std::nearbyint(scaled);
        (kept > scaled ? above : below) += std::abs(kept - scaled);
        weights.push_back(static_cast<std::int16_t>(kept));
    }
    while (weights.size() % group != 0)
        weights.push_back(0);
    // Where nothing was rounded, no sum of doubles is either: the two agree even at the half. Otherwise one
    // part more covers by far what a sum of doubles loses.
    const double error = std::max(above, below) * largest_byte;
    const int doubt = error > 0 ? static_cast<int>(std::min<double>(std::ceil(error) + 1, 1 << bits)) : 0;
    windows.push_back({.first = window.first,
                       .bits = bits,
                       .doubt = doubt,
                       .start = start,
                       .count = weights.size() - start});
}

coarse_window coarse_weights::operator[](int index) const
{
    const part & found = windows[static_cast<std::size_t>(index)];
    return {.first = found.first,
            .weights = {weights.data() + found.start, found.count},
            .bits = found.bits,
            .doubt = found.doubt};
}
