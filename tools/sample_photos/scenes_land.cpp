#include "scenes_land.h"

#include "nature.h"
#include "noise.h"

#include <numbers>

void forest_path(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float leaves = cloudy(p.x * 16, p.y * 16, 5, 101);
        const float light = rise(0.5F, 0, length({(p.x - 0.36F) * 1.5F, p.y - 0.38F}));
        return ink{mix(mix(hex(0x1d3312), hex(0x6f9a35), leaves * 1.5F - 0.25F), hex(0xf5f6c8),
                       light * (0.55F + 0.5F * leaves))};
    });
    ground(photo, 0.55F, hex(0xa9a455), hex(0x2c3a17), 0.7F, 103);
    photo.lay({0, 0.54F, 100, 1}, [](point p) {
        const float near = (p.y - 0.54F) / 0.46F;
        const float middle = 0.36F + 0.09F * std::sin(near * 3.2F) * (1 - near * 0.4F);
        const float half = 0.012F + 0.2F * near * near + 0.06F * near;
        const float rough = 0.03F * near * (cloudy(p.y * 30, p.x * 6, 3, 105) - 0.5F);
        const float stones = cloudy(p.x * 30 / (0.2F + near), p.y * 60 / (0.2F + near), 4, 106);
        const float dapple = rise(0.45F, 0.65F, cloudy(p.x * 9, p.y * 16, 3, 107));
        return ink{mix(hex(0x6b5233), hex(0xd9bf8c), stones * 0.6F + dapple * 0.55F),
                   inside(std::abs(p.x - middle) - half + rough, 0.015F + 0.02F * near)};
    });
    dice chance(11);
    for (int i = 0; i < 30; ++i) {
        const float near = static_cast<float>(i) / 30;
        const float side = i % 2 ? 1.0F : -1.0F;
        const float x = 0.36F + side * (0.05F + near * 0.4F * chance.between(0.75F, 1.25F));
        const float foot = 0.56F + near * 0.34F, thick = 0.004F + 0.034F * near * near;
        const colour bark = mix(hex(0x8a8a55), hex(0x1e150d), 0.2F + near * 0.8F);
        fill(
            photo, {x - 0.1F, 0, x + 0.1F, foot + 0.02F},
            [&](point p) {
                return to_limb(p, {x, foot}, {x + 0.02F * side, -0.1F}, thick * 1.15F, thick * 0.75F);
            },
            [&](point p) {
                const float ridge = cloudy(p.x * 160, p.y * 14, 4, 200U + static_cast<unsigned>(i));
                return bark * (0.55F + 0.8F * ridge + 0.35F * rise(0.6F, -0.8F, (p.x - x) / thick * side));
            },
            0.002F);
    }
    for (int ray = 0; ray < 6; ++ray) {
        const float from = 0.2F + 0.07F * static_cast<float>(ray);
        photo.add({0, 0, 100, 0.8F}, [&](point p) {
            const float off = std::abs(p.x - from + 0.35F * (p.y - 0.2F));
            return hex(0xfff3c0) * (0.13F * rise(0.022F, 0, off) * rise(0.8F, 0.25F, p.y));
        });
    }
    for (int i = 0; i < 4; ++i)
        grass(photo, -0.05F, i % 2 ? 0.2F : 0.75F, 0.9F + 0.03F * static_cast<float>(i), 0.07F, 130,
              hex(0x1c2c0e), hex(0x86a044), 31U + static_cast<unsigned>(i));
    develop(photo, {.bloom = 0.35F, .vignette = 0.5F, .contrast = 0.3F, .seed = 5});
}

namespace {

void sunflower(canvas & photo, point at, float size, unsigned seed)
{
    dice chance(seed);
    limb(photo, at, at + point{chance.between(-0.2F, 0.2F) * size, size * 3.2F}, size * 0.09F, size * 0.12F,
         hex(0x4d6b22));
    for (int leaf = 0; leaf < 3; ++leaf) {
        const float side = leaf % 2 ? 1.0F : -1.0F;
        oval(photo, at + point{side * size * 0.9F, size * (1.3F + 0.6F * static_cast<float>(leaf))},
             size * 0.8F, size * 0.36F, mix(hex(0x35561c), hex(0x7d9c3a), chance.next()), 1, size * 0.06F,
             side * 0.5F);
    }
    for (int petal = 0; petal < 34; ++petal) {
        const float angle = static_cast<float>(petal) * 2.39996F, reach = size * (petal < 17 ? 0.78F : 0.66F);
        const point tip{at.x + std::cos(angle) * reach * 1.3F, at.y + std::sin(angle) * reach * 1.25F};
        const point root{at.x + std::cos(angle) * size * 0.3F, at.y + std::sin(angle) * size * 0.3F};
        limb(photo, root, tip, size * 0.13F, size * 0.03F,
             mix(hex(0xd98a0c), hex(0xffd632), chance.between(0.1F, 1)), 1, size * 0.035F);
    }
    const float half = size * 0.46F;
    fill(
        photo, {at.x - half, at.y - half, at.x + half, at.y + half},
        [&](point p) { return length(p - at) - half * 0.95F; },
        [&](point p) {
            const float out = length(p - at) / half;
            const float seeds = cloudy((p.x - at.x) / size * 30, (p.y - at.y) / size * 30, 2, seed);
            return mix(hex(0x2c1706), hex(0x7a4a14), seeds * (0.4F + 0.8F * std::abs(out - 0.5F)));
        },
        size * 0.05F);
}

}  // namespace

void sunflower_field(canvas & photo)
{
    const float horizon = 0.36F;
    sky(photo, hex(0x2f78c4), hex(0x7db4e2), hex(0xdfeaf0), horizon);
    clouds(photo, horizon, {.amount = 0.4F, .size = 2, .seed = 111});
    hills(photo, {.base = 0.36F,
                  .swing = 0.03F,
                  .width = 0.7F,
                  .crest = hex(0x5d7a6a),
                  .foot = hex(0x8a9c5e),
                  .depth = 0.05F,
                  .seed = 6});
    ground(photo, 0.385F, hex(0x9c9a38), hex(0x263a12), 0.8F, 113);
    dice chance(19);
    for (int row = 0; row < 24; ++row) {
        const float near = std::pow(static_cast<float>(row) / 23, 1.9F);
        const float size = 0.0045F + 0.088F * near;
        const int count = static_cast<int>(1.8F / (size * 2.7F)) + 1;
        for (int i = 0; i < count; ++i) {
            const point at{(static_cast<float>(i) + chance.between(-0.35F, 0.35F)) * size * 2.7F - 0.1F,
                           0.392F + 0.5F * near + chance.between(-0.6F, 0.6F) * size};
            if (size < 0.012F)
                disc(photo, at, size, mix(hex(0xb98a18), hex(0xf2c52a), chance.next()), 1, size * 0.6F);
            else
                sunflower(photo, at, size * chance.between(0.85F, 1.15F),
                          static_cast<unsigned>(row * 100 + i));
        }
    }
    soften_where(photo, 0.006F, [](point p) { return rise(0.55F, 0.36F, p.y) * 0.9F; });
    develop(photo,
            {.bloom = 0.22F, .vignette = 0.35F, .contrast = 0.3F, .tint = {1.04F, 1, 0.93F}, .seed = 6});
}

void winter_firs(canvas & photo)
{
    sky(photo, hex(0x8ea6c4), hex(0xc3cede), hex(0xf3e3da), 0.6F);
    glow(photo, {0.5F, 0.5F}, 0.5F, hex(0xffd9b0) * 0.4F);
    hills(photo, {.base = 0.48F,
                  .swing = 0.13F,
                  .width = 0.5F,
                  .crest = hex(0xb7c3d6),
                  .foot = hex(0xdde3ec),
                  .depth = 0.2F,
                  .rough = 0.2F,
                  .seed = 121});
    photo.lay({0, 0.55F, 100, 1}, [](point p) {
        const float drift = cloudy(p.x * 3, p.y * 7, 5, 123),
                    spark = hashed(static_cast<int>(p.x * 900), static_cast<int>(p.y * 900), 4);
        const colour snow = mix(hex(0xaebdd8), hex(0xfdfbf8), drift * 1.3F - 0.1F) *
                            (0.97F + (spark > 0.985F ? 0.2F : 0.02F));
        return ink{snow, rise(0.56F, 0.6F, p.y + 0.03F * cloudy(p.x * 4, 2, 3, 124))};
    });
    dice chance(29);
    for (int i = 0; i < 16; ++i) {
        const float near = static_cast<float>(i) / 16;
        const point foot{chance.between(-0.02F, 0.7F), 0.6F + 0.3F * near * near};
        const float height = (0.12F + 0.42F * near * near) * chance.between(0.8F, 1.15F);
        const colour green = mix(hex(0x8c9fb0), hex(0x1f332e), 0.25F + near * 0.75F);
        oval(photo, foot + point{height * 0.1F, height * 0.02F}, height * 0.26F, height * 0.03F,
             hex(0x7f93b8), 0.45F, height * 0.04F);
        fir(photo, foot, height, green, 300U + static_cast<unsigned>(i));
        for (int load = 0; load < 46; ++load) {
            const float at = chance.next(), reach = height * 0.22F * (1 - at);
            const point spot{foot.x + chance.between(-1, 1) * reach,
                             foot.y - height * (0.1F + 0.88F * at) + reach * 0.35F};
            oval(photo, spot, height * 0.05F * (1.15F - at), height * 0.014F,
                 mix(hex(0xc9d4e6), hex(0xffffff), chance.next()), 0.9F, height * 0.012F);
        }
    }
    for (int flake = 0; flake < 420; ++flake) {
        const float size = 0.0012F + 0.005F * std::pow(chance.next(), 5.0F);
        disc(photo, {chance.between(0, 0.67F), chance.next()}, size, hex(0xffffff),
             chance.between(0.4F, 0.9F), size * 0.9F);
    }
    develop(photo, {.bloom = 0.15F, .vignette = 0.25F, .contrast = 0.2F, .seed = 10});
}

void desert_dunes(canvas & photo)
{
    sky(photo, hex(0x2f6cae), hex(0x88aed0), hex(0xf0d9b8), 0.45F);
    const colour lit[] = {hex(0xd9ae82), hex(0xe0a25c), hex(0xe69a45), hex(0xdc8430)};
    const colour dark[] = {hex(0xb4927c), hex(0xa06a44), hex(0x8a4c26), hex(0x6e3417)};
    for (int layer = 0; layer < 4; ++layer) {
        const float l = static_cast<float>(layer);
        const unsigned seed = 131U + static_cast<unsigned>(layer) * 3;
        const float base = 0.44F + 0.13F * l + 0.02F * l * l, swing = 0.05F + 0.05F * l, phase = 1.3F * l;
        const auto crest = [=](float x) {
            return base -
                   swing * (0.8F * std::sin(x * (3.4F - 0.5F * l) + phase) +
                            0.4F * std::sin(x * 7.1F + phase * 2)) -
                   0.02F * cloudy(x * 4, 1, 3, seed);
        };
        photo.lay({0, base - swing * 1.6F, 100, 1}, [&](point p) {
            const float below = p.y - crest(p.x);
            const float cover = inside(-below, 0.0015F);
            if (cover <= 0)
                return ink{{}, 0};
            const float slope = (crest(p.x + 0.02F) - crest(p.x - 0.02F)) / 0.04F;
            const float edge = slope * 1.6F + 0.12F * std::sin(below * 14 + p.x * 5) - below * 0.5F;
            const float waves =
                std::sin((p.y * (95 - 14 * l) + 9 * cloudy(p.x * 5, p.y * 5, 3, seed + 1)) * 2.4F);
            const float grains =
                hashed(static_cast<int>(p.x * 1300), static_cast<int>(p.y * 1300), seed) - 0.5F;
            const float ripples = 0.05F * waves * rise(0, 0.1F, below) * (0.3F + 0.3F * l);
            return ink{mix(lit[layer], dark[layer], 0.5F + edge) * (1 + ripples + 0.06F * grains), cover};
        });
    }
    for (int i = 0; i < 5; ++i) {
        const point foot{0.66F + 0.045F * static_cast<float>(i), 0.553F - 0.012F * static_cast<float>(i)};
        figure(photo, foot, 0.045F, pose::walking, hex(0x2a1a12));
    }
    develop(photo,
            {.bloom = 0.2F, .vignette = 0.35F, .contrast = 0.3F, .tint = {1.03F, 1, 0.95F}, .seed = 11});
}

void harvest_moon(canvas & photo)
{
    sky(photo, hex(0x0e1430), hex(0x2b2b55), hex(0x8a4f5c), 0.72F);
    dice chance(37);
    for (int star = 0; star < 240; ++star) {
        const float size = 0.0006F + 0.0016F * std::pow(chance.next(), 4.0F);
        disc(photo, {chance.between(0, 1.5F), chance.between(0, 0.5F)}, size, hex(0xfff7e6),
             chance.between(0.3F, 0.9F), size);
    }
    const point moon{1.0F, 0.42F};
    glow(photo, moon, 0.6F, hex(0xff9a50) * 0.55F);
    fill(
        photo, {0.7F, 0.1F, 1.3F, 0.75F}, [&](point p) { return length(p - moon) - 0.185F; },
        [&](point p) {
            const float seas = rise(0.45F, 0.62F, cloudy(p.x * 9, p.y * 9, 4, 141));
            return mix(hex(0xffdf9a), hex(0xe29a4c), seas * 0.75F) * (1.06F - 0.5F * length(p - moon));
        });
    clouds(photo, 0.7F,
           {.amount = 0.3F, .size = 3, .lit = hex(0xd07a58), .shaded = hex(0x43304f), .seed = 143});
    hills(photo, {.base = 0.68F,
                  .swing = 0.04F,
                  .width = 0.8F,
                  .crest = hex(0x2b2236),
                  .foot = hex(0x1a1526),
                  .depth = 0.1F,
                  .seed = 145});
    hills(photo, {.base = 0.76F,
                  .swing = 0.03F,
                  .width = 0.6F,
                  .crest = hex(0x17121d),
                  .foot = hex(0x0b0910),
                  .depth = 0.2F,
                  .seed = 147});
    const auto branch = [&](auto && self, point from, float angle, float reach, float thick,
                            int depth) -> void {
        const point to{from.x + std::cos(angle) * reach, from.y - std::sin(angle) * reach};
        limb(photo, from, to, thick, thick * 0.7F, hex(0x0b0910));
        if (depth == 0)
            return;
        for (int i = 0; i < 3; ++i)
            self(self, to, angle + chance.between(-0.75F, 0.75F), reach * chance.between(0.62F, 0.86F),
                 thick * 0.62F, depth - 1);
    };
    branch(branch, {0.42F, 0.8F}, 1.6F, 0.13F, 0.017F, 6);
    grass(photo, -0.1F, 1.6F, 1.0F, 0.11F, 900, hex(0x07060a), hex(0x2a1c22), 151);
    figure(photo, {0.62F, 0.775F}, 0.1F, pose::standing, hex(0x0b0910));
    figure(photo, {0.665F, 0.777F}, 0.085F, pose::standing, hex(0x0b0910));
    develop(photo, {.bloom = 0.35F, .vignette = 0.35F, .grain = 0.026F, .seed = 16});
}

void poppy_hills(canvas & photo)
{
    sky(photo, hex(0x5b96cf), hex(0xa4c9e6), hex(0xeef0e2), 0.45F);
    clouds(photo, 0.45F, {.amount = 0.5F, .size = 2.1F, .seed = 161});
    hills(photo, {.base = 0.42F,
                  .swing = 0.07F,
                  .width = 0.8F,
                  .crest = hex(0x8fa6a8),
                  .foot = hex(0xb7c3a6),
                  .depth = 0.12F,
                  .seed = 162});
    hills(photo, {.base = 0.5F,
                  .swing = 0.06F,
                  .width = 0.7F,
                  .crest = hex(0x6d8f4c),
                  .foot = hex(0xa9b860),
                  .depth = 0.14F,
                  .rough = 0.3F,
                  .seed = 164});
    dice chance(41);
    for (int i = 0; i < 9; ++i)
        tree(photo,
             {0.1F + 0.16F * static_cast<float>(i) + chance.between(-0.05F, 0.05F),
              0.51F + chance.between(-0.01F, 0.02F)},
             chance.between(0.05F, 0.11F), hex(0x27401c), hex(0x86a04a), 400U + static_cast<unsigned>(i));
    hills(photo, {.base = 0.62F,
                  .swing = 0.03F,
                  .width = 0.9F,
                  .crest = hex(0x8aa14a),
                  .foot = hex(0x3c5a1e),
                  .depth = 0.4F,
                  .rough = 0.5F,
                  .seed = 166});
    grass(photo, -0.1F, 1.6F, 0.86F, 0.07F, 1500, hex(0x3d5a1f), hex(0xb9c46c), 167);
    for (int i = 0; i < 2600; ++i) {
        const float near = std::pow(chance.next(), 1.7F);
        const point at{chance.between(-0.05F, 1.55F),
                       0.625F + 0.33F * near + chance.between(-0.005F, 0.005F)};
        const float size = 0.0018F + 0.013F * near * near;
        const colour red = mix(hex(0xa11212), hex(0xff4a2a), chance.next());
        oval(photo, at, size, size * 0.72F, red, 0.95F, size * 0.3F);
        if (size > 0.006F)
            oval(photo, at + point{0, size * 0.1F}, size * 0.26F, size * 0.2F, hex(0x230808), 0.9F,
                 size * 0.2F);
    }
    grass(photo, -0.1F, 1.6F, 1.03F, 0.1F, 700, hex(0x2d4516), hex(0x9db254), 168);
    develop(photo, {.bloom = 0.2F, .vignette = 0.3F, .contrast = 0.3F, .seed = 21});
}

void autumn_trees(canvas & photo)
{
    sky(photo, hex(0x9fb8cc), hex(0xc3d2da), hex(0xf4e8cf), 0.6F);
    glow(photo, {0.12F, 0.2F}, 0.6F, hex(0xfff0c8) * 0.25F);
    hills(photo, {.base = 0.52F,
                  .swing = 0.06F,
                  .width = 0.6F,
                  .crest = hex(0xb99a74),
                  .foot = hex(0xd6bd8c),
                  .depth = 0.15F,
                  .rough = 0.4F,
                  .seed = 171});
    ground(photo, 0.6F, hex(0xc6b26a), hex(0x6d6a2c), 0.5F, 173);
    const colour dark[] = {hex(0x8c3a12), hex(0x9a6212), hex(0x7a2a14), hex(0x6a6a1c)};
    const colour light[] = {hex(0xf0892a), hex(0xf6cf3c), hex(0xe05a34), hex(0xd8cf5a)};
    dice chance(43);
    for (int i = 0; i < 13; ++i) {
        const float near = static_cast<float>(i) / 13;
        const int kind = chance.whole(4);
        const float side = i % 2 ? 0.36F + 0.36F * chance.next() : -0.02F + 0.3F * chance.next();
        const float haze = 0.45F * (1 - near);
        tree(photo, {side, 0.62F + 0.17F * near * near}, 0.16F + 0.42F * near * near,
             mix(dark[kind], hex(0xd9c9a8), haze), mix(light[kind], hex(0xf0e2c0), haze),
             500U + static_cast<unsigned>(i));
    }
    photo.lay({0, 0.61F, 100, 1}, [](point p) {
        const float near = (p.y - 0.61F) / 0.39F;
        const float middle = 0.34F + 0.05F * std::sin(near * 4), half = 0.008F + 0.12F * near;
        return ink{mix(hex(0xcbb894), hex(0x9c8663), cloudy(p.x * 30, p.y * 60, 4, 175)),
                   inside(std::abs(p.x - middle) - half, 0.012F)};
    });
    for (int leaf = 0; leaf < 1500; ++leaf) {
        const float near = std::sqrt(chance.next()), size = 0.0015F + 0.0065F * near;
        const int kind = chance.whole(4);
        oval(photo, {chance.between(0, 0.68F), 0.63F + 0.37F * near}, size, size * 0.5F,
             mix(dark[kind], light[kind], chance.next()), 0.9F, size * 0.3F,
             chance.between(0, std::numbers::pi_v<float>));
    }
    figure(photo, {0.35F, 0.76F}, 0.1F, pose::walking, hex(0x35302e), 0.002F);
    develop(photo,
            {.bloom = 0.3F, .vignette = 0.35F, .contrast = 0.25F, .tint = {1.04F, 1, 0.93F}, .seed = 23});
}
