#pragma once

#include <algorithm>

/// Colours as three real numbers, and how they mix.

struct colour {
    float r = 0, g = 0, b = 0;  ///< 0 to 1; light may exceed 1 until it is put into a picture
};

inline colour operator+(colour a, colour b)
{
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
inline colour operator*(colour a, float k)
{
    return {a.r * k, a.g * k, a.b * k};
}
inline colour operator*(colour a, colour b)
{
    return {a.r * b.r, a.g * b.g, a.b * b.b};
}

/// A colour written as 0xRRGGBB.
constexpr colour hex(unsigned rgb)
{
    return {static_cast<float>(rgb >> 16 & 255U) / 255, static_cast<float>(rgb >> 8 & 255U) / 255,
            static_cast<float>(rgb & 255U) / 255};
}

inline float clamped(float t)
{
    return std::clamp(t, 0.0F, 1.0F);
}

/// `a` at 0, `b` at 1, and nothing beyond.
inline colour mix(colour a, colour b, float t)
{
    return a * (1 - clamped(t)) + b * clamped(t);
}

/// A smooth rise from 0 at `low` to 1 at `high`; falls when they are swapped.
inline float rise(float low, float high, float value)
{
    const float t = clamped((value - low) / (high - low));
    return t * t * (3 - 2 * t);
}
