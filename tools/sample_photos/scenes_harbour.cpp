#include "scenes_harbour.h"

#include "nature.h"
#include "noise.h"

namespace {

/// Cables, hangers and towers of a bridge whose deck stands at `deck`.
void suspension_bridge(canvas & photo, float deck)
{
    const colour red = hex(0xb8402a), shaded = hex(0x7a2a20);
    const float towers[] = {0.42F, 1.18F};
    const auto cable = [&](float x) {
        const float middle = 0.8F, span = 0.38F;
        const float off = x < towers[0] ? towers[0] - x : (x > towers[1] ? x - towers[1] : 0);
        return off > 0 ? 0.17F + off * 0.75F : 0.17F + 0.36F * (1 - std::pow((x - middle) / span, 2.0F));
    };
    for (float x = -0.02F; x < 1.52F; x += 0.0135F)
        if (cable(x) < deck)
            limb(photo, {x, cable(x)}, {x, deck}, 0.0007F, 0.0007F, shaded, 0.75F);
    for (float x = -0.02F; x < 1.52F; x += 0.01F)
        limb(photo, {x, cable(x)}, {x + 0.01F, cable(x + 0.01F)}, 0.0035F, 0.0035F, red);
    for (const float tower : towers) {
        for (const float leg : {-0.02F, 0.012F})
            box(photo, {tower + leg, 0.14F, tower + leg + 0.014F, 0.9F}, leg < 0 ? red : shaded);
        for (const float bar : {0.15F, 0.26F, 0.38F, 0.5F})
            box(photo, {tower - 0.02F, bar, tower + 0.026F, bar + 0.022F}, red * 0.9F);
    }
    box(photo, {0, deck, 1.5F, deck + 0.013F}, red * 0.85F);
    box(photo, {0, deck + 0.013F, 1.5F, deck + 0.03F}, hex(0x4a201c));
}

}  // namespace

void bridge_in_fog(canvas & photo)
{
    sky(photo, hex(0x5a7ab0), hex(0xd8b4a8), hex(0xffd89c), 0.75F);
    clouds(photo, 0.6F,
           {.amount = 0.3F, .size = 1.8F, .lit = hex(0xffe0c0), .shaded = hex(0xb0a0b4), .seed = 611});
    glow(photo, {0.8F, 0.6F}, 0.7F, hex(0xffc880) * 0.5F);
    for (int layer = 0; layer < 3; ++layer) {
        const float l = static_cast<float>(layer) / 2;
        hills(photo, {.base = 0.52F + 0.05F * static_cast<float>(layer),
                      .swing = 0.07F,
                      .width = 0.6F,
                      .crest = mix(hex(0xb09aa8), hex(0x5a5a70), l),
                      .foot = mix(hex(0xe0c0b0), hex(0x8a8090), l),
                      .depth = 0.12F,
                      .seed = 613U + static_cast<unsigned>(layer) * 2});
    }
    suspension_bridge(photo, 0.575F);
    photo.lay({0, 0.45F, 100, 1}, [](point p) {
        const float drift = cloudy(p.x * 2.2F, p.y * 5.5F, 5, 621), fine = cloudy(p.x * 6, p.y * 14, 4, 623);
        const float top = 0.72F - 0.16F * drift;
        const colour fog =
            mix(hex(0xc8b8c0), hex(0xfff0dc), clamped(0.2F + 1.5F * (drift - 0.35F) + 0.5F * (fine - 0.5F)));
        return ink{fog, rise(top - 0.07F, top + 0.1F, p.y) * (0.86F + 0.14F * fine)};
    });
    develop(photo, {.bloom = 0.3F, .vignette = 0.3F, .contrast = 0.3F, .seed = 39});
}

namespace {

/// A gabled house at the quay.
void quay_house(canvas & photo, float left, float width, float top, colour wall, unsigned seed)
{
    const float foot = 0.63F;
    photo.lay({left, top, left + width, foot}, [&](point p) {
        const float plaster = cloudy(p.x * 40, p.y * 40, 4, seed) - 0.5F;
        return ink{wall * (0.95F + 0.12F * plaster - 0.1F * (p.x - left) / width),
                   p.x > left && p.x < left + width && p.y > top ? 1.0F : 0.0F};
    });
    polygon(photo,
            {{left - 0.006F, top + 0.004F},
             {left + width / 2, top - width * 0.5F},
             {left + width + 0.006F, top + 0.004F}},
            hex(0x8a4a34));
    polygon(photo,
            {{left + 0.012F, top}, {left + width / 2, top - width * 0.41F}, {left + width - 0.012F, top}},
            wall * 0.96F);
    disc(photo, {left + width / 2, top - width * 0.14F}, width * 0.075F, hex(0x3a4a5a));
    const int columns = width > 0.15F ? 3 : 2;
    for (float y = top + 0.022F; y < foot - 0.09F; y += 0.082F) {
        for (int column = 0; column < columns; ++column) {
            const float x = left + width * (static_cast<float>(column) + 0.5F) / static_cast<float>(columns);
            box(photo, {x - 0.017F, y - 0.003F, x + 0.017F, y + 0.053F}, hex(0xf8f4ea));
            box(photo, {x - 0.0135F, y, x + 0.0135F, y + 0.05F},
                mix(hex(0x2a3a4a), hex(0x8ab0c8), hashed(column, static_cast<int>(y * 100), seed)));
            box(photo, {x - 0.001F, y, x + 0.001F, y + 0.05F}, hex(0xf8f4ea));
            box(photo, {x - 0.0135F, y + 0.018F, x + 0.0135F, y + 0.02F}, hex(0xf8f4ea));
        }
    }
    box(photo, {left + width * 0.4F, foot - 0.07F, left + width * 0.6F, foot}, hex(0x4a3a34));
    box(photo, {left + width * 0.08F, foot - 0.075F, left + width * 0.92F, foot - 0.066F}, wall * 0.6F);
}

}  // namespace

void harbour_houses(canvas & photo)
{
    sky(photo, hex(0x3f7fc4), hex(0x8fbbe2), hex(0xdce9ee), 0.65F);
    clouds(photo, 0.6F, {.amount = 0.42F, .size = 2.3F, .seed = 631});
    const colour walls[] = {hex(0xd8a23a), hex(0xb8483a), hex(0xe8dcc4), hex(0x4a7a9a), hex(0xd87a4a),
                            hex(0x7a9a6a), hex(0xe0b8a0), hex(0xa83a44), hex(0xecc860)};
    dice chance(633);
    float left = -0.04F;
    for (int house = 0; left < 1.5F; ++house) {
        const float width = chance.between(0.13F, 0.19F);
        quay_house(photo, left, width, chance.between(0.23F, 0.33F), walls[house % 9],
                   635U + static_cast<unsigned>(house));
        left += width + 0.002F;
    }
    box(photo, {0, 0.625F, 1.5F, 0.665F}, hex(0x7a7468));
    for (int guest = 0; guest < 13; ++guest)
        figure(photo, {0.06F + 0.112F * static_cast<float>(guest) + chance.between(-0.03F, 0.03F), 0.64F},
               0.062F, guest % 2 ? pose::walking : pose::standing,
               mix(hex(0x2a2a3a), walls[guest % 9], 0.35F));
    for (const float x : {0.3F, 0.82F, 1.22F}) {
        limb(photo, {x + 0.07F, 0.36F}, {x + 0.07F, 0.69F}, 0.0022F, 0.003F, hex(0xb08a5a));
        limb(photo, {x + 0.075F, 0.6F}, {x + 0.16F, 0.585F}, 0.005F, 0.005F, hex(0xe8e0d0));
        limb(photo, {x + 0.07F, 0.37F}, {x + 0.19F, 0.69F}, 0.0006F, 0.0006F, hex(0x4a4238));
        limb(photo, {x + 0.07F, 0.37F}, {x - 0.03F, 0.69F}, 0.0006F, 0.0006F, hex(0x4a4238));
        polygon(photo, {{x - 0.04F, 0.672F}, {x + 0.21F, 0.672F}, {x + 0.17F, 0.712F}, {x, 0.712F}},
                hex(0xf4efe6));
        polygon(photo, {{x - 0.027F, 0.692F}, {x + 0.19F, 0.692F}, {x + 0.17F, 0.712F}, {x, 0.712F}},
                hex(0x2a4a7a));
    }
    water(photo, {.top = 0.71F,
                  .tint = {0.8F, 0.88F, 0.92F},
                  .ripple = 0.045F,
                  .mirror = 0.85F,
                  .depth = hex(0x1c3a4a),
                  .seed = 641});
    develop(photo,
            {.bloom = 0.2F, .vignette = 0.3F, .contrast = 0.28F, .tint = {1.03F, 1, 0.96F}, .seed = 43});
}
