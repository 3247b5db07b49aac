#include "scenes_people.h"

#include "nature.h"
#include "noise.h"

void girl_with_balloons(canvas & photo)
{
    const float horizon = 0.78F;
    sky(photo, hex(0x4d5f9a), hex(0xd98f8a), hex(0xffd68a), horizon);
    clouds(photo, horizon,
           {.amount = 0.4F, .size = 2.6F, .lit = hex(0xffc49a), .shaded = hex(0x8f6f8c), .seed = 221});
    glow(photo, {0.18F, 0.7F}, 0.6F, hex(0xffb050) * 0.75F);
    disc(photo, {0.18F, 0.7F}, 0.035F, hex(0xfff3cc), 1, 0.008F);
    hills(photo, {.base = 0.79F,
                  .swing = 0.03F,
                  .width = 0.5F,
                  .crest = hex(0x8a5a5c),
                  .foot = hex(0x5c3c48),
                  .depth = 0.08F,
                  .seed = 223});
    hills(photo, {.base = 0.89F,
                  .swing = 0.025F,
                  .width = 0.5F,
                  .crest = hex(0x2b1d26),
                  .foot = hex(0x140d14),
                  .depth = 0.1F,
                  .seed = 225});
    const colour colors[] = {hex(0xd8302f), hex(0xf2b021), hex(0x2f7fd0), hex(0x46a35a),
                             hex(0xc2489a), hex(0xf07a2a), hex(0x7a57c0)};
    const point hand{0.418F, 0.578F};
    dice chance(71);
    for (int i = 0; i < 9; ++i) {
        const point at{0.44F + 0.085F * std::sin(static_cast<float>(i) * 2.4F) + 0.02F * chance.next(),
                       0.16F + 0.026F * static_cast<float>(i)};
        const float size = 0.044F + 0.008F * chance.next();
        limb(photo, at + point{0, size}, hand, 0.0008F, 0.0008F, hex(0x2b1d26), 0.8F);
        const colour skin = colors[i % 7];
        fill(
            photo, {at.x - size, at.y - size * 1.3F, at.x + size, at.y + size * 1.3F},
            [&](point p) { return to_ellipse(p, at, size * 0.86F, size * 1.1F); },
            [&](point p) {
                const float across = (p.x - at.x) / size, down = (p.y - at.y) / size;
                return skin * (0.62F + 0.35F * clamped(0.5F - across) + 0.25F * clamped(0.4F - down)) +
                       hex(0xffd9a0) * (0.5F * rise(0.35F, 0, length({across + 0.35F, down + 0.45F})));
            });
        disc(photo, at + point{0, size * 1.14F}, size * 0.08F, skin * 0.6F);
    }
    const colour dark = hex(0x1a1018);
    figure(photo, {0.35F, 0.905F}, 0.3F, pose::holding_up, dark, 0.002F);
    polygon(photo, {{0.32F, 0.72F}, {0.38F, 0.72F}, {0.415F, 0.825F}, {0.285F, 0.825F}}, dark, 1, 0.003F);
    limb(photo, {0.345F, 0.62F}, {0.315F, 0.69F}, 0.022F, 0.012F, dark);
    grass(photo, -0.05F, 0.72F, 1.0F, 0.1F, 520, hex(0x0c070c), hex(0x57323a), 227);
    develop(photo, {.bloom = 0.4F, .vignette = 0.35F, .seed = 3});
}

void jumping_friends(canvas & photo)
{
    const float horizon = 0.64F;
    sky(photo, hex(0x3b4f8c), hex(0xd9806c), hex(0xffc257), horizon);
    clouds(photo, horizon,
           {.amount = 0.5F, .size = 1.9F, .lit = hex(0xffb47a), .shaded = hex(0x7a5578), .seed = 231});
    glow(photo, {0.98F, 0.58F}, 0.7F, hex(0xffa040) * 0.8F);
    disc(photo, {0.98F, 0.58F}, 0.045F, hex(0xfff2c0), 1, 0.01F);
    water(photo, {.top = horizon,
                  .bottom = 0.8F,
                  .tint = {0.95F, 0.85F, 0.8F},
                  .ripple = 0.04F,
                  .mirror = 0.9F,
                  .depth = hex(0x2c2440),
                  .seed = 233});
    photo.lay({0, 0.79F, 100, 1}, [](point p) {
        const float near = (p.y - 0.79F) / 0.21F, ripple = cloudy(p.x * 16, p.y * 70, 4, 235);
        const float line = 0.805F + 0.012F * cloudy(p.x * 5, 1, 3, 236);
        const colour sand = mix(hex(0xa8705a), hex(0x3a2530), near) * (0.7F + 0.6F * ripple);
        const float foam = rise(0.01F, 0, std::abs(p.y - line)) * 0.7F;
        return ink{mix(sand, hex(0xffe2c4), foam), rise(line - 0.006F, line, p.y)};
    });
    const float xs[] = {0.3F, 0.53F, 0.76F, 1.02F, 1.24F}, ys[] = {0.8F, 0.74F, 0.82F, 0.75F, 0.83F},
                sizes[] = {0.4F, 0.37F, 0.42F, 0.35F, 0.38F};
    for (int i = 0; i < 5; ++i) {
        oval(photo, {xs[i] - 0.02F, 0.9F}, 0.09F, 0.012F, hex(0x1c0f16), 0.6F, 0.012F);
        figure(photo, {xs[i], ys[i]}, sizes[i], i == 2 ? pose::waving : pose::jumping, hex(0x160d15),
               0.0022F);
    }
    develop(photo, {.bloom = 0.4F, .vignette = 0.35F, .seed = 8});
}

namespace {

/// A window with curtains, and an evening garden out of focus behind it.
void evening_window(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float leaves = cloudy(p.x * 8, p.y * 8, 4, 241);
        return ink{mix(mix(hex(0xf7d9a0), hex(0xf2a65e), p.y), hex(0x6c7f4a),
                       rise(0.4F, 0.75F, leaves * 0.6F + p.y * 0.45F))};
    });
    dice chance(73);
    for (int i = 0; i < 46; ++i)
        bokeh(photo, {chance.between(0, 0.67F), chance.between(0.1F, 0.75F)}, chance.between(0.015F, 0.045F),
              hex(0xffdf9c), chance.between(0.06F, 0.2F));
    soften(photo, 0.008F);
    const colour frame = hex(0x4b342a);
    for (const float x : {0.0F, 0.325F, 0.64F})
        box(photo, {x, 0, x + 0.027F, 0.8F}, frame * (0.9F + x), 1, 0.002F);
    box(photo, {0, 0.28F, 0.7F, 0.303F}, frame, 1, 0.002F);
    for (const float side : {0.0F, 1.0F}) {
        photo.lay({0, 0, 100, 0.82F}, [&](point p) {
            const float x = side > 0 ? 0.667F - p.x : p.x;
            const float folds = 0.5F + 0.5F * std::sin(x * 120 + 3 * cloudy(x * 8, p.y * 2, 2, 243));
            const float hem = 0.1F + 0.03F * std::sin(p.y * 4);
            return ink{mix(hex(0x8c6a58), hex(0xf0dcc0), folds), 0.9F * rise(hem, hem - 0.01F, x)};
        });
    }
}

/// A cat from behind, with light along its fur.
void sitting_cat(canvas & photo)
{
    const colour fur = hex(0x1c1512);
    oval(photo, {0.33F, 0.83F}, 0.2F, 0.016F, hex(0x2a160c), 0.6F, 0.02F);
    fill(
        photo, {0.1F, 0.3F, 0.6F, 0.85F},
        [](point p) {
            const float body = to_ellipse(p, {0.345F, 0.69F}, 0.105F, 0.135F),
                        chest = to_limb(p, {0.3F, 0.58F}, {0.29F, 0.79F}, 0.052F, 0.04F);
            const float head = to_ellipse(p, {0.29F, 0.505F}, 0.062F, 0.056F),
                        hip = to_ellipse(p, {0.395F, 0.765F}, 0.08F, 0.055F);
            const float tail = std::min(to_limb(p, {0.45F, 0.79F}, {0.51F, 0.76F}, 0.018F, 0.016F),
                                        to_limb(p, {0.51F, 0.76F}, {0.53F, 0.69F}, 0.016F, 0.012F));
            const float paws = std::min(to_ellipse(p, {0.275F, 0.81F}, 0.03F, 0.014F),
                                        to_ellipse(p, {0.325F, 0.812F}, 0.03F, 0.014F));
            const float rough = 0.004F * (cloudy(p.x * 120, p.y * 120, 2, 247) - 0.5F);
            return std::min({body, chest, head, hip, tail, paws}) + rough;
        },
        [&](point p) {
            return fur * (0.8F + 0.7F * cloudy(p.x * 90, p.y * 50, 4, 249)) +
                   hex(0xff9a50) * (0.32F * rise(0.25F, 0.2F, p.x));
        },
        0.003F);
    polygon(photo, {{0.238F, 0.49F}, {0.243F, 0.42F}, {0.284F, 0.462F}}, fur, 1, 0.003F);
    polygon(photo, {{0.3F, 0.46F}, {0.337F, 0.42F}, {0.344F, 0.49F}}, fur, 1, 0.003F);
    photo.add({0.15F, 0.38F, 0.6F, 0.84F}, [](point p) {  // light along the fur
        const float rim = std::abs(to_ellipse(p, {0.29F, 0.505F}, 0.062F, 0.056F));
        const float back = std::abs(to_ellipse(p, {0.345F, 0.69F}, 0.105F, 0.135F));
        return hex(0xffb070) * (0.45F * rise(0.008F, 0, rim) * rise(0.53F, 0.46F, p.y) +
                                0.4F * rise(0.008F, 0, back) * rise(0.38F, 0.45F, p.x));
    });
}

}  // namespace

void cat_on_the_sill(canvas & photo)
{
    evening_window(photo);
    photo.lay({0, 0.79F, 100, 1}, [](point p) {
        const float rings = cloudy(p.x * 4, p.y * 60, 5, 245);
        return ink{mix(hex(0x6b4128), hex(0xb9784a), rings) * (1.25F - 0.9F * rise(0.8F, 1.0F, p.y)),
                   rise(0.79F, 0.795F, p.y)};
    });
    sitting_cat(photo);
    develop(photo, {.bloom = 0.35F, .vignette = 0.4F, .seed = 15});
}

namespace {

/// Ear, nose, eye and tongue.
void face_of_dog(canvas & photo)
{
    fill(
        photo, {0.5F, 0.25F, 0.8F, 0.6F},
        [](point p) {
            return std::min(to_limb(p, {0.64F, 0.33F}, {0.67F, 0.45F}, 0.034F, 0.045F),
                            to_limb(p, {0.67F, 0.45F}, {0.66F, 0.5F}, 0.045F, 0.03F)) +
                   0.008F * (cloudy(p.x * 60, p.y * 60, 3, 258) - 0.5F);
        },
        [](point p) { return mix(hex(0x5c3210), hex(0xb87a36), cloudy(p.x * 60, p.y * 30, 4, 259)); },
        0.006F);
    oval(photo, {0.45F, 0.4F}, 0.022F, 0.019F, hex(0x17100d), 1, 0.004F);
    disc(photo, {0.445F, 0.394F}, 0.005F, hex(0x9a9290), 0.8F, 0.004F);
    disc(photo, {0.555F, 0.355F}, 0.0125F, hex(0x170d07), 1, 0.003F);
    disc(photo, {0.551F, 0.351F}, 0.0035F, hex(0xffffff), 0.9F, 0.002F);
    limb(photo, {0.47F, 0.44F}, {0.535F, 0.45F}, 0.004F, 0.006F, hex(0x2a1610), 1, 0.003F);
    fill(
        photo, {0.45F, 0.42F, 0.56F, 0.55F},
        [](point p) {
            return to_limb(p, {0.505F, 0.45F}, {0.497F, 0.49F}, 0.017F, 0.015F);
        },
        [](point) { return hex(0xe0757c); }, 0.003F);
}

}  // namespace

void dog_in_the_grass(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float leaves = cloudy(p.x * 5, p.y * 5, 4, 251);
        return ink{mix(mix(hex(0x31491c), hex(0xb9c86a), leaves * 1.5F - 0.3F), hex(0xf4f0c0),
                       0.5F * rise(0.5F, 0, p.y))};
    });
    dice chance(79);
    for (int i = 0; i < 70; ++i)
        bokeh(photo, {chance.between(0, 1.5F), chance.between(0, 0.5F)}, chance.between(0.015F, 0.05F),
              hex(0xe8f0a0), chance.between(0.05F, 0.16F));
    soften(photo, 0.015F);
    ground(photo, 0.62F, hex(0xa3b552), hex(0x35501c), 0.5F, 253);
    soften_where(photo, 0.012F, [](point p) { return rise(0.85F, 0.6F, p.y); });
    const auto dog = [](point p) {
        const float body = to_limb(p, {0.72F, 0.66F}, {0.98F, 0.7F}, 0.125F, 0.135F),
                    chest = to_ellipse(p, {0.66F, 0.66F}, 0.115F, 0.15F);
        const float neck = to_limb(p, {0.64F, 0.55F}, {0.61F, 0.44F}, 0.1F, 0.085F),
                    head = to_ellipse(p, {0.585F, 0.37F}, 0.1F, 0.092F);
        const float muzzle = to_limb(p, {0.55F, 0.395F}, {0.475F, 0.415F}, 0.055F, 0.042F);
        const float legs = std::min({to_limb(p, {0.63F, 0.72F}, {0.615F, 0.93F}, 0.045F, 0.032F),
                                     to_limb(p, {0.71F, 0.74F}, {0.71F, 0.94F}, 0.045F, 0.032F),
                                     to_limb(p, {1.02F, 0.74F}, {1.03F, 0.93F}, 0.065F, 0.033F),
                                     to_limb(p, {0.95F, 0.76F}, {0.95F, 0.92F}, 0.05F, 0.03F)});
        const float tail = std::min(to_limb(p, {1.09F, 0.66F}, {1.17F, 0.55F}, 0.035F, 0.03F),
                                    to_limb(p, {1.17F, 0.55F}, {1.19F, 0.46F}, 0.034F, 0.014F));
        const float rough = 0.012F * (cloudy(p.x * 60, p.y * 60, 3, 255) - 0.5F);
        return std::min({body, chest, neck, head, muzzle, legs, tail}) + rough;
    };
    fill(
        photo, {0.35F, 0.2F, 1.3F, 1}, dog,
        [](point p) {
            const float hair = cloudy(p.x * 50 + p.y * 30, p.y * 22, 5, 257);
            const float light = clamped(1.15F - (p.y - 0.28F) * 1.25F);
            return mix(hex(0x7a4718), hex(0xf0c27c), hair * 0.75F + light * 0.5F - 0.2F);
        },
        0.006F);
    face_of_dog(photo);
    photo.lay({0.5F, 0.45F, 0.8F, 0.6F}, [&](point p) {
        return ink{hex(0xb02a2a), inside(to_limb(p, {0.55F, 0.5F}, {0.71F, 0.49F}, 0.014F, 0.014F), 0.003F) *
                                      inside(dog(p), 0.004F)};
    });
    grass(photo, -0.1F, 1.6F, 1.0F, 0.13F, 1900, hex(0x2b4414), hex(0xb4c860), 261);
    develop(photo,
            {.bloom = 0.25F, .vignette = 0.35F, .contrast = 0.25F, .tint = {1.03F, 1, 0.95F}, .seed = 22});
}
