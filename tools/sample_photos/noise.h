#pragma once

#include <cstdint>

/// Chance that is the same on each run.

/// A number from 0 to 1 that belongs to a whole-numbered place.
float hashed(int x, int y, unsigned seed);

/// Smooth noise, 0 to 1, with features about 1 wide.
float value_noise(float x, float y, unsigned seed);

/// Several octaves of it, 0 to 1.
float cloudy(float x, float y, int octaves, unsigned seed);

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
