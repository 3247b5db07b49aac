#pragma once

#include "support/MFreeImage.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

/// The parts of a mask as the drawing of shapes tells them: beside the two keys, what is like the ground,
/// what is dark, and what lies between.

enum class part : std::uint8_t { ground, rim, inside, black_key, white_key };

inline part part_of(rgb_triple seen, rgb_triple ground)
{
    if (seen.red > 200 && seen.green < 80 && seen.blue > 200)
        return part::white_key;
    if (seen.red > 200 && seen.green > 200 && seen.blue < 80)
        return part::black_key;
    const auto near = [](int one, int other) { return std::abs(one - other) <= 110; };
    if (near(seen.red, ground.red) && near(seen.green, ground.green) && near(seen.blue, ground.blue))
        return part::ground;
    return std::min({seen.red, seen.green, seen.blue}) <= 40 ? part::inside : part::rim;
}

/// All parts of a mask, row by row from the bottom.
inline std::vector<part> parts_of(const bitmap & mask)
{
    std::vector<part> parts;
    const rgb_triple ground(mask.row(0).front());
    for (int y = 0; y < mask.height(); ++y)
        for (const pixel & seen : mask.row(y))
            parts.push_back(part_of(rgb_triple(seen), ground));
    return parts;
}
