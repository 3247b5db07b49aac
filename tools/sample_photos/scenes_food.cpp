#include "scenes_food.h"

#include "nature.h"
#include "noise.h"

namespace {

void slices_of_salami(canvas & photo, point middle)
{
    dice chance(651);
    for (int slice = 0; slice < 13; ++slice) {
        const float angle = static_cast<float>(slice) * 2.4F,
                    out = 0.055F * std::sqrt(static_cast<float>(slice) + 0.3F);
        const point at = middle + point{std::cos(angle), std::sin(angle)} * out;
        oval(photo, at + point{0.004F, 0.006F}, 0.034F, 0.034F, hex(0x4a1208), 0.6F, 0.008F);
        fill(
            photo, {at.x - 0.04F, at.y - 0.04F, at.x + 0.04F, at.y + 0.04F},
            [&](point p) { return length(p - at) - 0.031F; },
            [&](point p) {
                const float fat = cloudy(p.x * 150, p.y * 150, 2, 653);
                return mix(mix(hex(0x9a2418), hex(0xd8503a), fat), hex(0xf0b090), rise(0.62F, 0.75F, fat)) *
                       (1.1F - 0.35F * rise(0.6F, 1.0F, length(p - at) / 0.031F));
            });
    }
}

/// Dough, tomato and cheese.
void baked_dough(canvas & photo, point middle)
{
    const auto wobble = [&](point p) {
        const point d = p - middle;
        return length(d) + 0.008F * (cloudy(d.x * 14, d.y * 14, 3, 659) - 0.5F);
    };
    fill(
        photo, {0, 0.1F, 0.67F, 0.9F}, [&](point p) { return wobble(p) - 0.278F; },
        [&](point p) {
            const float out = wobble(p), burnt = cloudy(p.x * 26, p.y * 26, 4, 661);
            const colour crust = mix(mix(hex(0xe8b468), hex(0xb06a28), burnt * 1.2F), hex(0x4a2410),
                                     rise(0.66F, 0.85F, burnt));
            const float cheese = cloudy(p.x * 15, p.y * 15, 4, 663);
            const colour top = mix(mix(hex(0xc03a14), hex(0xe86a2a), cheese),
                                   mix(hex(0xf8d878), hex(0xfff0c0), cheese), rise(0.42F, 0.58F, cheese));
            const float bulge = 1 - std::abs(out - 0.258F) / 0.024F;
            const float light = 1 - 0.5F * ((p.x - middle.x) + (p.y - middle.y));
            return mix(top, crust * (0.78F + 0.35F * clamped(bulge)), rise(0.232F, 0.243F, out)) * light;
        });
}

}  // namespace

void pizza(canvas & photo)
{
    planks(photo, 0, hex(0x3a2a20), hex(0x7a5c42), 0.16F, 655);
    const point middle{0.335F, 0.5F};
    oval(photo, middle + point{0.015F, 0.02F}, 0.318F, 0.318F, hex(0x0c0604), 0.7F, 0.03F);
    fill(
        photo, {0, 0.1F, 0.67F, 0.9F}, [&](point p) { return length(p - middle) - 0.312F; },
        [&](point p) { return mix(hex(0x8a5a34), hex(0xd0a06a), cloudy(p.x * 50, p.y * 3, 4, 657)); });
    baked_dough(photo, middle);
    slices_of_salami(photo, middle);
    dice chance(665);
    for (int olive = 0; olive < 16; ++olive) {
        const float angle = chance.between(0, 6.28F), out = 0.21F * std::sqrt(chance.next());
        const point at = middle + point{std::cos(angle), std::sin(angle)} * out;
        fill(
            photo, {at.x - 0.02F, at.y - 0.02F, at.x + 0.02F, at.y + 0.02F},
            [&](point p) { return std::abs(length(p - at) - 0.0095F) - 0.0045F; },
            [&](point p) { return mix(hex(0x4a4a4a), hex(0x141414), (p.y - at.y) * 40 + 0.5F); });
    }
    for (int leaf = 0; leaf < 9; ++leaf) {
        const float angle = chance.between(0, 6.28F), out = 0.06F + 0.13F * chance.next(),
                    turn = chance.between(-1.5F, 1.5F);
        const point at = middle + point{std::cos(angle), std::sin(angle)} * out;
        oval(photo, at + point{0.004F, 0.006F}, 0.034F, 0.019F, hex(0x3a1408), 0.5F, 0.008F, turn);
        oval(photo, at, 0.033F, 0.018F, mix(hex(0x2a6a1e), hex(0x5a9a3a), chance.next()), 1, 0.002F, turn);
        const point vein{std::cos(turn) * 0.028F, std::sin(turn) * 0.028F};
        limb(photo, at - vein, at + vein, 0.001F, 0.001F, hex(0x8ac06a), 0.7F);
    }
    for (const float cut : {0.3F, 1.35F, 2.4F}) {
        const point along = point{std::cos(cut), std::sin(cut)} * 0.275F;
        limb(photo, middle - along, middle + along, 0.002F, 0.002F, hex(0x6a2a0c), 0.65F);
    }
    disc(photo, {0.59F, 0.09F}, 0.115F, hex(0x0c0604), 0.5F, 0.03F);
    disc(photo, {0.58F, 0.08F}, 0.105F, hex(0xe8e2d8));
    disc(photo, {0.58F, 0.08F}, 0.088F, hex(0xb8321c), 1, 0.004F);
    const point tomatoes[] = {{0.07F, 0.89F}, {0.16F, 0.945F}, {0.06F, 0.97F}};
    for (const point & at : tomatoes) {
        disc(photo, at + point{0.012F, 0.014F}, 0.045F, hex(0x0c0604), 0.6F, 0.015F);
        ball(photo, at, 0.044F, hex(0xd8301c), 0.12F, 667);
        for (int leaf = 0; leaf < 5; ++leaf)
            oval(photo,
                 at + point{std::cos(static_cast<float>(leaf) * 1.2566F),
                            std::sin(static_cast<float>(leaf) * 1.2566F)} *
                          0.011F,
                 0.012F, 0.004F, hex(0x3a6a24), 1, 0.002F, static_cast<float>(leaf) * 1.2566F);
    }
    develop(photo,
            {.bloom = 0.18F, .vignette = 0.45F, .contrast = 0.3F, .tint = {1.04F, 1, 0.95F}, .seed = 30});
}

namespace {

/// A crate at a slant, filled to the brim.
void crate(canvas & photo, area where, colour fruit, float size, unsigned seed)
{
    const float wide = where.right - where.left;
    box(photo, where, hex(0x1c120a), 1, 0.003F);
    dice chance(seed);
    for (float y = where.top + size * 0.3F; y < where.bottom - size * 0.2F; y += size * 1.25F) {
        for (float x = where.left + size * 0.8F; x < where.right - size * 0.5F; x += size * 1.75F) {
            const point at{x + chance.between(-0.25F, 0.25F) * size, y + chance.between(-0.2F, 0.2F) * size};
            disc(photo, at + point{0.1F * size, 0.35F * size}, size * 1.02F, hex(0x0c0604), 0.55F,
                 size * 0.4F);
            ball(photo, at, size * chance.between(0.9F, 1.05F),
                 mix(fruit, fruit * colour{1.15F, 0.85F, 0.8F}, chance.next()), 0.35F,
                 seed + static_cast<unsigned>(x * 300));
            disc(photo, at + point{size * chance.between(-0.3F, 0.3F), -size * 0.35F}, size * 0.07F,
                 hex(0x3a2a14), 0.8F, size * 0.05F);
        }
    }
    const float rail = 0.045F;
    photo.lay(
        {where.left - 0.006F, where.bottom - rail, where.right + 0.006F, where.bottom + 0.008F},
        [&](point p) {
            const float rings = cloudy(p.x * 4, p.y * 90, 4, seed + 3);
            return ink{mix(hex(0x8a6438), hex(0xd4aa70), rings), p.y > where.bottom - rail ? 1.0F : 0.0F};
        });
    box(photo, {where.left - 0.006F, where.top - 0.01F, where.left + 0.006F, where.bottom}, hex(0x9a7444), 1,
        0.002F);
    const float card = where.left + wide * 0.5F;
    box(photo, {card - 0.05F, where.bottom - 0.085F, card + 0.05F, where.bottom - 0.022F}, hex(0x22302a), 1,
        0.002F);
    for (int line = 0; line < 2; ++line)
        limb(photo, {card - 0.034F, where.bottom - 0.066F + 0.024F * static_cast<float>(line)},
             {card + 0.014F + 0.018F * static_cast<float>(line),
              where.bottom - 0.068F + 0.024F * static_cast<float>(line)},
             0.0035F, 0.0025F, hex(0xf4f0e0), 0.9F);
}

}  // namespace

void market_fruit(canvas & photo)
{
    out_of_focus(photo, hex(0x3a2a20), hex(0xe0b070), 671);
    for (int stripe = 0; stripe < 17; ++stripe) {
        const float x = -0.05F + 0.1F * static_cast<float>(stripe);
        polygon(photo, {{x, -0.02F}, {x + 0.1F, -0.02F}, {x + 0.1F, 0.085F}, {x, 0.085F}},
                stripe % 2 ? hex(0xf4ece0) : hex(0x2f7a4a), 1, 0.004F);
        disc(photo, {x + 0.05F, 0.085F}, 0.05F, stripe % 2 ? hex(0xe0d8cc) : hex(0x28683e), 1, 0.004F);
    }
    const colour fruit[] = {hex(0xe8801a), hex(0xc01c24), hex(0xf0d02c), hex(0x7ab02c),
                            hex(0x6a2a5a), hex(0xf0a060), hex(0x3a7a24), hex(0xd83a2a),
                            hex(0xf0b82a), hex(0x9a1c34), hex(0xe07a1a)};
    int kind = 0;
    for (int row = 0; row < 3; ++row) {
        const float top = 0.25F + 0.25F * static_cast<float>(row),
                    tall = 0.235F + 0.03F * static_cast<float>(row);
        const int count = 4;
        const float wide = 0.385F + 0.03F * static_cast<float>(row),
                    from = 0.75F - wide * count / 2 + (row == 1 ? 0.09F : 0.0F);
        for (int column = 0; column < count; ++column, ++kind) {
            const float left = from + wide * static_cast<float>(column);
            crate(photo, {left + 0.008F, top, left + wide - 0.008F, top + tall}, fruit[kind % 11],
                  (kind % 3 == 1 ? 0.026F : 0.034F) + 0.004F * static_cast<float>(row),
                  673U + static_cast<unsigned>(kind) * 7);
        }
    }
    develop(photo,
            {.bloom = 0.18F, .vignette = 0.35F, .contrast = 0.3F, .tint = {1.03F, 1, 0.95F}, .seed = 41});
}

void ice_cream(canvas & photo)
{
    photo.lay({}, [](point p) {
        const colour sea = mix(hex(0x7ac4e8), hex(0x2a9ab8), (p.y - 0.4F) * 3);
        const colour air = mix(hex(0x8ac8f0), hex(0xd8eef6), p.y / 0.4F);
        const colour sand = hex(0xf0dcb4) * (0.95F + 0.1F * cloudy(p.x * 8, p.y * 8, 3, 681));
        return ink{mix(mix(air, sea, rise(0.39F, 0.41F, p.y)), sand, rise(0.62F, 0.7F, p.y + 0.05F * p.x))};
    });
    dice chance(683);
    for (int i = 0; i < 40; ++i)
        bokeh(photo, {chance.between(0, 0.67F), chance.between(0.42F, 0.65F)}, chance.between(0.012F, 0.03F),
              hex(0xffffff), chance.between(0.08F, 0.25F));
    const colour shades[] = {hex(0xe84a3a), hex(0xf4f0e8), hex(0xf0b02a)};
    for (int part = 0; part < 6; ++part) {
        const float l = static_cast<float>(part);
        polygon(photo, {{0.52F, 0.5F}, {0.38F + 0.055F * l, 0.6F}, {0.435F + 0.055F * l, 0.6F}},
                shades[part % 2], 1, 0.004F);
    }
    limb(photo, {0.52F, 0.5F}, {0.53F, 0.78F}, 0.004F, 0.004F, hex(0xf4f0e8));
    soften(photo, 0.022F);
    const auto across = [](float y) { return 0.128F * (1.04F - (y - 0.56F) / 0.47F); };
    fill(
        photo, {0.1F, 0.54F, 0.6F, 1},
        [&](point p) { return std::max(std::abs(p.x - 0.33F) - across(p.y), 0.555F - p.y); },
        [&](point p) {
            const float u = (p.x - 0.33F) * 26, v = (p.y - 0.55F) * 17;
            const float ridge = std::max(rise(0.13F, 0.02F, std::abs(u + v - std::round(u + v))),
                                         rise(0.13F, 0.02F, std::abs(u - v - std::round(u - v))));
            const float side = (p.x - 0.33F) / std::max(0.01F, across(p.y));
            return mix(hex(0xc88a44), hex(0xf0bc74), ridge) * (1.08F - 0.45F * side * side - 0.2F * side) *
                   (0.75F + 0.25F * rise(0.55F, 0.63F, p.y));
        },
        0.002F);
    const auto scoop = [&](point at, float size, colour color, unsigned seed) {
        for (int lump = 0; lump < 15; ++lump) {
            const float x = -1.0F + static_cast<float>(lump) / 7;
            ball(photo,
                 at + point{x * size * 0.95F,
                            size * (0.62F + 0.12F * std::sin(static_cast<float>(lump) * 4.1F))},
                 size * 0.2F, color * 1.2F, 0.2F, seed + static_cast<unsigned>(lump));
        }
        ball(photo, at, size, color * 1.3F, 0.2F, seed);
    };
    scoop({0.33F, 0.47F}, 0.136F, hex(0xf4a0b4), 685);
    scoop({0.33F, 0.29F}, 0.118F, hex(0xf8ead0), 687);
    for (int crumb = 0; crumb < 90; ++crumb) {
        const float angle = chance.between(-3.3F, 0.2F), out = 0.115F * std::sqrt(chance.next());
        const point at{0.33F + std::cos(angle) * out, 0.285F + std::sin(angle) * out};
        const float turn = chance.between(0, 3.14F);
        const colour kinds[] = {hex(0x6a3418), hex(0xe0485a), hex(0x4a9ad0), hex(0xf0c03a), hex(0x6ab04a)};
        limb(photo, at, at + point{std::cos(turn), std::sin(turn)} * 0.011F, 0.0024F, 0.0024F,
             kinds[crumb % 5]);
    }
    limb(photo, {0.39F, 0.235F}, {0.45F, 0.095F}, 0.016F, 0.018F, hex(0xd8a05a), 1, 0.002F);
    limb(photo, {0.4F, 0.21F}, {0.45F, 0.095F}, 0.006F, 0.007F, hex(0xa86c30), 0.7F, 0.003F);
    develop(photo, {.bloom = 0.2F, .vignette = 0.25F, .contrast = 0.25F, .seed = 48});
}
