#include "scenes_water.h"

#include "nature.h"
#include "noise.h"

void mountain_lake(canvas & photo)
{
    const float shore = 0.58F;
    sky(photo, hex(0x2c3f6e), hex(0xb06f86), hex(0xffc98a), shore);
    glow(photo, {1.02F, shore - 0.05F}, 0.75F, hex(0xff9a4a) * 0.55F);
    clouds(photo, shore - 0.06F,
           {.amount = 0.52F, .size = 2.6F, .lit = hex(0xffb08a), .shaded = hex(0x6b5878), .seed = 21});
    hills(photo, {.base = 0.36F,
                  .swing = 0.2F,
                  .width = 0.5F,
                  .crest = hex(0x8a7a94),
                  .foot = hex(0xc79a94),
                  .depth = 0.25F,
                  .rough = 0.35F,
                  .seed = 4});
    hills(photo, {.base = 0.46F,
                  .swing = 0.12F,
                  .width = 0.45F,
                  .crest = hex(0x4b4765),
                  .foot = hex(0x7d6678),
                  .depth = 0.14F,
                  .rough = 0.3F,
                  .seed = 9});
    hills(photo, {.base = 0.55F,
                  .swing = 0.035F,
                  .width = 0.3F,
                  .crest = hex(0x1f2638),
                  .foot = hex(0x2c2f42),
                  .depth = 0.05F,
                  .seed = 13});
    dice chance(3);
    for (int i = 0; i < 90; ++i)
        fir(photo, {chance.between(-0.02F, 1.52F), shore + 0.004F}, chance.between(0.02F, 0.055F),
            hex(0x161c2b), 50U + static_cast<unsigned>(i));
    water(photo, {.top = shore,
                  .tint = {0.82F, 0.84F, 0.95F},
                  .ripple = 0.02F,
                  .mirror = 0.95F,
                  .depth = hex(0x152036),
                  .seed = 5});
    for (int i = 0; i < 26; ++i) {
        const float near = chance.next();
        oval(photo, {chance.between(0, 0.7F) * (1 - near * 0.3F), 0.9F + near * 0.1F}, 0.02F + near * 0.05F,
             0.012F + near * 0.02F, hex(0x14161f) * chance.between(0.8F, 1.6F), 1, 0.004F);
    }
    develop(photo, {.bloom = 0.3F, .vignette = 0.4F, .seed = 1});
}

void beach(canvas & photo)
{
    const float horizon = 0.4F;
    sky(photo, hex(0x3f8fd6), hex(0x86bfe8), hex(0xdcecf0), horizon);
    clouds(photo, horizon, {.amount = 0.34F, .size = 2.2F, .seed = 31});
    photo.lay({0, horizon, 100, 1}, [](point p) {
        const float near = (p.y - 0.4F) / 0.6F;
        const float line = 0.68F + 0.16F * p.x / 1.5F + 0.02F * cloudy(p.x * 4, 1, 3, 8) +
                           0.008F * cloudy(p.x * 30, 2, 2, 9);
        const float scale = 1 / (0.04F + near);
        const float wave = cloudy(p.x * scale * 2.2F, p.y * scale * 16, 4, 33) - 0.5F;
        const colour sea = mix(hex(0x1d6f9e), hex(0x58c2c0), rise(0.35F, 0.72F, p.y)) * (1 + 0.55F * wave);
        const float grains = hashed(static_cast<int>(p.x * 1500), static_cast<int>(p.y * 1500), 2) - 0.5F;
        const float dunes = cloudy(p.x * 6 * scale * 0.3F, p.y * 24, 4, 12) - 0.5F;
        const colour dry = mix(hex(0xe9d3a4), hex(0xd6b67f), near) * (1 + 0.22F * dunes + 0.12F * grains);
        const colour sand = mix(dry * 0.66F, dry, rise(line, line + 0.12F, p.y));
        const float foam =
            rise(0.035F, 0, std::abs(p.y - line)) * rise(0.3F, 0.55F, cloudy(p.x * 40, p.y * 60, 4, 5)) +
            rise(0.02F, 0, std::abs(p.y - line + 0.075F)) *
                rise(0.42F, 0.6F, cloudy(p.x * 22, p.y * 60, 4, 6));
        return ink{mix(mix(sea, sand, rise(line - 0.006F, line + 0.006F, p.y)), hex(0xf6fafa), foam)};
    });
    // A parasol, its shadow, and two towels.
    oval(photo, {1.13F, 0.93F}, 0.19F, 0.03F, hex(0x6d5838), 0.5F, 0.02F);
    polygon(photo, {{0.86F, 0.9F}, {0.99F, 0.885F}, {1.05F, 0.93F}, {0.9F, 0.95F}}, hex(0x2d6fb0), 1, 0.003F);
    limb(photo, {1.1F, 0.58F}, {1.14F, 0.94F}, 0.006F, 0.006F, hex(0xe9e4da));
    for (int part = 0; part < 8; ++part) {
        const auto edge = [&](int i) {
            const float a = static_cast<float>(i) / 8 * 2 - 1;
            return point{1.1F + 0.19F * a, 0.655F + 0.03F * (1 - a * a) - 0.01F};
        };
        polygon(photo, {{1.095F, 0.545F}, edge(part), edge(part + 1)},
                (part % 2 ? hex(0xf3efe4) : hex(0xd8382e)) * (0.8F + 0.05F * static_cast<float>(8 - part)), 1,
                0.002F);
    }
    figure(photo, {0.42F, 0.72F}, 0.14F, pose::walking, hex(0x3b2f2a), 0.003F);
    figure(photo, {0.49F, 0.715F}, 0.1F, pose::waving, hex(0x463630), 0.003F);
    develop(photo,
            {.bloom = 0.2F, .vignette = 0.28F, .contrast = 0.3F, .tint = {1.02F, 1.0F, 0.97F}, .seed = 2});
}

namespace {

void boat(canvas & photo, point foot, float size, colour sail, float lean)
{
    const auto at = [&](float x, float y) { return foot + point{(x + lean * y) * size, -y * size}; };
    polygon(photo, {at(-0.28F, 0.1F), at(0.34F, 0.12F), at(0.22F, 0), at(-0.2F, 0)}, hex(0xf2f0ea), 1,
            0.002F);
    polygon(photo, {at(-0.26F, 0.05F), at(0.28F, 0.05F), at(0.22F, 0), at(-0.2F, 0)}, hex(0x23406a), 1,
            0.002F);
    polygon(photo, {at(0.03F, 0.14F), at(0.05F, 1.05F), at(0.32F, 0.16F)}, sail, 0.97F, 0.003F);
    polygon(photo, {at(0.0F, 0.14F), at(0.03F, 1.1F), at(-0.1F, 0.6F), at(-0.27F, 0.18F)}, sail * 0.86F,
            0.97F, 0.003F);
    limb(photo, at(0.015F, 0.08F), at(0.04F, 1.12F), size * 0.008F, size * 0.005F, hex(0x4d4a45));
    oval(photo, foot + point{0, size * 0.02F}, size * 0.34F, size * 0.025F, hex(0xe7f2f4), 0.55F,
         size * 0.03F);
}

}  // namespace

void sailing_boats(canvas & photo)
{
    const float horizon = 0.47F;
    sky(photo, hex(0x4a86bd), hex(0x93bedb), hex(0xe6e9e2), horizon);
    clouds(photo, horizon,
           {.amount = 0.6F, .size = 1.9F, .lit = hex(0xfdfaf2), .shaded = hex(0x9aa9ba), .seed = 44});
    hills(photo, {.base = 0.455F,
                  .swing = 0.03F,
                  .width = 0.6F,
                  .crest = hex(0x8ba3b6),
                  .foot = hex(0xaebfca),
                  .depth = 0.06F,
                  .seed = 7});
    water(photo, {.top = horizon,
                  .tint = {0.55F, 0.72F, 0.86F},
                  .ripple = 0.05F,
                  .mirror = 0.75F,
                  .depth = hex(0x123c60),
                  .seed = 15});
    photo.lay({0, horizon, 100, 1}, [&](point p) {
        const float scale = 1 / (0.05F + (p.y - horizon) * 1.9F);
        const float glint = cloudy(p.x * scale * 3, p.y * scale * 20, 3, 71);
        return ink{hex(0xeef6f8), 0.75F * rise(0.72F, 0.84F, glint)};
    });
    boat(photo, {0.28F, 0.51F}, 0.13F, hex(0xf6f3ea), 0.06F);
    boat(photo, {1.22F, 0.53F}, 0.2F, hex(0xe8b04a), 0.08F);
    boat(photo, {0.9F, 0.495F}, 0.08F, hex(0xffffff), 0.05F);
    boat(photo, {0.62F, 0.7F}, 0.52F, hex(0xf7f5ee), 0.1F);
    develop(photo, {.bloom = 0.2F, .vignette = 0.3F, .contrast = 0.35F, .seed = 13});
}

void waterfall(canvas & photo)
{
    // Wet rock, moss on its steps.
    photo.lay({}, [](point p) {
        const float strata = cloudy(p.x * 5, p.y * 13, 6, 61), crack = cloudy(p.x * 17, p.y * 9, 5, 62);
        const float moss = rise(0.5F, 0.66F, cloudy(p.x * 6, p.y * 7, 5, 63));
        const colour rock = mix(hex(0x1c1f20), hex(0x6c685d), strata * 1.25F - 0.15F) * (0.5F + crack);
        const colour green =
            mix(hex(0x1e3315), hex(0x7fa03c), cloudy(p.x * 30, p.y * 30, 4, 64) * 1.3F - 0.2F);
        return ink{mix(rock, green, moss * (0.9F - 0.3F * p.y)) *
                   (1.12F - 0.35F * std::abs(p.x - 0.33F) * 2)};
    });
    photo.lay({0, 0, 100, 0.2F}, [](point p) {
        const float leaves = cloudy(p.x * 20, p.y * 20, 5, 65);
        return ink{mix(hex(0x2c4a18), hex(0xe4f0b0), leaves * 1.7F - 0.35F),
                   rise(0.2F, 0.08F, p.y + 0.1F * cloudy(p.x * 7, 3, 3, 66))};
    });
    photo.lay({0, 0.1F, 100, 0.86F}, [](point p) {
        const float middle = 0.34F + 0.05F * cloudy(p.y * 3, 5, 3, 67) - 0.02F;
        const float half = 0.055F + 0.06F * p.y + 0.03F * (cloudy(p.y * 9, 2, 3, 68) - 0.5F);
        const float veil = cloudy(p.x * 60, p.y * 3.5F, 4, 69), thread = cloudy(p.x * 150, p.y * 6, 3, 70);
        const float body = inside(std::abs(p.x - middle) - half, 0.035F) * rise(0.12F, 0.17F, p.y);
        return ink{mix(hex(0xa9bfc9), hex(0xffffff), 0.35F + 0.8F * veil),
                   body * clamped(0.3F + 0.75F * veil + 0.5F * (thread - 0.4F))};
    });
    photo.lay({0, 0.8F, 100, 1}, [](point p) {
        const float near = (p.y - 0.8F) / 0.2F;
        const float wave = cloudy(p.x * 14 / (0.4F + near), p.y * 50 / (0.4F + near), 4, 72);
        return ink{mix(hex(0x14302f), hex(0xa7c6c4),
                       wave * 1.3F - 0.25F + 0.5F * rise(0.3F, 0, std::abs(p.x - 0.36F))),
                   rise(0.8F, 0.84F, p.y)};
    });
    for (int i = 0; i < 7; ++i) {
        const float a = static_cast<float>(i);
        oval(photo, {0.07F + 0.09F * a + 0.02F * std::sin(a * 5), 0.9F + 0.035F * std::sin(a * 3)}, 0.05F,
             0.028F, hex(0x22211d) * (0.8F + 0.1F * std::sin(a)), 1, 0.008F);
    }
    oval(photo, {0.37F, 0.83F}, 0.24F, 0.07F, hex(0xf4fafb), 0.6F, 0.06F);
    develop(photo, {.bloom = 0.3F, .vignette = 0.45F, .contrast = 0.35F, .seed = 17});
}

namespace {

/// The tower with its bands, its dark side and its lamp room.
void tower(canvas & photo)
{
    polygon(photo, {{0.3F, 0.82F}, {0.333F, 0.36F}, {0.407F, 0.36F}, {0.44F, 0.82F}}, hex(0xd9d2cb));
    for (int band = 0; band < 3; ++band) {
        const float top = 0.42F + 0.14F * static_cast<float>(band), low = top + 0.06F;
        const auto edge = [](float y) { return 0.033F * (y - 0.36F) / 0.46F; };
        polygon(photo,
                {{0.333F - edge(top), top},
                 {0.407F + edge(top), top},
                 {0.407F + edge(low), low},
                 {0.333F - edge(low), low}},
                hex(0xa8322c));
    }
    photo.lay({0.28F, 0.3F, 0.46F, 0.83F}, [](point p) {
        return ink{hex(0x0d1020),
                   0.6F * rise(0.36F, 0.45F, p.x) *
                       inside(std::abs(p.x - 0.37F) - 0.037F - 0.033F * (p.y - 0.36F) / 0.46F, 0.002F) *
                       rise(0.355F, 0.36F, p.y) * rise(0.825F, 0.82F, p.y)};
    });
    box(photo, {0.322F, 0.345F, 0.418F, 0.362F}, hex(0x2b2a30));
    box(photo, {0.348F, 0.3F, 0.392F, 0.345F}, hex(0xffe9b0));
    polygon(photo, {{0.34F, 0.302F}, {0.37F, 0.265F}, {0.4F, 0.302F}}, hex(0x7c2a26));
    for (const float x : {0.348F, 0.37F, 0.392F})
        limb(photo, {x, 0.3F}, {x, 0.346F}, 0.0016F, 0.0016F, hex(0x2b2a30));
}

/// The house of the keeper.
void keepers_house(canvas & photo)
{
    box(photo, {0.46F, 0.775F, 0.58F, 0.84F}, hex(0x8d8078));
    polygon(photo, {{0.45F, 0.777F}, {0.52F, 0.725F}, {0.59F, 0.777F}}, hex(0x3b2527));
    box(photo, {0.485F, 0.792F, 0.508F, 0.815F}, hex(0xffcf7a));
    box(photo, {0.532F, 0.792F, 0.555F, 0.815F}, hex(0xffcf7a));
}

}  // namespace

void lighthouse(canvas & photo)
{
    const float horizon = 0.66F;
    sky(photo, hex(0x1b2f57), hex(0x6a5a86), hex(0xf4a56d), horizon);
    clouds(photo, horizon,
           {.amount = 0.45F, .size = 2.4F, .lit = hex(0xf7a983), .shaded = hex(0x554a70), .seed = 81});
    glow(photo, {0.08F, horizon}, 0.55F, hex(0xff8a3c) * 0.6F);
    water(photo, {.top = horizon,
                  .tint = {0.7F, 0.72F, 0.85F},
                  .ripple = 0.035F,
                  .mirror = 0.85F,
                  .depth = hex(0x121c33),
                  .seed = 82});
    hills(photo, {.base = 0.83F,
                  .swing = 0.09F,
                  .width = 0.35F,
                  .crest = hex(0x39343a),
                  .foot = hex(0x121217),
                  .depth = 0.14F,
                  .rough = 0.6F,
                  .seed = 87});
    tower(photo);
    photo.add({0, 0.1F, 100, 0.6F}, [](point p) {
        const float away = std::abs(p.x - 0.37F);
        const float beam = rise(0.012F + away * 0.13F, 0, std::abs(p.y - 0.322F + 0.1F * (p.x - 0.37F)));
        return hex(0xffe7b0) * (0.42F * beam * rise(0.75F, 0.05F, away));
    });
    glow(photo, {0.37F, 0.322F}, 0.16F, hex(0xffdf9a) * 1.1F);
    keepers_house(photo);
    develop(photo, {.bloom = 0.5F, .vignette = 0.4F, .seed = 20});
}
