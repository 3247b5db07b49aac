#pragma once

#include "canvas.h"

#include <vector>

/// Shapes with soft edges. Sizes are in heights of the picture; `soft` is how far an edge fades.

inline constexpr float crisp = 0.0015F;

/// 1 inside, 0 outside a border at distance 0 (negative inside).
inline float inside(float distance, float soft)
{
    return rise(soft, -soft, distance);
}

/// Fills where `distance(point)` is negative with `shade(point) -> colour`.
template <typename Distance, typename Shade>
void fill(canvas & photo, area where, Distance distance, Shade shade, float soft = crisp)
{
    photo.lay(where, [&](point p) {
        const float cover = inside(distance(p), soft);
        return cover > 0 ? ink{shade(p), cover} : ink{{}, 0};
    });
}

/// Distance to a thick line that goes from radius `ra` at `a` to `rb` at `b`.
inline float to_limb(point p, point a, point b, float ra, float rb)
{
    const point along = b - a, from = p - a;
    const float t = clamped((from.x * along.x + from.y * along.y) /
                            std::max(1e-9F, along.x * along.x + along.y * along.y));
    return length(from - along * t) - (ra + (rb - ra) * t);
}

/// About the distance to an ellipse, right at its border.
inline float to_ellipse(point p, point middle, float across, float down, float turn = 0)
{
    const point d = p - middle;
    const float c = std::cos(turn), s = std::sin(turn);
    const point local{(d.x * c + d.y * s) / across, (d.y * c - d.x * s) / down};
    return (length(local) - 1) * std::min(across, down);
}

void disc(canvas & photo, point middle, float radius, colour color, float cover = 1, float soft = crisp);
void oval(canvas & photo, point middle, float across, float down, colour color, float cover = 1,
          float soft = crisp, float turn = 0);
void limb(canvas & photo, point a, point b, float ra, float rb, colour color, float cover = 1,
          float soft = crisp);
void box(canvas & photo, area where, colour color, float cover = 1, float soft = crisp);
/// A closed outline of straight edges.
void polygon(canvas & photo, const std::vector<point> & corners, colour color, float cover = 1,
             float soft = crisp);

/// Light that falls off from its middle.
void glow(canvas & photo, point middle, float radius, colour light);

/// A light out of focus: an even disc, brighter at its rim.
void bokeh(canvas & photo, point middle, float radius, colour light, float strength);
