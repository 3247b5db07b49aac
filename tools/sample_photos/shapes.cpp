#include "shapes.h"

namespace {

area around(point middle, float reach)
{
    return {middle.x - reach, middle.y - reach, middle.x + reach, middle.y + reach};
}

area around(const std::vector<point> & corners, float more)
{
    area found{1e9F, 1e9F, -1e9F, -1e9F};
    for (const point & corner : corners) {
        found = {std::min(found.left, corner.x - more), std::min(found.top, corner.y - more),
                 std::max(found.right, corner.x + more), std::max(found.bottom, corner.y + more)};
    }
    return found;
}

float to_polygon(point p, const std::vector<point> & corners)
{
    float nearest = 1e9F;
    bool within = false;
    for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++) {
        const point a = corners[before], b = corners[i];
        nearest = std::min(nearest, to_limb(p, a, b, 0, 0));
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            within = !within;
    }
    return within ? -nearest : nearest;
}

}  // namespace

void disc(canvas & photo, point middle, float radius, colour color, float cover, float soft)
{
    photo.lay(around(middle, radius + soft), [&](point p) {
        return ink{color, cover * inside(length(p - middle) - radius, soft)};
    });
}

void oval(canvas & photo, point middle, float across, float down, colour color, float cover, float soft,
          float turn)
{
    photo.lay(around(middle, std::max(across, down) + soft * 3), [&](point p) {
        return ink{color, cover * inside(to_ellipse(p, middle, across, down, turn), soft)};
    });
}

void limb(canvas & photo, point a, point b, float ra, float rb, colour color, float cover, float soft)
{
    photo.lay(around({a, b}, std::max(ra, rb) + soft), [&](point p) {
        return ink{color, cover * inside(to_limb(p, a, b, ra, rb), soft)};
    });
}

void box(canvas & photo, area where, colour color, float cover, float soft)
{
    const area wider{where.left - soft, where.top - soft, where.right + soft, where.bottom + soft};
    photo.lay(wider, [&](point p) {
        const float distance =
            std::max({where.left - p.x, p.x - where.right, where.top - p.y, p.y - where.bottom});
        return ink{color, cover * inside(distance, soft)};
    });
}

void polygon(canvas & photo, const std::vector<point> & corners, colour color, float cover, float soft)
{
    photo.lay(around(corners, soft), [&](point p) {
        return ink{color, cover * inside(to_polygon(p, corners), soft)};
    });
}

void glow(canvas & photo, point middle, float radius, colour light)
{
    photo.add(around(middle, radius), [&](point p) {
        const float near = clamped(1 - length(p - middle) / radius);
        return light * (near * near * near);
    });
}

void bokeh(canvas & photo, point middle, float radius, colour light, float strength)
{
    photo.add(around(middle, radius * 1.1F), [&](point p) {
        const float distance = length(p - middle);
        const float even = inside(distance - radius, radius * 0.06F);
        return light * (strength * even * (0.75F + 0.45F * rise(0.6F, 1.0F, distance / radius)));
    });
}
