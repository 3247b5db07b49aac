#include "scenes_garden.h"

#include "nature.h"
#include "noise.h"

#include <numbers>

namespace {

/// A rose of a few turns of petals.
void rose(canvas & photo, point at, float size, colour color, unsigned seed)
{
    dice chance(seed);
    disc(photo, at + point{size * 0.15F, size * 0.25F}, size * 1.05F, hex(0x140c0a), 0.35F, size * 0.4F);
    for (int petal = 0; petal < 11; ++petal) {
        const float t = static_cast<float>(petal) / 11,
                    angle = static_cast<float>(petal) * 2.4F + chance.next();
        const point off = point{std::cos(angle), std::sin(angle)} * (size * 0.5F * (1 - t));
        oval(photo, at + off, size * (0.72F - 0.5F * t), size * (0.6F - 0.42F * t),
             color * (0.72F + 0.4F * chance.next() - 0.25F * t), 1, size * 0.06F, angle);
    }
}

/// Two people who face each other: dress and suit, hair, hands held.
void couple(canvas & photo)
{
    oval(photo, {0.33F, 0.94F}, 0.2F, 0.018F, hex(0x1c1a10), 0.6F, 0.02F);
    const colour suit = hex(0x1e2434), skin = hex(0xd8a080);
    limb(photo, {0.405F, 0.72F}, {0.4F, 0.93F}, 0.026F, 0.02F, suit, 1, 0.002F);
    limb(photo, {0.43F, 0.72F}, {0.435F, 0.93F}, 0.026F, 0.02F, suit * 0.8F, 1, 0.002F);
    limb(photo, {0.42F, 0.55F}, {0.415F, 0.72F}, 0.05F, 0.038F, suit, 1, 0.002F);
    limb(photo, {0.396F, 0.525F}, {0.39F, 0.56F}, 0.007F, 0.003F, hex(0xf0ece4), 0.9F, 0.003F);
    limb(photo, {0.41F, 0.5F}, {0.412F, 0.47F}, 0.016F, 0.016F, skin);
    oval(photo, {0.405F, 0.45F}, 0.028F, 0.036F, skin, 1, 0.002F);
    oval(photo, {0.414F, 0.436F}, 0.028F, 0.03F, hex(0x2a1c14), 1, 0.003F);
    fill(
        photo, {0.1F, 0.55F, 0.42F, 0.96F},
        [](point p) {
            const float down = clamped((p.y - 0.62F) / 0.32F);
            return std::max(
                std::abs(p.x - 0.262F + 0.05F * down * down) - 0.03F - 0.11F * down * down - 0.02F * down,
                std::max(0.6F - p.y, p.y - 0.945F));
        },
        [](point p) {
            const float folds = 0.5F + 0.5F * std::sin((p.x - 0.26F) / (0.15F + p.y - 0.6F) * 38);
            return mix(hex(0xc8b8b0), hex(0xfffaf2), 0.35F + 0.45F * folds + 0.5F * (0.3F - p.x));
        },
        0.004F);
    limb(photo, {0.262F, 0.545F}, {0.264F, 0.62F}, 0.034F, 0.028F, hex(0xf8f0e6), 1, 0.002F);
    limb(photo, {0.262F, 0.49F}, {0.26F, 0.53F}, 0.012F, 0.02F, skin);
    oval(photo, {0.274F, 0.468F}, 0.025F, 0.033F, skin, 1, 0.002F);
    oval(photo, {0.262F, 0.458F}, 0.027F, 0.032F, hex(0x6a4024), 1, 0.003F);
    disc(photo, {0.24F, 0.478F}, 0.018F, hex(0x6a4024), 1, 0.003F);
    photo.lay({0.14F, 0.44F, 0.3F, 0.9F}, [](point p) {
        const float down = (p.y - 0.45F) / 0.42F, x = 0.238F - 0.05F * down;
        return ink{hex(0xffffff), 0.4F * rise(0.03F + 0.04F * down, 0, std::abs(p.x - x)) *
                                      rise(1, 0.9F, down) * rise(0, 0.05F, down)};
    });
    limb(photo, {0.285F, 0.545F}, {0.33F, 0.61F}, 0.012F, 0.01F, skin);
    limb(photo, {0.395F, 0.545F}, {0.345F, 0.615F}, 0.02F, 0.016F, suit * 1.25F);
    disc(photo, {0.338F, 0.612F}, 0.013F, skin);
}

}  // namespace

void wedding_couple(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float leaves = cloudy(p.x * 7, p.y * 7, 4, 791);
        return ink{mix(mix(hex(0xffe0a8), hex(0xe8a860), p.y * 1.2F), hex(0x5a7038),
                       rise(0.35F, 0.7F, leaves * 0.7F + std::abs(p.x - 0.33F) * 0.9F))};
    });
    dice chance(793);
    for (int i = 0; i < 60; ++i)
        bokeh(photo, {chance.between(0, 0.67F), chance.between(0, 0.7F)}, chance.between(0.012F, 0.04F),
              hex(0xfff0c0), chance.between(0.06F, 0.22F));
    soften(photo, 0.012F);
    ground(photo, 0.83F, hex(0xa8a860), hex(0x4a5a28), 0.5F, 795);
    soften_where(photo, 0.008F, [](point p) { return rise(0.92F, 0.82F, p.y); });
    for (const float x : {0.075F, 0.59F})
        limb(photo, {x, 0.3F}, {x, 0.93F}, 0.012F, 0.014F, hex(0xe8dcc8), 1, 0.003F);
    const colour kinds[] = {hex(0xf4d8d4), hex(0xe88a94), hex(0xfff4e8), hex(0xc8505e)};
    for (int i = 0; i < 380; ++i) {
        const float t = static_cast<float>(i % 190) / 189;
        const float angle = std::numbers::pi_v<float> * (1 + t);
        point at{0.333F + 0.262F * std::cos(angle), 0.31F + 0.2F * std::sin(angle)};
        if (i >= 300)
            at = {i % 2 ? 0.075F : 0.59F, 0.3F + 0.35F * chance.next() * chance.next()};
        at = at + point{chance.between(-0.035F, 0.035F), chance.between(-0.035F, 0.035F)};
        if (i % 5 < 3)
            oval(photo, at, 0.026F, 0.011F, mix(hex(0x2a4a20), hex(0x7a9a4a), chance.next()), 1, 0.002F,
                 chance.between(-1.5F, 1.5F));
        else
            rose(photo, at, chance.between(0.014F, 0.024F), kinds[i % 4], 800U + static_cast<unsigned>(i));
    }
    couple(photo);
    for (int petal = 0; petal < 130; ++petal)
        oval(photo, {chance.between(0, 0.67F), chance.between(0.9F, 0.995F)}, 0.006F, 0.003F,
             kinds[petal % 3], 0.95F, 0.0015F, chance.between(-1, 1));
    develop(photo,
            {.bloom = 0.4F, .vignette = 0.35F, .contrast = 0.22F, .tint = {1.03F, 1, 0.95F}, .seed = 32});
}

void lavender_walk(canvas & photo)
{
    const float horizon = 0.42F;
    sky(photo, hex(0x6a7ac0), hex(0xe8a8a0), hex(0xffdc9a), horizon);
    clouds(photo, horizon,
           {.amount = 0.4F, .size = 2.3F, .lit = hex(0xffd0b0), .shaded = hex(0x9a88b0), .seed = 801});
    glow(photo, {0.5F, 0.39F}, 0.45F, hex(0xffc070) * 0.7F);
    hills(photo, {.base = 0.4F,
                  .swing = 0.04F,
                  .width = 0.4F,
                  .crest = hex(0x7a70a0),
                  .foot = hex(0xa890b0),
                  .depth = 0.06F,
                  .seed = 803});
    const auto lane_of = [](point p) { return (p.x - 0.33F) / (0.02F + 0.75F * (p.y - 0.42F)) * 2.2F; };
    photo.lay({0, horizon, 100, 1}, [&](point p) {
        const float lane = lane_of(p) + 0.5F, within = std::abs(lane - std::floor(lane) - 0.5F);
        const float speck = cloudy(p.x * 70, p.y * 110, 4, 805);
        const colour bush = mix(hex(0x3a2a5a), hex(0xb090e0), speck * 1.3F - 0.15F);
        return ink{mix(mix(hex(0x6a5a4a), hex(0x9a8a68), speck), bush, rise(0.12F, 0.24F, within))};
    });
    dice chance(807);
    const auto spikes = [&](float from, float to, int count) {
        for (int i = 0; i < count; ++i) {
            const float near =
                            from + (to - from) * std::sqrt(static_cast<float>(i) / static_cast<float>(count)),
                        y = horizon + 0.02F + 0.6F * near * near, x = chance.between(-0.02F, 0.69F);
            const float lane = lane_of({x, y}) + 0.5F, within = std::abs(lane - std::floor(lane) - 0.5F);
            if (within < 0.2F)
                continue;
            const float size = 0.006F + 0.085F * near * near;
            const point tip{x + chance.between(-0.2F, 0.2F) * size, y - size * chance.between(0.9F, 1.4F)};
            limb(photo, {x, y}, tip, size * 0.03F, size * 0.03F, hex(0x5a7048), 0.9F);
            limb(photo, tip + point{0, size * 0.5F}, tip, size * 0.095F, size * 0.04F,
                 mix(hex(0x4a2f8a), hex(0xc8a8f0), chance.next()), 0.95F, size * 0.03F);
        }
    };
    spikes(0, 0.62F, 3600);
    oval(photo, {0.335F, 0.785F}, 0.075F, 0.012F, hex(0x2a1c2a), 0.6F, 0.015F);
    polygon(photo, {{0.305F, 0.6F}, {0.365F, 0.6F}, {0.41F, 0.775F}, {0.26F, 0.775F}}, hex(0xf0e4dc), 1,
            0.004F);
    polygon(photo, {{0.305F, 0.6F}, {0.325F, 0.6F}, {0.315F, 0.775F}, {0.26F, 0.775F}}, hex(0xa890a8), 0.5F,
            0.02F);
    limb(photo, {0.335F, 0.545F}, {0.335F, 0.605F}, 0.034F, 0.03F, hex(0xf4e8e0), 1, 0.003F);
    limb(photo, {0.305F, 0.54F}, {0.275F, 0.635F}, 0.012F, 0.008F, hex(0xd8a888), 1, 0.002F);
    limb(photo, {0.366F, 0.54F}, {0.4F, 0.63F}, 0.012F, 0.008F, hex(0xd8a888), 1, 0.002F);
    limb(photo, {0.335F, 0.49F}, {0.335F, 0.57F}, 0.027F, 0.02F, hex(0x6a4028), 1, 0.004F);
    oval(photo, {0.336F, 0.475F}, 0.066F, 0.02F, hex(0xe0b870), 1, 0.002F);
    oval(photo, {0.336F, 0.462F}, 0.035F, 0.024F, hex(0xf0cc88), 1, 0.002F);
    box(photo, {0.303F, 0.466F, 0.369F, 0.475F}, hex(0x6a3a6a), 0.9F, 0.003F);
    spikes(0.62F, 0.98F, 700);
    develop(photo,
            {.bloom = 0.35F, .vignette = 0.35F, .contrast = 0.25F, .tint = {1.02F, 1, 0.98F}, .seed = 46});
}

namespace {

void blossom(canvas & photo, point at, float size, float spin, float bright)
{
    for (int petal = 0; petal < 5; ++petal) {
        const float angle = spin + static_cast<float>(petal) * 1.2566F, c = std::cos(angle),
                    s = std::sin(angle);
        const point middle = at + point{c, s} * (size * 0.52F);
        fill(
            photo, {middle.x - size, middle.y - size, middle.x + size, middle.y + size},
            [&](point p) {
                return std::max(to_ellipse(p, middle, size * 0.5F, size * 0.4F, angle),
                                size * 0.1F - length(p - at - point{c, s} * (size * 1.08F)));
            },
            [&](point p) {
                const float along = ((p.x - at.x) * c + (p.y - at.y) * s) / size;
                return mix(hex(0xe88aa8), hex(0xfff0f4), along * 1.4F) * (bright * (0.98F - 0.12F * s));
            },
            size * 0.04F);
    }
    for (int hair = 0; hair < 9; ++hair) {
        const float angle = spin + static_cast<float>(hair) * 0.7F;
        const point tip = at + point{std::cos(angle), std::sin(angle)} * (size * 0.36F);
        limb(photo, at, tip, size * 0.012F, size * 0.012F, hex(0xd06a8a), 0.9F);
        disc(photo, tip, size * 0.035F, hex(0xf0c040));
    }
    disc(photo, at, size * 0.1F, hex(0xc04a70), 1, size * 0.05F);
}

}  // namespace

void cherry_blossom(canvas & photo)
{
    out_of_focus(photo, hex(0x6aa0d0), hex(0xf4e0ec), 811);
    dice chance(813);
    for (int i = 0; i < 60; ++i)
        bokeh(photo, {chance.between(0, 0.67F), chance.next()}, chance.between(0.02F, 0.06F), hex(0xffb0cc),
              chance.between(0.08F, 0.22F));
    for (int i = 0; i < 30; ++i)
        blossom(photo, {chance.between(0, 0.67F), chance.between(0, 0.9F)}, 0.05F, chance.between(0, 6),
                0.95F);
    soften(photo, 0.03F);
    const std::vector<point> branch = {{-0.05F, 0.9F}, {0.14F, 0.72F}, {0.24F, 0.56F},
                                       {0.4F, 0.42F},  {0.48F, 0.27F}, {0.64F, 0.13F}};
    for (std::size_t i = 0; i + 1 < branch.size(); ++i) {
        const float thick = 0.019F - 0.0032F * static_cast<float>(i);
        limb(photo, branch[i], branch[i + 1], thick, thick - 0.0032F, hex(0x3a2424), 1, 0.003F);
        limb(photo, branch[i] - point{0.004F, 0.004F}, branch[i + 1] - point{0.003F, 0.003F}, thick * 0.35F,
             thick * 0.25F, hex(0x8a6058), 0.7F, 0.004F);
    }
    for (const auto & [a, b] : {std::pair{point{0.24F, 0.56F}, point{0.46F, 0.62F}},
                                std::pair{point{0.14F, 0.72F}, point{0.09F, 0.5F}},
                                std::pair{point{0.4F, 0.42F}, point{0.25F, 0.29F}}})
        limb(photo, a, b, 0.008F, 0.004F, hex(0x3a2424), 1, 0.002F);
    const point bunches[] = {{0.46F, 0.62F}, {0.09F, 0.5F},  {0.25F, 0.28F}, {0.26F, 0.55F},
                             {0.42F, 0.4F},  {0.52F, 0.23F}, {0.13F, 0.73F}, {0.62F, 0.14F}};
    for (const point & bunch : bunches) {
        for (int leaf = 0; leaf < 3; ++leaf)
            oval(photo, bunch + point{chance.between(-0.07F, 0.07F), chance.between(-0.07F, 0.07F)}, 0.032F,
                 0.012F, mix(hex(0x7a5a3a), hex(0x8ab05a), chance.next()), 1, 0.003F,
                 chance.between(-1.5F, 1.5F));
        for (int flower = 0; flower < 6; ++flower)
            blossom(photo, bunch + point{chance.between(-0.075F, 0.075F), chance.between(-0.065F, 0.065F)},
                    chance.between(0.036F, 0.058F), chance.between(0, 6), chance.between(0.9F, 1.04F));
    }
    for (int petal = 0; petal < 12; ++petal)
        oval(photo, {chance.between(0.1F, 0.67F), chance.between(0.65F, 1)}, 0.012F, 0.007F, hex(0xfcd8e4),
             0.9F, 0.003F, chance.between(-1.5F, 1.5F));
    develop(photo, {.bloom = 0.25F, .vignette = 0.25F, .contrast = 0.2F, .seed = 36});
}

namespace {

/// One side of the wings: fore and hind wing, black veins and white spots at the rim.
void wing(canvas & photo, point body, float side)
{
    const auto reach = [&](point p) {
        const point d{(p.x - body.x) * side, p.y - body.y};
        const float fore = to_ellipse(d, {0.125F, -0.105F}, 0.155F, 0.088F, -0.72F),
                    hind = to_ellipse(d, {0.105F, 0.07F}, 0.105F, 0.088F, 0.55F);
        return d.x < 0 ? 1.0F : std::min(fore, hind);
    };
    fill(
        photo, {0.02F, 0.15F, 0.65F, 0.7F}, reach,
        [&](point p) {
            const point d{(p.x - body.x) * side, p.y - body.y};
            const float out = length(d), angle = std::atan2(d.y, d.x);
            const float rim = rise(-0.026F, -0.012F, reach(p) + 0.006F * std::sin(angle * 40));
            const float vein = rise(
                0.13F, 0.06F, std::abs(angle * 3.2F - std::round(angle * 3.2F)) * std::min(1.0F, out * 9));
            const float across = rise(0.006F, 0.003F, std::abs(out - 0.105F - 0.02F * std::sin(angle * 5)));
            const colour scales =
                mix(hex(0xf8b030), hex(0xd84a10), out * 4.2F + 0.25F * cloudy(p.x * 60, p.y * 60, 3, 821));
            colour c = mix(scales, hex(0x1c100c), std::max({rim, vein * 0.9F, across * 0.8F}));
            const float dots = rise(0.25F, 0.12F, std::abs(angle * 9 - std::round(angle * 9))) *
                               rise(0.004F, 0.002F, std::abs(reach(p) + 0.012F));
            return mix(c, hex(0xfff4e4), dots) * (0.95F + 0.25F * (side > 0 ? -d.x : d.x) + 0.1F);
        },
        0.002F);
}

}  // namespace

void butterfly(canvas & photo)
{
    out_of_focus(photo, hex(0x1e4a2a), hex(0x9ad08a), 823);
    dice chance(825);
    for (int i = 0; i < 26; ++i)
        bokeh(photo, {chance.between(0, 0.67F), chance.next()}, chance.between(0.03F, 0.07F), hex(0xc878c0),
              chance.between(0.06F, 0.2F));
    soften(photo, 0.015F);
    limb(photo, {0.34F, 0.7F}, {0.38F, 1.05F}, 0.011F, 0.014F, hex(0x4a7a34), 1, 0.004F);
    oval(photo, {0.44F, 0.9F}, 0.1F, 0.028F, hex(0x3a6a2a), 1, 0.006F, -0.7F);
    for (int petal = 0; petal < 24; ++petal) {
        const float angle = static_cast<float>(petal) / 24 * 6.2832F, c = std::cos(angle),
                    s = std::sin(angle) * 0.42F;
        const point tip{0.34F + c * 0.21F, 0.7F + s * 0.21F + 0.02F};
        limb(photo, {0.34F + c * 0.05F, 0.69F + s * 0.05F}, tip, 0.018F, 0.012F,
             mix(hex(0xa83a8a), hex(0xf0a0d8), 0.5F - 0.4F * s + 0.3F * chance.next()), 1, 0.003F);
    }
    for (int seed = 0; seed < 420; ++seed) {
        const float out = std::sqrt(static_cast<float>(seed) / 420) * 0.085F,
                    angle = static_cast<float>(seed) * 2.4F;
        const point at{0.34F + std::cos(angle) * out,
                       0.675F + std::sin(angle) * out * 0.5F - 0.035F * (1 - out / 0.085F)};
        disc(photo, at, 0.0042F, mix(hex(0x7a2a10), hex(0xf0a030), chance.next()), 1, 0.0015F);
    }
    const point body{0.335F, 0.46F};
    for (const float side : {-1.0F, 1.0F})
        wing(photo, body, side);
    limb(photo, body + point{0, -0.085F}, body + point{0, 0.03F}, 0.011F, 0.014F, hex(0x1c1410), 1, 0.002F);
    limb(photo, body + point{0, 0.03F}, body + point{0.005F, 0.15F}, 0.013F, 0.006F, hex(0x2a1c14), 1,
         0.002F);
    disc(photo, body + point{0, -0.1F}, 0.013F, hex(0x1c1410), 1, 0.002F);
    for (const float side : {-1.0F, 1.0F}) {
        limb(photo, body + point{0, -0.11F}, body + point{side * 0.06F, -0.2F}, 0.0014F, 0.0014F,
             hex(0x1c1410));
        disc(photo, body + point{side * 0.06F, -0.2F}, 0.0045F, hex(0x1c1410));
        limb(photo, body + point{side * 0.008F, -0.02F}, body + point{side * 0.04F, 0.2F}, 0.0018F, 0.0014F,
             hex(0x1c1410));
    }
    develop(photo, {.bloom = 0.22F, .vignette = 0.35F, .contrast = 0.25F, .seed = 42});
}
