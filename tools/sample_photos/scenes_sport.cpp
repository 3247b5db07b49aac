#include "scenes_sport.h"

#include "nature.h"
#include "noise.h"

#include <array>
#include <numbers>

namespace {

using direction = std::array<float, 3>;

float toward(const direction & a, const direction & b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// The middles of the 12 black and 20 white patches of a football, as unit vectors.
std::vector<direction> patches()
{
    const float g = std::numbers::phi_v<float>;
    std::vector<direction> found;
    for (const float a : {-1.0F, 1.0F})
        for (const float b : {-g, g})
            for (const direction & d : {direction{0, a, b}, direction{a, b, 0}, direction{b, 0, a}})
                found.push_back(d);
    for (const float a : {-1.0F, 1.0F}) {
        for (const float b : {-1.0F, 1.0F}) {
            for (const float c : {-1.0F, 1.0F})
                found.push_back({a, b, c});
            for (const direction & d :
                 {direction{0, a * g, b / g}, direction{a * g, b / g, 0}, direction{b / g, 0, a * g}})
                found.push_back(d);
        }
    }
    for (direction & d : found) {
        const float scale = 1 / std::sqrt(toward(d, d));
        d = {d[0] * scale, d[1] * scale, d[2] * scale};
    }
    return found;
}

void leather_ball(canvas & photo, point at, float radius)
{
    const std::vector<direction> all = patches();
    fill(
        photo, {at.x - radius, at.y - radius, at.x + radius, at.y + radius},
        [&](point p) { return length(p - at) - radius; },
        [&](point p) {
            const float x = (p.x - at.x) / radius, y = (p.y - at.y) / radius,
                        z = std::sqrt(std::max(0.0F, 1 - x * x - y * y));
            const float tilt = 0.5F, spin = 0.35F;
            const float y2 = y * std::cos(tilt) - z * std::sin(tilt),
                        z2 = y * std::sin(tilt) + z * std::cos(tilt);
            const direction here{x * std::cos(spin) + z2 * std::sin(spin), y2,
                                 z2 * std::cos(spin) - x * std::sin(spin)};
            float best = -1, second = -1;
            bool black = false;
            for (std::size_t i = 0; i < all.size(); ++i) {
                const float near = toward(here, all[i]) - (i < 12 ? 0.012F : 0.0F);
                if (near > best) {
                    second = best;
                    best = near;
                    black = i < 12;
                } else
                    second = std::max(second, near);
            }
            const float seam = rise(0.012F, 0.004F, best - second);
            const colour skin = mix(black ? hex(0x1c1c22) : hex(0xf4f2ee), hex(0x5a5a5a), seam * 0.8F);
            const float light = 0.75F - 0.3F * x - 0.5F * y;
            return skin * (clamped(light) * 0.85F + 0.22F) +
                   hex(0xffffff) * (0.25F * rise(0.45F, 0, length({x + 0.35F, y + 0.45F})));
        },
        0.0025F);
}

}  // namespace

void football(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float seats = hashed(static_cast<int>(p.x * 110), static_cast<int>(p.y * 110), 731);
        const colour fans = mix(hex(0x1a2038),
                                mix(hex(0xb03a3a), hex(0xd8d0c8),
                                    hashed(static_cast<int>(p.x * 110), static_cast<int>(p.y * 110), 733)),
                                0.2F + 0.5F * seats);
        return ink{mix(hex(0x0c1430), fans, rise(0.12F, 0.2F, p.y))};
    });
    box(photo, {0, 0.4F, 1.5F, 0.46F}, hex(0xd8dce4), 0.9F);
    dice chance(735);
    for (int board = 0; board < 8; ++board)
        box(photo,
            {0.2F * static_cast<float>(board), 0.405F, 0.2F * static_cast<float>(board) + 0.19F, 0.455F},
            mix(hex(0x1c4aa0), hex(0xe0b02a), chance.next()), 0.8F);
    photo.lay({0, 0.46F, 100, 1}, [](point p) {
        const float near = (p.y - 0.46F) / 0.54F,
                    stripe = std::floor((p.x - 0.75F) / (0.12F + 0.6F * near) + 20);
        const float blades = cloudy(p.x * 40 / (0.2F + near), p.y * 60 / (0.2F + near), 4, 737) - 0.5F;
        const bool light = static_cast<int>(stripe) % 2 == 0;
        return ink{(light ? hex(0x4a9a34) : hex(0x37802a)) * (1.05F + 0.5F * blades - 0.25F * near)};
    });
    for (const float x : {0.52F, 1.26F})
        limb(photo, {x, 0.13F}, {x, 0.55F}, 0.008F, 0.008F, hex(0xffffff));
    limb(photo, {0.52F, 0.13F}, {1.26F, 0.13F}, 0.008F, 0.008F, hex(0xffffff));
    for (int cord = 0; cord < 24; ++cord) {
        const float t = static_cast<float>(cord) / 23;
        limb(photo, {0.52F + 0.74F * t, 0.14F}, {0.57F + 0.64F * t, 0.52F}, 0.001F, 0.001F, hex(0xf0f4f8),
             0.6F);
        if (cord < 13)
            limb(photo, {0.52F, 0.14F + 0.032F * static_cast<float>(cord)},
                 {1.26F, 0.14F + 0.032F * static_cast<float>(cord)}, 0.001F, 0.001F, hex(0xf0f4f8), 0.6F);
    }
    figure(photo, {0.9F, 0.56F}, 0.3F, pose::waving, hex(0xe0a01c), 0.004F);
    for (const float x : {0.2F, 0.5F, 1.0F, 1.3F}) {
        for (int lamp = 0; lamp < 8; ++lamp) {
            const int column = lamp % 4, row = lamp / 4;
            bokeh(photo,
                  {x + 0.028F * static_cast<float>(column) - 0.04F, 0.05F + 0.032F * static_cast<float>(row)},
                  0.018F, hex(0xf4faff), 0.8F);
        }
        glow(photo, {x, 0.06F}, 0.3F, hex(0xc8dcff) * 0.35F);
    }
    soften(photo, 0.012F);
    grass(photo, -0.05F, 1.55F, 0.93F, 0.05F, 2600, hex(0x2a6a1e), hex(0x74b84a), 741);
    limb(photo, {-0.1F, 0.985F}, {1.6F, 0.87F}, 0.013F, 0.01F, hex(0xf4f6f4), 0.85F, 0.006F);
    oval(photo, {0.43F, 0.9F}, 0.19F, 0.03F, hex(0x0c2408), 0.65F, 0.03F);
    leather_ball(photo, {0.42F, 0.735F}, 0.175F);
    grass(photo, -0.05F, 1.55F, 1.0F, 0.1F, 2600, hex(0x265a1a), hex(0x8ac85a), 743);
    develop(photo, {.bloom = 0.4F, .vignette = 0.35F, .contrast = 0.25F, .seed = 31});
}

void skier(canvas & photo)
{
    sky(photo, hex(0x1a5ab4), hex(0x4a94dc), hex(0xb8dcf2), 0.75F);
    hills(photo, {.base = 0.5F,
                  .swing = 0.14F,
                  .width = 0.42F,
                  .crest = hex(0xf0f4fa),
                  .foot = hex(0x9ab4d8),
                  .depth = 0.2F,
                  .rough = 0.6F,
                  .seed = 751});
    const auto slope = [](float x) { return 0.5F + 0.27F * x + 0.02F * std::sin(x * 5); };
    photo.lay({0, 0.4F, 100, 1}, [&](point p) {
        const float below = p.y - slope(p.x);
        const float along = p.x + below * 0.3F, across = below - along * 0.05F;
        const float tracks = cloudy(along * 2.5F, across * 24, 5, 753),
                    lumps = cloudy(p.x * 7, p.y * 11, 4, 755);
        const float spark =
            hashed(static_cast<int>(p.x * 1080), static_cast<int>(p.y * 1080), 757) > 0.992F ? 0.2F : 0;
        return ink{
            mix(hex(0x8fb0dc), hex(0xffffff), tracks * 0.75F + lumps * 0.55F - 0.12F) * (0.98F + spark),
            rise(0, 0.003F, below)};
    });
    dice chance(759);
    for (int i = 0; i < 7; ++i) {
        const float x = 0.02F + 0.075F * static_cast<float>(i);
        fir(photo, {x, slope(x) + 0.012F}, chance.between(0.09F, 0.17F), hex(0x1c3a40),
            761U + static_cast<unsigned>(i));
    }
    for (int flake = 0; flake < 1300; ++flake) {
        const float out = std::pow(chance.next(), 1.6F), angle = chance.between(-2.9F, -2.1F);
        const float size = 0.001F + 0.009F * chance.next() * (1 - 0.6F * out);
        disc(photo, point{0.86F, 0.79F} + point{std::cos(angle), std::sin(angle)} * (0.02F + 0.44F * out),
             size, mix(hex(0xc8dcf4), hex(0xffffff), chance.next()), 0.55F, size);
    }
    const auto at = [](float x, float y) { return point{0.9F + x, 0.77F + y}; };
    limb(photo, at(-0.2F, 0.0F), at(0.2F, 0.105F), 0.005F, 0.004F, hex(0x1c1c24));
    limb(photo, at(-0.17F, 0.025F), at(0.23F, 0.13F), 0.005F, 0.004F, hex(0x2a2a34));
    oval(photo, at(0.05F, 0.1F), 0.2F, 0.015F, hex(0x5a80b8), 0.5F, 0.02F, 0.26F);
    const colour trousers = hex(0x20283c), jacket = hex(0xd8301f), sleeve = hex(0xf0562f);
    limb(photo, at(-0.055F, -0.115F), at(0.055F, -0.075F), 0.036F, 0.03F, trousers, 1, 0.003F);
    limb(photo, at(0.055F, -0.075F), at(0.02F, 0.045F), 0.03F, 0.023F, trousers, 1, 0.003F);
    limb(photo, at(-0.04F, -0.1F), at(0.07F, -0.04F), 0.034F, 0.028F, trousers * 1.4F, 1, 0.003F);
    limb(photo, at(0.07F, -0.04F), at(0.05F, 0.07F), 0.028F, 0.022F, trousers * 1.4F, 1, 0.003F);
    limb(photo, at(0.02F, 0.055F), at(0.055F, 0.065F), 0.019F, 0.016F, hex(0xe8e8ec));
    limb(photo, at(-0.05F, -0.13F), at(0.045F, -0.23F), 0.045F, 0.052F, jacket, 1, 0.003F);
    limb(photo, at(-0.065F, -0.13F), at(0.015F, -0.23F), 0.018F, 0.02F, hex(0x8a1a12), 0.55F, 0.015F);
    limb(photo, at(0.055F, -0.235F), at(0.125F, -0.18F), 0.027F, 0.022F, sleeve, 1, 0.003F);
    limb(photo, at(0.125F, -0.18F), at(0.185F, -0.2F), 0.022F, 0.017F, sleeve, 1, 0.003F);
    disc(photo, at(0.195F, -0.2F), 0.018F, hex(0x20242c));
    limb(photo, at(0.195F, -0.2F), at(0.03F, -0.02F), 0.003F, 0.003F, hex(0x2a2a30));
    oval(photo, at(0.1F, -0.283F), 0.024F, 0.028F, hex(0xd89a78), 1, 0.002F);
    ball(photo, at(0.083F, -0.308F), 0.041F, hex(0xf0f0f4), 0.05F, 765);
    limb(photo, at(0.06F, -0.306F), at(0.105F, -0.297F), 0.006F, 0.006F, hex(0x20242c), 1, 0.002F);
    limb(photo, at(0.105F, -0.299F), at(0.121F, -0.293F), 0.0115F, 0.009F, hex(0x20242c), 1, 0.002F);
    limb(photo, at(0.109F, -0.299F), at(0.121F, -0.294F), 0.0075F, 0.006F, hex(0xf09020), 1, 0.002F);
    develop(photo, {.bloom = 0.2F, .vignette = 0.25F, .contrast = 0.25F, .seed = 35});
}

namespace {

/// Somebody on a board, in balance.
void rider(canvas & photo)
{
    const auto at = [](float x, float y) { return point{0.64F + x, 0.55F + y}; };
    oval(photo, at(0.0F, 0.045F), 0.13F, 0.013F, hex(0x063a4a), 0.6F, 0.012F, 0.22F);
    oval(photo, at(0, 0.03F), 0.125F, 0.0125F, hex(0xf4e8c0), 1, 0.002F, 0.22F);
    const colour suit = hex(0x15171c), skin = hex(0xb87a54);
    limb(photo, at(-0.06F, 0.015F), at(-0.035F, -0.055F), 0.013F, 0.018F, suit);
    limb(photo, at(-0.035F, -0.055F), at(0.015F, -0.085F), 0.018F, 0.02F, suit);
    limb(photo, at(0.065F, 0.035F), at(0.06F, -0.04F), 0.013F, 0.018F, suit);
    limb(photo, at(0.06F, -0.04F), at(0.015F, -0.085F), 0.018F, 0.021F, suit);
    limb(photo, at(0.012F, -0.09F), at(-0.02F, -0.165F), 0.022F, 0.026F, suit);
    limb(photo, at(-0.03F, -0.17F), at(-0.1F, -0.155F), 0.012F, 0.009F, suit);
    limb(photo, at(-0.1F, -0.155F), at(-0.15F, -0.175F), 0.009F, 0.007F, skin);
    limb(photo, at(-0.01F, -0.17F), at(0.055F, -0.2F), 0.012F, 0.01F, suit);
    limb(photo, at(0.055F, -0.2F), at(0.1F, -0.235F), 0.009F, 0.007F, skin);
    oval(photo, at(-0.033F, -0.213F), 0.017F, 0.021F, skin);
    oval(photo, at(-0.028F, -0.22F), 0.018F, 0.018F, hex(0x3a2414));
}

}  // namespace

void surfer(canvas & photo)
{
    sky(photo, hex(0x3a86c8), hex(0x8ac0e4), hex(0xf0ead8), 0.3F);
    photo.lay({0, 0.27F, 100, 1}, [](point p) {
        const float near = (p.y - 0.27F) / 0.73F,
                    waves = cloudy(p.x * 6 / (0.15F + near), p.y * 40 / (0.15F + near), 4, 771) - 0.5F;
        return ink{mix(hex(0x2a6a90), hex(0x0c4a66), near * 2) * (1 + 0.5F * waves)};
    });
    // The wave stands higher towards the right and breaks there.
    const auto crest = [](float x) {
        return 0.32F - 0.16F * rise(0.1F, 0.95F, x) + 0.012F * std::sin(x * 6);
    };
    photo.lay({0, 0.1F, 100, 1}, [&](point p) {
        const float below = p.y - crest(p.x), down = below / (0.92F - crest(p.x));
        if (below < 0)
            return ink{{}, 0};
        const float bend = p.x * 2.2F + down * down * 1.6F;
        const float streak = cloudy(bend * 7, below * 3.5F - p.x * 0.6F, 5, 773) - 0.5F;
        const colour face =
            mix(mix(hex(0x9ae8d4), hex(0x1f9aa4), down * 2.3F), hex(0x0a4a66), down * 1.5F - 0.35F);
        return ink{face * (1 + 0.55F * streak), 0.98F};
    });
    photo.lay({0, 0.08F, 100, 1}, [&](point p) {  // the lip, and what falls from it
        const float below = p.y - crest(p.x);
        const float torn = cloudy(p.x * 9, p.y * 9, 5, 775),
                    fall = 0.03F + 0.62F * rise(0.98F, 1.4F, p.x) * (0.6F + 0.6F * torn);
        const float foam = rise(-0.045F, 0.0F, below + 0.05F * (torn - 0.5F)) *
                           rise(fall + 0.05F, fall - 0.04F, below + 0.07F * (torn - 0.5F));
        const float thick = rise(0.75F, 1.15F, p.x + 0.25F * torn);
        return ink{mix(hex(0xb4d4dc), hex(0xffffff), cloudy(p.x * 22, p.y * 22, 4, 777) * 1.3F),
                   foam * (0.3F + 0.7F * thick)};
    });
    photo.lay({0, 0.78F, 100, 1}, [](point p) {
        const float lace = cloudy(p.x * 8, p.y * 20, 5, 779);
        return ink{hex(0xf4fbfb),
                   rise(0.5F, 0.66F, lace + 0.35F * (p.y - 0.85F)) * 0.85F * rise(0.78F, 0.9F, p.y)};
    });
    dice chance(781);
    for (int drop = 0; drop < 700; ++drop) {
        const float x = chance.between(0.7F, 1.5F);
        const float size = 0.0008F + 0.0035F * std::pow(chance.next(), 3.0F);
        disc(photo, {x, crest(x) - 0.1F * std::pow(chance.next(), 2.0F)}, size, hex(0xffffff), 0.7F, size);
    }
    for (int part = 0; part < 40; ++part) {  // the wake of the board
        const float t = static_cast<float>(part) / 39;
        disc(photo, {0.7F + 0.4F * t, 0.575F - 0.26F * t * t}, 0.012F * (1 - t) + 0.004F, hex(0xffffff),
             0.35F, 0.012F);
    }
    rider(photo);
    develop(photo, {.bloom = 0.25F, .vignette = 0.3F, .contrast = 0.28F, .seed = 45});
}
