#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Chance that is the same on each run.

/// The parts of noise, here so that what is drawn of millions of pixels makes no call for each.
namespace noise {

inline std::uint32_t scrambled(std::uint32_t value)
{
    value = (value ^ (value >> 16)) * 0x7feb352dU;
    value = (value ^ (value >> 15)) * 0x846ca68bU;
    return value ^ (value >> 16);
}

/// The whole number below, without the call that std::floor is on a plain x86-64: most of the time goes here.
inline int below(float value)
{
    const int whole = static_cast<int>(value);
    return whole - static_cast<int>(static_cast<float>(whole) > value);
}

inline float unit(std::uint32_t value)
{
    return static_cast<float>(static_cast<std::int32_t>(value >> 8)) / 16777216.0F;
}

}  // namespace noise

/// A number from 0 to 1 that belongs to a whole-numbered place.
inline float hashed(int x, int y, unsigned seed)
{
    const auto mixed =
        static_cast<std::uint32_t>(x) * 0x9e3779b1U ^ static_cast<std::uint32_t>(y) * 0x85ebca77U;
    return noise::unit(noise::scrambled(mixed + seed * 0xc2b2ae3dU));
}

/// Smooth noise, 0 to 1, with features about 1 wide.
inline float value_noise(float x, float y, unsigned seed)
{
    const int column = noise::below(x), row = noise::below(y);
    float across = x - static_cast<float>(column), down = y - static_cast<float>(row);
    across = across * across * (3 - 2 * across);
    down = down * down * (3 - 2 * down);
    const float upper = hashed(column, row, seed) * (1 - across) + hashed(column + 1, row, seed) * across;
    const float lower =
        hashed(column, row + 1, seed) * (1 - across) + hashed(column + 1, row + 1, seed) * across;
    return upper * (1 - down) + lower * down;
}

/// Several octaves of it, 0 to 1.
float cloudy(float x, float y, int octaves, unsigned seed);

/// So many places are looked at together: a processor with wide registers takes several of them in one step.
constexpr std::size_t together = 256;
using many = std::array<float, together>;

/// The noise at many places, of one seed or each of its own, and the hashed numbers of a row of them: the
/// same as one by one.
using many_seeds = std::array<unsigned, together>;
void value_noise(const many & x, const many & y, unsigned seed, many & found);
void value_noise(const many & x, const many & y, const many_seeds & seeds, unsigned more, many & found);
void cloudy(many x, many y, int octaves, unsigned seed, many & found);
void hashed_from(int x, int y, unsigned seed, many & found);

/// The whole numbers from x on, and one number for each.
inline many counted(int x)
{
    many found{};
    for (std::size_t at = 0; at < together; ++at)
        found[at] = static_cast<float>(x + static_cast<int>(at));
    return found;
}
inline many same(float value)
{
    many found{};
    found.fill(value);
    return found;
}
inline many times(const many & values, float by)
{
    many found{};
    for (std::size_t at = 0; at < together; ++at)
        found[at] = values[at] * by;
    return found;
}
inline many divided(const many & values, float by)
{
    many found{};
    for (std::size_t at = 0; at < together; ++at)
        found[at] = values[at] / by;
    return found;
}

/// A stream of numbers.
class dice {
public:
    explicit dice(unsigned seed) : state(seed * 747796405U + 2891336453U) {}
    float next();  ///< 0 to 1
    float between(float low, float high) { return low + (high - low) * next(); }
    int whole(int count) { return static_cast<int>(next() * static_cast<float>(count)) % count; }

private:
    std::uint32_t state;
};
