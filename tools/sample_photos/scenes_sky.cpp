#include "scenes_sky.h"

#include "nature.h"
#include "noise.h"

#include <numbers>

namespace {

/// A curtain of northern light whose lower hem runs about `hem` below the top.
void curtain(canvas & photo, float hem, float swing, float strength, unsigned seed)
{
    photo.add({0, 0, 100, 0.75F}, [&](point p) {
        const float fold = cloudy(p.x * 1.3F, 0.5F, 2, seed) - 0.5F;
        const float foot = hem + swing * (fold * 2 + 0.25F * std::sin(p.x * 7 + 9 * fold));
        const float above = foot - p.y;
        if (above < -0.03F)
            return colour{};
        const float slant = p.x + above * 0.12F;
        const float rays = cloudy(slant * 26 + fold * 30, above * 0.7F, 3, seed + 3);
        const float light = rise(-0.03F, 0.02F, above) * std::exp(-std::max(0.0F, above) / 0.13F);
        return mix(hex(0x38f08a), hex(0x8a4ad8), above / 0.3F) *
               (strength * light * (0.25F + 1.2F * rays * rays) * (0.55F + cloudy(p.x * 2, 3, 2, seed + 6)));
    });
}

}  // namespace

void northern_lights(canvas & photo)
{
    const float shore = 0.7F;
    sky(photo, hex(0x050a1e), hex(0x0c2038), hex(0x1f4a58), shore);
    stars(photo, 0.66F, 520, 401);
    curtain(photo, 0.36F, 0.2F, 0.95F, 403);
    curtain(photo, 0.5F, 0.16F, 0.8F, 411);
    curtain(photo, 0.24F, 0.14F, 0.5F, 421);
    hills(photo, {.base = 0.62F,
                  .swing = 0.1F,
                  .width = 0.5F,
                  .crest = hex(0x4a6a78),
                  .foot = hex(0x1d3444),
                  .depth = 0.12F,
                  .rough = 0.5F,
                  .seed = 423});
    hills(photo, {.base = 0.685F,
                  .swing = 0.015F,
                  .width = 0.3F,
                  .crest = hex(0x0a1418),
                  .foot = hex(0x060c10),
                  .depth = 0.05F,
                  .seed = 425});
    dice chance(427);
    for (int i = 0; i < 70; ++i)
        fir(photo, {chance.between(-0.02F, 1.52F), 0.704F}, chance.between(0.025F, 0.075F), hex(0x081014),
            430U + static_cast<unsigned>(i));
    water(photo, {.top = shore,
                  .tint = {0.8F, 0.9F, 0.9F},
                  .ripple = 0.035F,
                  .mirror = 0.9F,
                  .depth = hex(0x040a12),
                  .seed = 429});
    for (int i = 0; i < 9; ++i)
        fir(photo,
            {i < 5 ? 0.04F * static_cast<float>(i * i) / 2 : 1.2F + 0.08F * static_cast<float>(i - 5), 1.06F},
            chance.between(0.24F, 0.46F), hex(0x040809), 450U + static_cast<unsigned>(i));
    develop(photo, {.bloom = 0.45F, .vignette = 0.35F, .contrast = 0.2F, .grain = 0.026F, .seed = 25});
}

namespace {

/// One shell: trails that fly apart and droop, with sparks at their ends.
void burst(canvas & photo, point middle, float size, colour color, unsigned seed)
{
    dice chance(seed);
    glow(photo, middle, size * 1.2F, color * 0.16F);
    for (int ray = 0; ray < 74; ++ray) {
        const float angle = chance.between(0, 2 * std::numbers::pi_v<float>);
        const float reach = size * std::sqrt(chance.between(0.35F, 1.0F));
        for (int step = 4; step <= 22; ++step) {
            const float t = static_cast<float>(step) / 22;
            const point at{middle.x + std::cos(angle) * reach * t,
                           middle.y + std::sin(angle) * reach * t + size * 0.2F * t * t};
            glow(photo, at, 0.0042F + 0.002F * t, mix(hex(0xfff4d8), color, t * 2) * (0.3F + 0.7F * t));
        }
        const point end{middle.x + std::cos(angle) * reach, middle.y + std::sin(angle) * reach + size * 0.2F};
        glow(photo, end, 0.011F, color * 1.2F);
    }
}

/// Heads and raised arms before the light, in rows from far to near.
void crowd(canvas & photo, float top, float size, colour color, unsigned seed)
{
    dice chance(seed);
    for (int row = 0; row < 4; ++row) {
        const float near = size * (0.7F + 0.28F * static_cast<float>(row));
        for (float x = chance.between(-0.05F, 0); x < photo.aspect() + 0.05F;
             x += near * chance.between(0.8F, 1.15F)) {
            const point head{
                x, top + near * (1.1F * static_cast<float>(row)) + chance.between(-0.25F, 0.25F) * near};
            oval(photo, head, near * 0.28F, near * 0.36F, color, 1, 0.003F);
            limb(photo, head + point{-near * 0.3F, near * 0.75F}, head + point{near * 0.3F, near * 0.75F},
                 near * 0.28F, near * 0.28F, color, 1, 0.003F);
            box(photo, {head.x - near * 0.64F, head.y + near * 0.7F, head.x + near * 0.64F, 1}, color, 1,
                0.003F);
            if (chance.next() > 0.62F) {
                const float side = chance.next() > 0.5F ? 1.0F : -1.0F;
                const point elbow = head + point{side * near * 0.6F, -near * 0.05F};
                const point hand = elbow + point{-side * near * chance.between(-0.2F, 0.25F), -near * 0.85F};
                limb(photo, head + point{side * near * 0.45F, near * 0.65F}, elbow, near * 0.13F,
                     near * 0.11F, color, 1, 0.003F);
                limb(photo, elbow, hand, near * 0.11F, near * 0.07F, color, 1, 0.003F);
                disc(photo, hand, near * 0.1F, color, 1, 0.003F);
            }
        }
    }
}

}  // namespace

void fireworks(canvas & photo)
{
    const float shore = 0.73F;
    sky(photo, hex(0x05071a), hex(0x0d1130), hex(0x2b2340), shore);
    clouds(photo, shore,
           {.amount = 0.4F, .size = 2.2F, .lit = hex(0x4a2f4a), .shaded = hex(0x0e1028), .seed = 461});
    burst(photo, {0.34F, 0.22F}, 0.2F, hex(0xffb03a), 463);
    burst(photo, {0.15F, 0.47F}, 0.14F, hex(0xff4a4a), 465);
    burst(photo, {0.53F, 0.5F}, 0.15F, hex(0x4aa0ff), 467);
    burst(photo, {0.1F, 0.13F}, 0.1F, hex(0x7aff9a), 469);
    burst(photo, {0.59F, 0.12F}, 0.11F, hex(0xe070ff), 471);
    dice chance(473);
    for (int lamp = 0; lamp < 60; ++lamp) {
        const float x = chance.between(0, 0.67F);
        box(photo, {x - 0.012F, shore - chance.between(0.01F, 0.045F), x + 0.012F, shore}, hex(0x0b0c1a));
        glow(photo, {x, shore - chance.between(0.002F, 0.03F)}, 0.012F,
             mix(hex(0xffa84a), hex(0xfff0d0), chance.next()));
    }
    water(photo, {.top = shore,
                  .tint = {0.95F, 0.85F, 0.9F},
                  .ripple = 0.09F,
                  .mirror = 0.95F,
                  .depth = hex(0x060818),
                  .seed = 475});
    glow(photo, {0.15F, 0.93F}, 0.4F, hex(0xff6a5a) * 0.42F);
    glow(photo, {0.53F, 0.9F}, 0.4F, hex(0x5aa0ff) * 0.42F);
    glow(photo, {0.34F, 0.8F}, 0.4F, hex(0xffb85a) * 0.45F);
    crowd(photo, 0.885F, 0.06F, hex(0x05050b), 477);
    develop(photo, {.bloom = 0.7F, .vignette = 0.3F, .contrast = 0.15F, .grain = 0.028F, .seed = 26});
}

void concert(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float smoke = cloudy(p.x * 2.2F, p.y * 3, 5, 481);
        const float near = rise(0.95F, 0.1F, length({(p.x - 0.75F) * 0.9F, p.y - 0.6F}));
        return ink{
            mix(hex(0x08040f), mix(hex(0x6a1a6a), hex(0x2a3aa8), p.x / 1.5F), near * (0.35F + 0.7F * smoke))};
    });
    const colour lamps[] = {hex(0xff3a6a), hex(0xb04aff), hex(0x3a6aff), hex(0x30d0ff), hex(0xffb04a)};
    for (int lamp = 0; lamp < 9; ++lamp) {
        const float l = static_cast<float>(lamp), x = 0.22F + 0.1325F * l,
                    lean = 0.55F * std::sin(l * 2.3F + 0.6F);
        const colour light = lamps[lamp % 5];
        photo.add({0, 0.05F, 100, 0.92F}, [&](point p) {
            const float down = p.y - 0.07F;
            const float off = std::abs(p.x - x - lean * down), wide = 0.012F + 0.11F * down;
            return light * (0.75F * rise(wide, 0, off) * rise(0.95F, 0, down) *
                            (0.5F + cloudy(p.x * 4, p.y * 4, 3, 483)));
        });
        glow(photo, {x, 0.07F}, 0.07F, mix(light, hex(0xffffff), 0.5F) * 1.2F);
    }
    box(photo, {0.1F, 0.035F, 1.4F, 0.05F}, hex(0x050408));
    box(photo, {0.2F, 0.655F, 1.3F, 0.69F}, hex(0x07050a));
    for (int player = 0; player < 4; ++player) {
        const float x = 0.45F + 0.2F * static_cast<float>(player);
        figure(photo, {x, 0.66F}, player == 1 ? 0.25F : 0.22F, player == 1 ? pose::holding_up : pose::walking,
               hex(0x07050a), 0.002F);
        if (player != 1) {
            limb(photo, {x - 0.055F, 0.525F}, {x + 0.095F, 0.49F}, 0.006F, 0.003F, hex(0x120810));
            oval(photo, {x - 0.03F, 0.545F}, 0.034F, 0.022F, hex(0x3a1018), 1, 0.003F, -0.2F);
        }
    }
    for (const float x : {0.3F, 0.75F, 1.2F})
        glow(photo, {x, 0.76F}, 0.42F, mix(hex(0xe04ac0), hex(0x4a7aff), x / 1.5F) * 0.75F);
    crowd(photo, 0.76F, 0.085F, hex(0x050308), 485);
    develop(photo, {.bloom = 0.75F, .vignette = 0.35F, .contrast = 0.25F, .grain = 0.034F, .seed = 29});
}

namespace {

/// A paper lantern that rises with a flame in it.
void lantern(canvas & photo, point at, float size, float strength)
{
    glow(photo, at, size * 4.5F, hex(0xff8a2a) * (0.35F * strength));
    fill(
        photo, {at.x - size, at.y - size * 1.4F, at.x + size, at.y + size * 1.4F},
        [&](point p) {
            const point d{(p.x - at.x) / size, (p.y - at.y) / size};
            const float wide = 0.78F - 0.16F * d.y - 0.28F * rise(-0.5F, -1.25F, d.y);
            return std::max(std::abs(d.x) - wide, std::abs(d.y) - 1.15F) * size;
        },
        [&](point p) {
            const point d{(p.x - at.x) / size, (p.y - at.y) / size};
            const float flame = rise(1.5F, 0.1F, length({d.x * 1.2F, d.y - 0.85F}));
            return mix(hex(0xc04a12), hex(0xffe9a0), flame * 1.1F) * ((0.55F + 0.6F * flame) * strength);
        },
        size * 0.12F);
}

}  // namespace

void sky_lanterns(canvas & photo)
{
    const float shore = 0.76F;
    sky(photo, hex(0x0c1238), hex(0x24265a), hex(0x7a4a62), shore);
    stars(photo, 0.5F, 130, 491);
    dice chance(493);
    for (int i = 0; i < 120; ++i) {
        const float near = static_cast<float>(i) / 120,
                    y = shore - 0.06F - (0.66F * chance.next()) * (0.35F + 0.65F * near);
        lantern(photo, {chance.between(0, 0.667F), y}, 0.0035F + 0.016F * near * near, 0.7F + 0.3F * near);
    }
    lantern(photo, {0.2F, 0.24F}, 0.052F, 1);
    lantern(photo, {0.5F, 0.4F}, 0.036F, 1);
    lantern(photo, {0.47F, 0.13F}, 0.03F, 1);
    hills(photo, {.base = 0.73F,
                  .swing = 0.035F,
                  .width = 0.4F,
                  .crest = hex(0x2a2244),
                  .foot = hex(0x1a1630),
                  .depth = 0.05F,
                  .seed = 495});
    water(photo, {.top = shore,
                  .tint = {0.95F, 0.85F, 0.8F},
                  .ripple = 0.06F,
                  .mirror = 0.95F,
                  .depth = hex(0x0a0c22),
                  .seed = 497});
    box(photo, {0, 0.93F, 0.67F, 1}, hex(0x08060f), 1, 0.006F);
    figure(photo, {0.24F, 0.96F}, 0.2F, pose::holding_up, hex(0x08060f), 0.002F);
    figure(photo, {0.33F, 0.96F}, 0.185F, pose::standing, hex(0x08060f), 0.002F);
    figure(photo, {0.415F, 0.965F}, 0.12F, pose::holding_up, hex(0x08060f), 0.002F);
    develop(photo, {.bloom = 0.6F, .vignette = 0.35F, .contrast = 0.15F, .grain = 0.028F, .seed = 44});
}

namespace {

/// The band of the galaxy, from the lower left to the upper right.
void milky_way(canvas & photo)
{
    photo.add({0, 0, 100, 0.75F}, [](point p) {
        const float off = (p.y - 0.62F + 0.5F * (p.x - 0.35F)) / 1.12F;
        const float waver = cloudy(p.x * 3, p.y * 3, 4, 501) - 0.5F;
        const float band = std::exp(-std::pow((off + waver * 0.1F) / 0.13F, 2.0F));
        const float dust = rise(0.42F, 0.62F, cloudy(p.x * 6 + 2, p.y * 6, 5, 503)) *
                           std::exp(-std::pow((off + waver * 0.2F) / 0.07F, 2.0F));
        const float specks =
            std::pow(hashed(static_cast<int>(p.x * 1080), static_cast<int>(p.y * 1080), 505), 24.0F);
        return mix(hex(0x5a68a8), hex(0xd8b0a0), band * band) *
               (band * (0.42F - 0.34F * dust) + 0.9F * specks * band);
    });
}

}  // namespace

void tent_under_stars(canvas & photo)
{
    sky(photo, hex(0x050818), hex(0x0f1a38), hex(0x2e3a58), 0.75F);
    stars(photo, 0.72F, 900, 507);
    milky_way(photo);
    hills(photo, {.base = 0.63F,
                  .swing = 0.11F,
                  .width = 0.55F,
                  .crest = hex(0x232f48),
                  .foot = hex(0x141c30),
                  .depth = 0.15F,
                  .rough = 0.5F,
                  .seed = 509});
    ground(photo, 0.77F, hex(0x151c1c), hex(0x070a08), 0.8F, 511);
    dice chance(513);
    for (int i = 0; i < 26; ++i)
        fir(photo, {chance.between(-0.05F, 1.55F), chance.between(0.76F, 0.79F)},
            chance.between(0.08F, 0.24F), hex(0x070c10), 520U + static_cast<unsigned>(i));
    glow(photo, {0.98F, 0.83F}, 0.34F, hex(0xff9a3a) * 0.55F);
    const std::vector<point> cloth = {{0.98F, 0.655F}, {1.175F, 0.9F}, {0.77F, 0.9F}};
    polygon(photo, cloth, hex(0xe07a1c), 1, 0.003F);
    photo.add({0.77F, 0.65F, 1.18F, 0.9F}, [](point p) {
        const float down = (p.y - 0.655F) / 0.245F, half = 0.2F * down;
        const float within = rise(half, half - 0.01F, std::abs(p.x - 0.975F));
        const float folds = 0.5F + 0.5F * std::sin((p.x - 0.975F) / std::max(0.02F, half) * 9);
        return hex(0xffb050) *
               (within * (0.2F + 0.75F * rise(0.2F, 0, length({p.x - 0.97F, p.y - 0.85F})) + 0.12F * folds));
    });
    polygon(photo, {{0.98F, 0.7F}, {1.005F, 0.9F}, {0.945F, 0.9F}}, hex(0xffe8b0), 0.9F, 0.006F);
    limb(photo, {0.98F, 0.655F}, {0.77F, 0.9F}, 0.003F, 0.003F, hex(0x5a2a0a), 0.7F);
    limb(photo, {0.98F, 0.655F}, {1.175F, 0.9F}, 0.003F, 0.003F, hex(0x5a2a0a), 0.7F);
    figure(photo, {0.865F, 0.945F}, 0.19F, pose::standing, hex(0x0a0806), 0.002F);
    grass(photo, -0.05F, 1.55F, 1.0F, 0.07F, 700, hex(0x050705), hex(0x2a2412), 515);
    develop(photo, {.bloom = 0.5F, .vignette = 0.35F, .contrast = 0.2F, .grain = 0.03F, .seed = 47});
}

namespace {

void wheel(canvas & photo, point hub, float radius)
{
    const colour steel = hex(0x28305c);
    for (const float side : {-1.0F, 1.0F})
        limb(photo, hub, {hub.x + side * radius * 0.5F, 0.92F}, 0.006F, 0.009F, hex(0x1a2044));
    for (int spoke = 0; spoke < 20; ++spoke) {
        const float angle = static_cast<float>(spoke) / 20 * 2 * std::numbers::pi_v<float>;
        const point rim = hub + point{std::cos(angle), std::sin(angle)} * radius;
        limb(photo, hub, rim, 0.0014F, 0.0014F, steel);
        for (int lamp = 2; lamp <= 12; ++lamp)
            glow(photo, hub + (rim - hub) * (static_cast<float>(lamp) / 12), 0.0085F,
                 mix(hex(0xff4a8a), hex(0x4ad0ff), 0.5F + 0.5F * std::sin(static_cast<float>(lamp) * 0.6F)) *
                     0.85F);
    }
    for (const float ring : {1.0F, 0.9F, 0.45F})
        fill(
            photo, {0, 0, 1, 1}, [&](point p) { return std::abs(length(p - hub) - radius * ring) - 0.002F; },
            [&](point) { return hex(0x5a68a8); });
    for (int lamp = 0; lamp < 110; ++lamp) {
        const float angle = static_cast<float>(lamp) / 110 * 2 * std::numbers::pi_v<float>;
        glow(photo, hub + point{std::cos(angle), std::sin(angle)} * radius, 0.012F, hex(0xffe0a0));
    }
    const colour cabins[] = {hex(0xd83a4a), hex(0xf0b02a), hex(0x3aa06a), hex(0x3a7ad8), hex(0xb04ac0)};
    for (int cabin = 0; cabin < 20; ++cabin) {
        const float angle = static_cast<float>(cabin) / 20 * 2 * std::numbers::pi_v<float>;
        const point at = hub + point{std::cos(angle), std::sin(angle)} * radius + point{0, 0.022F};
        oval(photo, at, 0.0165F, 0.0145F, cabins[cabin % 5] * 0.9F, 1, 0.002F);
        box(photo, {at.x - 0.01F, at.y - 0.007F, at.x + 0.01F, at.y + 0.001F}, hex(0xfff0c0), 0.9F, 0.002F);
    }
    disc(photo, hub, 0.022F, hex(0xfff2d0), 1, 0.006F);
    glow(photo, hub, 0.13F, hex(0xffb0d0) * 0.8F);
}

}  // namespace

void ferris_wheel(canvas & photo)
{
    sky(photo, hex(0x141c50), hex(0x3a3a86), hex(0xe08a6a), 0.95F);
    clouds(photo, 0.9F,
           {.amount = 0.42F, .size = 2.2F, .lit = hex(0xd07a86), .shaded = hex(0x3a3a78), .seed = 531});
    wheel(photo, {0.34F, 0.42F}, 0.28F);
    dice chance(533);
    const colour roofs[] = {hex(0xb02a3a), hex(0x2a6ab0), hex(0xc08a1a), hex(0x6a2a8a)};
    for (int booth = 0; booth < 6; ++booth) {
        const float left = -0.04F + 0.128F * static_cast<float>(booth),
                    top = 0.8F + 0.012F * static_cast<float>(booth % 2);
        polygon(photo, {{left + 0.058F, top - 0.04F}, {left + 0.122F, top}, {left - 0.006F, top}},
                roofs[booth % 4]);
        box(photo, {left, top, left + 0.116F, 0.92F}, hex(0x3a2030));
        box(photo, {left + 0.01F, top + 0.015F, left + 0.106F, 0.88F}, hex(0xffc870), 1, 0.004F);
        glow(photo, {left + 0.058F, top + 0.04F}, 0.13F, hex(0xffa850) * 0.55F);
        for (int bulb = 0; bulb < 8; ++bulb)
            glow(photo, {left + 0.004F + 0.0155F * static_cast<float>(bulb), top + 0.004F}, 0.012F,
                 hex(0xfff0c0));
    }
    ground(photo, 0.91F, hex(0x5a3a34), hex(0x181018), 0.4F, 535);
    for (int guest = 0; guest < 22; ++guest)
        figure(photo, {chance.between(0, 0.667F), chance.between(0.935F, 0.985F)},
               chance.between(0.085F, 0.125F), guest % 3 ? pose::walking : pose::standing, hex(0x120c18),
               0.002F);
    develop(photo, {.bloom = 0.65F, .vignette = 0.35F, .contrast = 0.2F, .grain = 0.026F, .seed = 38});
}
