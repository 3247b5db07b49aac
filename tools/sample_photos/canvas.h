#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

/// The light-sensitive side of the sample photos: a field of colours, and what a camera does to it.
///
/// Places are given in heights of the picture: y runs from 0 at the top to 1 at the bottom, x from 0 to
/// `aspect`.

struct colour {
    float r = 0, g = 0, b = 0;  ///< 0 to 1; light may exceed 1 until the photo is developed
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

struct point {
    float x = 0, y = 0;
};

inline point operator+(point a, point b)
{
    return {a.x + b.x, a.y + b.y};
}
inline point operator-(point a, point b)
{
    return {a.x - b.x, a.y - b.y};
}
inline point operator*(point a, float k)
{
    return {a.x * k, a.y * k};
}
inline float length(point a)
{
    return std::hypot(a.x, a.y);
}

/// A colour and how much of what lies below it covers, 0 to 1.
struct ink {
    colour color;
    float cover = 1;
};

struct area {
    float left = 0, top = 0, right = 100, bottom = 1;
};

class canvas {
public:
    canvas(int width, int height);

    int width() const { return across; }
    int height() const { return down; }
    float aspect() const { return static_cast<float>(across) / static_cast<float>(down); }
    colour & at(int x, int y)
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(across) +
                      static_cast<std::size_t>(x)];
    }
    const colour & at(int x, int y) const { return const_cast<canvas *>(this)->at(x, y); }
    /// The colour at a place, the nearest one outside.
    colour seen(point place) const;

    /// Lays `shade(point) -> ink` over the pixels of an area.
    template <typename Shade>
    void lay(area where, Shade shade)
    {
        walk(where, [&shade](colour & below, point here) {
            const ink drop = shade(here);
            if (drop.cover > 0)
                below = mix(below, drop.color, drop.cover);
        });
    }

    /// Adds `light(point) -> colour` to the pixels of an area.
    template <typename Light>
    void add(area where, Light light)
    {
        walk(where, [&light](colour & below, point here) { below = below + light(here); });
    }

private:
    /// Hands each pixel of an area to `step(colour &, point)`, with its middle.
    template <typename Step>
    void walk(area where, Step step)
    {
        const float scale = static_cast<float>(down);
        const int left = std::max(0, static_cast<int>(where.left * scale));
        const int right = std::min(across, static_cast<int>(where.right * scale) + 2);
        const int top = std::max(0, static_cast<int>(where.top * scale));
        const int bottom = std::min(down, static_cast<int>(where.bottom * scale) + 2);
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                step(at(x, y),
                     point{(static_cast<float>(x) + 0.5F) / scale, (static_cast<float>(y) + 0.5F) / scale});
    }

    int across, down;
    std::vector<colour> pixels;
};

/// Puts the whole picture out of focus; `radius` in heights.
void soften(canvas & photo, float radius);

/// Out of focus as `blur(point) -> 0 to 1` says.
template <typename Blur>
void soften_where(canvas & photo, float radius, Blur blur)
{
    canvas soft = photo;
    soften(soft, radius);
    photo.lay({}, [&](point p) { return ink{soft.seen(p), clamped(blur(p))}; });
}

/// What the lens and the film add: light that spills from bright spots, dark corners, contrast, grain.
struct film {
    float bloom = 0.25F;
    float vignette = 0.35F;
    float contrast = 0.25F;
    float grain = 0.018F;
    colour tint{1, 1, 1};
    unsigned seed = 1;
};

void develop(canvas & photo, const film & roll);
