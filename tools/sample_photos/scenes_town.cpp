#include "scenes_town.h"

#include "nature.h"
#include "noise.h"

namespace {

/// A tower block with some of its windows lit.
void block(canvas & photo, float left, float width, float top, float foot, colour wall, float window,
           unsigned seed)
{
    const float pitch = window * 1.9F, storey = window * 2.1F;
    photo.lay({left, top, left + width, foot}, [=](point p) {
        if (p.x < left || p.x > left + width || p.y < top)
            return ink{{}, 0};
        const float across = (p.x - left) / pitch, down = (p.y - top) / storey;
        const int column = static_cast<int>(across), floor = static_cast<int>(down);
        const float in_x = across - static_cast<float>(column), in_y = down - static_cast<float>(floor);
        const bool pane = in_x > 0.25F && in_x < 0.8F && in_y > 0.3F && in_y < 0.8F && floor > 0;
        const float luck = hashed(column, floor, seed) * 0.75F + hashed(column / 3, floor, seed + 1) * 0.25F;
        const colour light = mix(hex(0xff9d4a), hex(0xfff0c8), hashed(column, floor, seed + 2));
        const colour face = wall * (0.75F + 0.5F * (p.x - left) / width + 0.3F * (p.y - top) / (foot - top));
        return ink{pane && luck > 0.52F ? light * (0.5F + luck * 0.8F) : (pane ? face * 0.7F : face)};
    });
}

}  // namespace

void city_at_night(canvas & photo)
{
    const float shore = 0.66F;
    sky(photo, hex(0x060a1c), hex(0x1a2148), hex(0x6b4a5a), shore);
    clouds(photo, shore,
           {.amount = 0.42F, .size = 2.2F, .lit = hex(0x5c4658), .shaded = hex(0x1a1c38), .seed = 181});
    dice chance(53);
    for (int layer = 0; layer < 3; ++layer) {
        const float l = static_cast<float>(layer);
        for (float x = -0.05F; x < 1.55F;) {
            const float width = chance.between(0.05F, 0.11F) * (0.75F + 0.2F * l);
            const float middle = 1 - std::abs(x - 0.8F) / 0.95F;
            const float height = chance.between(0.09F, 0.24F) + 0.25F * middle * chance.next() - 0.03F * l;
            block(photo, x, width, shore - height, shore, mix(hex(0x2c2f52), hex(0x0c0f1f), l / 2),
                  0.0042F + 0.0012F * l,
                  600U + static_cast<unsigned>(x * 1000) + static_cast<unsigned>(layer));
            if (chance.next() > 0.7F)
                limb(photo, {x + width / 2, shore - height - 0.06F}, {x + width / 2, shore - height}, 0.0012F,
                     0.002F, hex(0x20223a));
            x += width + chance.between(-0.004F, 0.02F);
        }
    }
    for (int lamp = 0; lamp < 46; ++lamp) {
        const point at{chance.between(0, 1.5F), shore - 0.004F};
        glow(photo, at, 0.03F, mix(hex(0xffb060), hex(0xfff2d8), chance.next()) * 0.8F);
    }
    water(photo, {.top = shore,
                  .tint = {0.85F, 0.8F, 0.85F},
                  .ripple = 0.075F,
                  .mirror = 0.95F,
                  .depth = hex(0x060914),
                  .seed = 183});
    develop(photo, {.bloom = 0.7F, .vignette = 0.3F, .contrast = 0.2F, .grain = 0.03F, .seed = 4});
}

namespace {

/// The houses of the street, dark at both sides, some windows lit.
void houses(canvas & photo)
{
    for (const float side : {0.0F, 1.0F}) {
        const auto x = [&](float at) { return side > 0 ? 0.667F - at : at; };
        polygon(photo, {{x(-0.02F), -0.05F}, {x(0.2F), 0.2F}, {x(0.245F), 0.6F}, {x(-0.02F), 0.8F}},
                hex(0x14121a), 0.94F, 0.006F);
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 3; ++column) {
                const float left = 0.02F + 0.06F * static_cast<float>(column),
                            top = 0.16F + 0.1F * static_cast<float>(row) + 0.02F * static_cast<float>(column);
                if (hashed(row, column, side > 0 ? 7U : 9U) > 0.55F)
                    polygon(photo,
                            {{x(left), top},
                             {x(left + 0.03F), top + 0.012F},
                             {x(left + 0.03F), top + 0.055F},
                             {x(left), top + 0.05F}},
                            hex(0xf0b060), 0.85F, 0.004F);
            }
        }
    }
}

/// Lamps at both sides, smaller and smaller.
void lamps(canvas & photo)
{
    for (int lamp = 0; lamp < 4; ++lamp) {
        const float near = 1 - static_cast<float>(lamp) * 0.24F, side = lamp % 2 ? 1.0F : -1.0F;
        const point foot{0.333F + side * 0.25F * near, 0.62F + 0.24F * near * near};
        const float height = 0.62F * near;
        limb(photo, foot, foot + point{0, -height}, 0.007F * near, 0.004F * near, hex(0x0b0a0d));
        limb(photo, foot + point{0, -height}, foot + point{-side * 0.05F * near, -height - 0.012F},
             0.004F * near, 0.004F * near, hex(0x0b0a0d));
        glow(photo, foot + point{-side * 0.05F * near, -height + 0.005F}, 0.16F * near, hex(0xffc070) * 0.9F);
        disc(photo, foot + point{-side * 0.05F * near, -height + 0.004F}, 0.014F * near, hex(0xfff6dc), 1,
             0.006F);
    }
}

/// An umbrella over whoever walks there.
void umbrella(canvas & photo)
{
    fill(
        photo, {0.2F, 0.4F, 0.55F, 0.62F},
        [](point p) {
            return std::max(to_ellipse(p, {0.375F, 0.578F}, 0.1F, 0.075F), p.y - 0.578F);
        },
        [](point p) { return mix(hex(0xc02a2a), hex(0x4a0d12), (p.x - 0.28F) / 0.2F); }, 0.003F);
    limb(photo, {0.375F, 0.52F}, {0.4F, 0.72F}, 0.002F, 0.002F, hex(0x08080b));
}

}  // namespace

void street_lamps(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float glowing = rise(0.6F, 0, length({(p.x - 0.33F) * 1.2F, p.y - 0.5F}));
        return ink{mix(hex(0x10131f), hex(0x5b3d33), glowing) *
                   (0.85F + 0.3F * cloudy(p.x * 6, p.y * 6, 4, 191))};
    });
    dice chance(59);
    const colour lights[] = {hex(0xffb45a), hex(0xff7a3c), hex(0xffe2a8),
                             hex(0xff4a3a), hex(0x6aa8ff), hex(0x7de0a0)};
    for (int i = 0; i < 90; ++i) {
        const float near = chance.next();
        const float x = 0.33F + (chance.next() - 0.5F) * (0.12F + near * 0.75F);
        bokeh(photo, {x, 0.5F + chance.between(-0.16F, 0.09F) * (0.4F + near)}, 0.008F + 0.03F * near,
              lights[chance.whole(6)], chance.between(0.12F, 0.5F));
    }
    houses(photo);
    photo.lay({0, 0.6F, 100, 1}, [](point p) {
        return ink{mix(hex(0x2a2628), hex(0x0c0c11), (p.y - 0.6F) / 0.4F), rise(0.6F, 0.63F, p.y)};
    });
    water(photo, {.top = 0.62F,
                  .tint = {0.8F, 0.75F, 0.75F},
                  .ripple = 0.12F,
                  .mirror = 0.75F,
                  .depth = hex(0x0d0c10),
                  .seed = 193});
    lamps(photo);
    figure(photo, {0.37F, 0.84F}, 0.28F, pose::walking, hex(0x08080b), 0.003F);
    umbrella(photo);
    develop(photo, {.bloom = 0.6F, .vignette = 0.4F, .contrast = 0.2F, .grain = 0.03F, .seed = 14});
}

void car_lights(canvas & photo)
{
    const float horizon = 0.42F;
    sky(photo, hex(0x0f1a3f), hex(0x3a3a70), hex(0xd9805c), horizon);
    clouds(photo, horizon,
           {.amount = 0.45F, .size = 2, .lit = hex(0xd9856a), .shaded = hex(0x33305c), .seed = 201});
    dice chance(61);
    for (float x = -0.05F; x < 1.55F; x += 0.055F) {
        const float height = chance.between(0.03F, 0.13F) * (0.6F + std::abs(x - 0.75F));
        block(photo, x, 0.06F, horizon - height, horizon + 0.02F, hex(0x191b30), 0.0042F,
              700U + static_cast<unsigned>(x * 500 + 100));
    }
    photo.lay({0, horizon, 100, 1}, [&](point p) {
        const float near = (p.y - horizon) / (1 - horizon);
        const float grain = hashed(static_cast<int>(p.x * 1400), static_cast<int>(p.y * 1400), 6) - 0.5F;
        const float road = std::abs(p.x - 0.75F - 0.12F * near * near) - (0.02F + 0.95F * near);
        const colour tar = mix(hex(0x4a4048), hex(0x17171c), near) * (1 + 0.2F * grain);
        const colour verge =
            mix(hex(0x2b2b2c), hex(0x0d120d), near) * (0.7F + 0.7F * cloudy(p.x * 20, p.y * 40, 4, 203));
        return ink{mix(tar, verge, rise(-0.004F, 0.004F, road))};
    });
    const auto trail = [&](float lane, colour light, float strength, float lift) {
        photo.add({0, horizon, 100, 1}, [&](point p) {
            const float near = (p.y - horizon) / (1 - horizon);
            const float x = 0.75F + 0.12F * near * near + lane * (0.02F + 0.95F * near);
            const float off = std::abs(p.x - x - lift * near), thick = 0.0016F + 0.0045F * near;
            return light * (strength * (rise(thick, 0, off) + 0.25F * rise(thick * 7, 0, off)));
        });
    };
    for (int i = 0; i < 15; ++i)
        trail(-0.12F - 0.68F * chance.next(), mix(hex(0xfff0d0), hex(0xffd27a), chance.next()),
              chance.between(0.3F, 0.85F), 0);
    for (int i = 0; i < 15; ++i)
        trail(0.1F + 0.68F * chance.next(), mix(hex(0xff2a1a), hex(0xff6a2a), chance.next()),
              chance.between(0.3F, 0.85F), 0);
    for (int dash = 0; dash < 9; ++dash) {
        const float near = std::pow(static_cast<float>(dash) / 9, 2.0F),
                    next = std::pow((static_cast<float>(dash) + 0.5F) / 9, 2.0F);
        const auto at = [&](float n) { return point{0.75F + 0.12F * n * n, horizon + (1 - horizon) * n}; };
        limb(photo, at(near), at(next), 0.0015F + 0.006F * near, 0.0015F + 0.006F * next, hex(0xb8b4a8),
             0.7F);
    }
    develop(photo, {.bloom = 0.65F, .vignette = 0.4F, .grain = 0.026F, .seed = 19});
}

namespace {

void balloon(canvas & photo, point at, float size, colour one, colour two)
{
    fill(
        photo, {at.x - size, at.y - size, at.x + size, at.y + size * 1.4F},
        [&](point p) {
            const point d{(p.x - at.x) / size, (p.y - at.y) / size};
            const float narrow = d.y > 0 ? std::sqrt(std::max(0.0F, 1 - std::pow(d.y / 1.25F, 1.6F))) * 0.98F
                                         : std::sqrt(std::max(0.0F, 1 - d.y * d.y));
            return d.y > 1.17F || d.y < -1 ? size : (std::abs(d.x) - narrow) * size;
        },
        [&](point p) {
            const point d{(p.x - at.x) / size, (p.y - at.y) / size};
            const float bulge = std::max(0.12F, std::sqrt(std::max(0.0F, 1 - d.y * d.y * 0.62F)));
            const float around = std::asin(std::clamp(d.x / bulge, -1.0F, 1.0F));
            const int stripe = static_cast<int>(std::floor(around / 0.3925F + 10));
            const float light =
                0.62F + 0.5F * clamped(0.5F - d.x * 0.6F - d.y * 0.25F) + 0.1F * std::cos(around * 16);
            const bool belt = std::abs(d.y - 0.1F) < 0.13F;
            return (belt ? mix(one, hex(0xfff4d8), 0.75F) : (stripe % 2 ? one : two)) * light;
        },
        0.0016F);
    const point basket = at + point{0, size * 1.62F};
    for (const float side : {-1.0F, 1.0F})
        limb(photo, at + point{side * size * 0.2F, size * 1.15F},
             basket + point{side * size * 0.12F, -size * 0.08F}, size * 0.008F, size * 0.008F, hex(0x4a3a2a));
    box(photo,
        {basket.x - size * 0.13F, basket.y - size * 0.09F, basket.x + size * 0.13F, basket.y + size * 0.1F},
        hex(0x6b4424));
    box(photo,
        {basket.x - size * 0.14F, basket.y - size * 0.1F, basket.x + size * 0.14F, basket.y - size * 0.06F},
        hex(0x3d2714));
}

}  // namespace

void hot_air_balloons(canvas & photo)
{
    sky(photo, hex(0x6f9fd0), hex(0xb9cfe0), hex(0xfbd9a8), 0.75F);
    glow(photo, {0.6F, 0.66F}, 0.55F, hex(0xffc070) * 0.55F);
    clouds(photo, 0.74F,
           {.amount = 0.33F, .size = 2.4F, .lit = hex(0xfff1dc), .shaded = hex(0xb9b4c4), .seed = 211});
    for (int layer = 0; layer < 4; ++layer) {
        const float l = static_cast<float>(layer) / 3;
        hills(photo, {.base = 0.73F + 0.07F * static_cast<float>(layer),
                      .swing = 0.045F,
                      .width = 0.35F,
                      .crest = mix(hex(0xb9a9a8), hex(0x3d4a35), l),
                      .foot = mix(hex(0xf3dcc0), hex(0x8a8a62), l),
                      .depth = 0.075F,
                      .rough = 0.25F + 0.3F * l,
                      .seed = 213U + static_cast<unsigned>(layer)});
    }
    dice chance(67);
    for (int i = 0; i < 26; ++i)
        tree(photo, {chance.between(0, 0.67F), 0.96F + 0.03F * chance.next()}, chance.between(0.03F, 0.07F),
             hex(0x1f2a18), hex(0x7d8048), 800U + static_cast<unsigned>(i));
    balloon(photo, {0.58F, 0.47F}, 0.035F, hex(0x4a6a9a), hex(0xd9dfe4));
    balloon(photo, {0.1F, 0.55F}, 0.045F, hex(0x8a4a7a), hex(0xf0c05a));
    balloon(photo, {0.47F, 0.2F}, 0.07F, hex(0x2d8a6a), hex(0xf4e6b8));
    balloon(photo, {0.25F, 0.33F}, 0.145F, hex(0xc8321f), hex(0xf2b32c));
    develop(photo, {.bloom = 0.3F, .vignette = 0.28F, .tint = {1.02F, 1, 0.97F}, .seed = 12});
}
