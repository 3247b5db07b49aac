#include "scenes_close.h"

#include "nature.h"
#include "noise.h"

#include <numbers>

void flower_close_up(canvas & photo)
{
    out_of_focus(photo, hex(0x1f3a1a), hex(0xa8c46a), 271);
    limb(photo, {0.36F, 0.45F}, {0.3F, 1.05F}, 0.014F, 0.018F, hex(0x5f8a34), 1, 0.004F);
    oval(photo, {0.47F, 0.83F}, 0.17F, 0.045F, hex(0x4c7a2c), 1, 0.006F, -0.6F);
    const point heart{0.36F, 0.42F};
    for (int ring = 0; ring < 3; ++ring) {
        const int petals = 15 - ring * 2;
        const float reach = 0.275F - 0.055F * static_cast<float>(ring);
        for (int petal = 0; petal < petals; ++petal) {
            const float angle = (static_cast<float>(petal) + 0.37F * static_cast<float>(ring)) /
                                static_cast<float>(petals) * 2 * std::numbers::pi_v<float>;
            const float c = std::cos(angle), s = std::sin(angle), wide = reach * 0.2F;
            const point middle{heart.x + c * reach * 0.58F, heart.y + s * reach * 0.58F};
            fill(
                photo, {middle.x - reach, middle.y - reach, middle.x + reach, middle.y + reach},
                [&](point p) { return to_ellipse(p, middle, reach * 0.46F, wide, angle); },
                [&](point p) {
                    const point d = p - heart;
                    const float along = (d.x * c + d.y * s) / reach, across = (d.y * c - d.x * s) / wide;
                    const float veins =
                        value_noise(across * 9, along * 2, 273U + static_cast<unsigned>(petal));
                    const colour base = mix(hex(0xb02a6a), hex(0xffc3dc), along * 1.15F - 0.1F);
                    return base * (0.72F + 0.2F * veins + 0.2F * (1 - across * across) - 0.12F * s);
                },
                0.0025F);
        }
    }
    fill(
        photo, {0.2F, 0.28F, 0.52F, 0.56F}, [&](point p) { return length(p - heart) - 0.068F; },
        [&](point p) {
            const float dots = cloudy((p.x - heart.x) * 130, (p.y - heart.y) * 130, 2, 275);
            return mix(hex(0x9a5a08), hex(0xffd84a), dots * 1.4F - 0.1F) *
                   (1.15F - length(p - heart - point{-0.02F, -0.02F}) * 5);
        },
        0.006F);
    dice chance(83);
    for (int drop = 0; drop < 16; ++drop) {
        const float angle = chance.between(0, 6.28F), out = chance.between(0.1F, 0.25F),
                    size = chance.between(0.003F, 0.008F);
        const point at{heart.x + std::cos(angle) * out, heart.y + std::sin(angle) * out};
        disc(photo, at, size, hex(0x7a1a48), 0.35F, size * 0.4F);
        disc(photo, at - point{size * 0.3F, size * 0.3F}, size * 0.35F, hex(0xffffff), 0.9F, size * 0.25F);
    }
    develop(photo, {.bloom = 0.25F, .vignette = 0.4F, .seed = 9});
}

void birthday_cake(canvas & photo)
{
    out_of_focus(photo, hex(0x2b1a2c), hex(0xc87a52), 281);
    dice chance(89);
    const colour lights[] = {hex(0xffb04a), hex(0xff6a5a), hex(0x6ad0ff), hex(0xfff0b0)};
    for (int i = 0; i < 34; ++i)
        bokeh(photo, {chance.between(0, 0.67F), chance.between(0.02F, 0.5F)}, chance.between(0.018F, 0.04F),
              lights[chance.whole(4)], chance.between(0.15F, 0.4F));
    planks(photo, 0.82F, hex(0x4a2b18), hex(0x9c6a40), 0.055F, 283);
    oval(photo, {0.333F, 0.86F}, 0.3F, 0.07F, hex(0x120a0a), 0.6F, 0.04F);
    oval(photo, {0.333F, 0.84F}, 0.285F, 0.062F, hex(0xe9e4e0), 1, 0.003F);
    oval(photo, {0.333F, 0.836F}, 0.27F, 0.055F, hex(0xcfc8c4), 1, 0.003F);
    const auto tier = [&](float top, float foot, float half, float flat, colour base) {
        fill(
            photo, {0, top - flat, 0.7F, foot + flat},
            [=](point p) {
                const float wall = std::max({std::abs(p.x - 0.333F) - half, top - p.y, p.y - foot});
                return std::min({wall, to_ellipse(p, {0.333F, foot}, half, flat),
                                 to_ellipse(p, {0.333F, top}, half, flat)});
            },
            [=](point p) {
                const float around = (p.x - 0.333F) / half;
                const float drip = top + flat * std::sqrt(std::max(0.0F, 1 - around * around)) + 0.03F +
                                   0.028F * cloudy(p.x * 26, 3, 2, 285);
                const bool icing = p.y < drip;
                const float light = 1.08F - 0.5F * around * around - 0.18F * around +
                                    0.08F * (cloudy(p.x * 30, p.y * 30, 3, 287) - 0.5F);
                return (icing ? hex(0xfbe9e6) : base) *
                       (to_ellipse(p, {0.333F, top}, half, flat) < 0 ? 1.02F : light * 0.9F);
            },
            0.003F);
    };
    tier(0.68F, 0.83F, 0.225F, 0.045F, hex(0xd98a9c));
    tier(0.55F, 0.67F, 0.155F, 0.032F, hex(0xf0b8a8));
    for (int berry = 0; berry < 15; ++berry) {
        const float angle = static_cast<float>(berry) / 15 * std::numbers::pi_v<float>;
        const point at{0.333F + 0.197F * std::cos(angle), 0.678F + 0.033F * std::sin(angle)};
        disc(photo, at, 0.017F, hex(0xa01428), 1, 0.003F);
        disc(photo, at - point{0.005F, 0.006F}, 0.006F, hex(0xff7a7a), 0.8F, 0.005F);
    }
    for (int candle = 0; candle < 7; ++candle) {
        const float x = 0.218F + 0.0385F * static_cast<float>(candle),
                    foot = 0.552F + 0.016F * std::sin(static_cast<float>(candle) * 2.2F);
        const colour wax[] = {hex(0x4a90d0), hex(0xf2c84a), hex(0xe06a8a)};
        limb(photo, {x, foot - 0.095F}, {x, foot}, 0.0065F, 0.0065F, wax[candle % 3]);
        glow(photo, {x, foot - 0.118F}, 0.09F, hex(0xffa84a) * 0.9F);
        oval(photo, {x, foot - 0.116F}, 0.0068F, 0.0175F, hex(0xffc24a), 1, 0.004F);
        oval(photo, {x, foot - 0.112F}, 0.0038F, 0.0105F, hex(0xfffbe6), 1, 0.003F);
    }
    develop(photo, {.bloom = 0.55F, .vignette = 0.45F, .seed = 7});
}

void coffee_table(canvas & photo)
{
    planks(photo, 0, hex(0x5a3b24), hex(0xb98a5c), 0.19F, 291);
    photo.lay({}, [](point p) { return ink{hex(0x100806), 0.55F * rise(0.3F, 1.7F, p.x + p.y * 0.4F)}; });
    const point cup{0.62F, 0.52F};
    oval(photo, cup + point{0.035F, 0.045F}, 0.37F, 0.365F, hex(0x170c06), 0.6F, 0.05F);
    const auto china = [&](float radius, colour rim, colour middle) {
        fill(
            photo, {0.1F, 0, 1.2F, 1}, [&](point p) { return length(p - cup) - radius; },
            [&](point p) {
                const point d = p - cup;
                return mix(middle, rim, length(d) / radius) * (1 - 0.22F * (d.x + d.y) / radius);
            });
    };
    china(0.36F, hex(0xf4f1ec), hex(0xd6d0c8));
    china(0.345F, hex(0xe2ddd6), hex(0xcfc8bf));
    oval(photo, cup + point{0.03F, 0.035F}, 0.245F, 0.24F, hex(0x5c5148), 0.7F, 0.04F);
    limb(photo, cup + point{0.2F, -0.13F}, cup + point{0.31F, -0.2F}, 0.03F, 0.026F, hex(0xf1ede6), 1,
         0.003F);
    china(0.235F, hex(0xfaf8f4), hex(0xe6e1da));
    fill(
        photo, {0.3F, 0.2F, 0.95F, 0.85F}, [&](point p) { return length(p - cup) - 0.205F; },
        [&](point p) {
            const point d = (p - cup) * (1 / 0.205F);
            const float x = std::abs(d.x), y = d.y + 0.12F;
            const float heart =
                std::max(x * 1.05F + y * 0.62F - 0.52F, length({x - 0.26F, y + 0.16F}) - 0.36F);
            const float leaf = std::min(heart, std::max(x + (y - 0.2F) * 0.9F - 0.46F, -y - 0.15F));
            const float swirl = 0.05F * (cloudy(d.x * 6, d.y * 6, 4, 293) - 0.5F);
            const colour crema = mix(hex(0x6b3a16), hex(0xb9783c), cloudy(d.x * 9, d.y * 9, 4, 295));
            return mix(crema, hex(0xf6e6cc), rise(0.03F, -0.03F, leaf + swirl)) *
                   (1.05F - 0.35F * rise(0.75F, 1.0F, length(d)));
        });
    limb(photo, {1.0F, 0.28F}, {1.17F, 0.75F}, 0.011F, 0.016F, hex(0xb8b4ae), 1, 0.003F);
    oval(photo, {0.985F, 0.235F}, 0.036F, 0.062F, hex(0xc9c5bf), 1, 0.003F, -0.35F);
    oval(photo, {0.982F, 0.238F}, 0.024F, 0.045F, hex(0x8c8680), 1, 0.01F, -0.35F);
    // A plate with a crescent, cut by the edge of the picture.
    oval(photo, {1.4F, 0.8F}, 0.33F, 0.32F, hex(0x140b06), 0.55F, 0.04F);
    disc(photo, {1.38F, 0.78F}, 0.31F, hex(0xdfe4e6));
    disc(photo, {1.38F, 0.78F}, 0.235F, hex(0xc9d0d3), 1, 0.004F);
    for (int part = 0; part < 9; ++part) {
        const float angle = 2.2F + 0.27F * static_cast<float>(part),
                    thick = 0.05F + 0.035F * std::sin(static_cast<float>(part) / 8 * 3.14F);
        const point at{1.42F + 0.14F * std::cos(angle), 0.82F - 0.14F * std::sin(angle)};
        oval(photo, at, thick, thick * 1.12F, hex(0x6e3c12), 1, 0.006F);
        oval(photo, at - point{0.006F, 0.008F}, thick * 0.86F, thick * 0.95F,
             mix(hex(0xb06a22), hex(0xe8b060), 0.5F + 0.4F * std::sin(static_cast<float>(part) * 1.7F)), 1,
             0.02F);
    }
    develop(photo,
            {.bloom = 0.15F, .vignette = 0.45F, .contrast = 0.3F, .tint = {1.03F, 1, 0.96F}, .seed = 18});
}

namespace {

void citrus(canvas & photo, point at, float size, colour peel, colour flesh, unsigned seed)
{
    oval(photo, at + point{size * 0.08F, size * 0.11F}, size * 1.03F, size * 1.02F, hex(0x24404a), 0.45F,
         size * 0.14F);
    const float spin = hashed(static_cast<int>(seed), 1, 5) * 6;
    fill(
        photo, {at.x - size, at.y - size, at.x + size, at.y + size},
        [&](point p) { return length(p - at) - size; },
        [&](point p) {
            const point d = (p - at) * (1 / size);
            const float out = length(d), angle = std::atan2(d.y, d.x) + spin;
            const float part = angle / (2 * std::numbers::pi_v<float>)*10,
                        within = std::abs(part - std::floor(part) - 0.5F) * 2;
            const float wall = (1 - within) * out;
            const float pulp = cloudy(d.x * 9 + std::cos(angle) * 5, d.y * 9 + std::sin(angle) * 5, 4, seed);
            const colour segment = mix(flesh * 0.72F, mix(flesh, hex(0xffffff), 0.35F), pulp * 1.5F - 0.25F);
            const colour pith = hex(0xfbf3df);
            colour c = mix(pith, segment,
                           rise(0.03F, 0.08F, wall) * rise(0.87F, 0.83F, out) * rise(0.04F, 0.1F, out));
            c = mix(c, peel, rise(0.92F, 0.95F, out));
            return c * (1.03F - 0.14F * (d.x + d.y));
        },
        0.0022F);
}

}  // namespace

void citrus_slices(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float weave = 0.5F + 0.25F * (std::sin(p.x * 900) + std::sin(p.y * 900));
        const float folds = cloudy(p.x * 2.2F, p.y * 2.2F, 3, 301);
        return ink{mix(hex(0x7fa8ae), hex(0xd4e4e2), folds) * (0.93F + 0.08F * weave)};
    });
    citrus(photo, {0.2F, 0.2F}, 0.17F, hex(0xf08a1c), hex(0xffa22c), 303);
    citrus(photo, {0.54F, 0.33F}, 0.15F, hex(0xe85a3a), hex(0xf0604e), 305);
    citrus(photo, {0.13F, 0.55F}, 0.125F, hex(0xf2d02c), hex(0xf7e06a), 307);
    citrus(photo, {0.4F, 0.63F}, 0.17F, hex(0xf08a1c), hex(0xff9a24), 309);
    citrus(photo, {0.62F, 0.86F}, 0.13F, hex(0x6f9c2c), hex(0xb9d46a), 311);
    citrus(photo, {0.2F, 0.88F}, 0.15F, hex(0xe85a3a), hex(0xe84a48), 313);
    citrus(photo, {0.6F, 0.06F}, 0.1F, hex(0x7aa832), hex(0xc4da78), 315);
    dice chance(97);
    for (int leaf = 0; leaf < 5; ++leaf) {
        const point at{0.3F + 0.07F * static_cast<float>(leaf % 3), 0.4F + 0.022F * static_cast<float>(leaf)};
        const float turn = chance.between(-1.2F, 1.2F);
        oval(photo, at + point{0.008F, 0.01F}, 0.06F, 0.026F, hex(0x24404a), 0.4F, 0.012F, turn);
        oval(photo, at, 0.06F, 0.026F, mix(hex(0x2f6b2a), hex(0x6aa84a), chance.next()), 1, 0.003F, turn);
    }
    develop(photo, {.bloom = 0.15F, .vignette = 0.3F, .contrast = 0.25F, .seed = 24});
}
