#include "noise.h"

namespace {

std::uint32_t scrambled(std::uint32_t value)
{
    value = (value ^ (value >> 16)) * 0x7feb352dU;
    value = (value ^ (value >> 15)) * 0x846ca68bU;
    return value ^ (value >> 16);
}

/// The whole number below, without the call that std::floor is on a plain x86-64: most of the time goes here.
int below(float value)
{
    const int whole = static_cast<int>(value);
    return static_cast<float>(whole) > value ? whole - 1 : whole;
}

float unit(std::uint32_t value)
{
    return static_cast<float>(value >> 8) / 16777216.0F;
}

}  // namespace

float hashed(int x, int y, unsigned seed)
{
    const auto mixed =
        static_cast<std::uint32_t>(x) * 0x9e3779b1U ^ static_cast<std::uint32_t>(y) * 0x85ebca77U;
    return unit(scrambled(mixed + seed * 0xc2b2ae3dU));
}

float value_noise(float x, float y, unsigned seed)
{
    const int column = below(x), row = below(y);
    float across = x - static_cast<float>(column), down = y - static_cast<float>(row);
    across = across * across * (3 - 2 * across);
    down = down * down * (3 - 2 * down);
    const float upper = hashed(column, row, seed) * (1 - across) + hashed(column + 1, row, seed) * across;
    const float lower =
        hashed(column, row + 1, seed) * (1 - across) + hashed(column + 1, row + 1, seed) * across;
    return upper * (1 - down) + lower * down;
}

float cloudy(float x, float y, int octaves, unsigned seed)
{
    float sum = 0, weight = 0.5F, total = 0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * value_noise(x, y, seed + static_cast<unsigned>(octave));
        total += weight;
        weight *= 0.5F;
        // Turned a little from octave to octave, so that the squares of the noise don't line up.
        const float turned = 1.6F * x + 1.2F * y;
        y = -1.2F * x + 1.6F * y;
        x = turned;
    }
    return sum / total;
}

float dice::next()
{
    state = state * 1664525U + 1013904223U;
    return unit(scrambled(state));
}
