#include "scenes_travel.h"

#include "nature.h"
#include "noise.h"

namespace {

/// An elephant seen from the side, walking to the left; `size` is its height.
void elephant(canvas & photo, point foot, float size, colour color)
{
    const auto at = [&](float x, float y) { return foot + point{x * size, -y * size}; };
    fill(
        photo, {foot.x - size * 1.1F, foot.y - size * 1.15F, foot.x + size, foot.y + size * 0.05F},
        [&](point p) {
            const auto part = [&](float ax, float ay, float bx, float by, float ra, float rb) {
                return to_limb(p, at(ax, ay), at(bx, by), ra * size, rb * size);
            };
            const float trunk_top = part(-0.66F, 0.72F, -0.79F, 0.42F, 0.1F, 0.065F);
            const float trunk = std::min({trunk_top, part(-0.79F, 0.42F, -0.8F, 0.2F, 0.065F, 0.045F),
                                          part(-0.8F, 0.2F, -0.87F, 0.1F, 0.045F, 0.03F)});
            const float legs = std::min({part(-0.33F, 0.5F, -0.4F, 0.05F, 0.11F, 0.085F),
                                         part(-0.18F, 0.5F, -0.13F, 0.05F, 0.1F, 0.08F),
                                         part(0.36F, 0.5F, 0.3F, 0.05F, 0.14F, 0.085F),
                                         part(0.42F, 0.5F, 0.5F, 0.06F, 0.12F, 0.08F)});
            const float body = std::min(to_ellipse(p, at(0.05F, 0.68F), 0.5F * size, 0.29F * size),
                                        to_ellipse(p, at(-0.52F, 0.8F), 0.2F * size, 0.2F * size));
            const float ear = to_ellipse(p, at(-0.34F, 0.76F), 0.16F * size, 0.23F * size, 0.15F);
            const float tail = part(0.53F, 0.7F, 0.58F, 0.35F, 0.02F, 0.015F);
            return std::min({trunk, legs, body, ear, tail});
        },
        [&](point p) { return color * (0.8F + 0.5F * cloudy(p.x * 70, p.y * 50, 3, 541)); }, size * 0.012F);
    limb(photo, at(-0.66F, 0.6F), at(-0.86F, 0.5F), 0.022F * size, 0.008F * size, hex(0xf0cfa0), 0.8F);
}

/// An acacia with its flat crown.
void acacia(canvas & photo, point foot, float height, colour color, unsigned seed)
{
    dice chance(seed);
    const point fork = foot + point{height * 0.03F, -height * 0.5F};
    limb(photo, foot, fork, height * 0.035F, height * 0.022F, color);
    for (int branch = 0; branch < 7; ++branch) {
        const float lean = (static_cast<float>(branch) - 3) / 3;
        limb(photo, fork, foot + point{lean * height * 0.5F, -height * (0.86F - 0.1F * std::abs(lean))},
             height * 0.016F, height * 0.005F, color);
    }
    for (int tuft = 0; tuft < 150; ++tuft) {
        const float out = chance.between(-1, 1);
        const point at = foot + point{out * height * 0.72F,
                                      -height * (0.96F - 0.14F * out * out + chance.between(-0.06F, 0.05F))};
        oval(photo, at, height * chance.between(0.03F, 0.08F), height * chance.between(0.012F, 0.03F), color,
             1, height * 0.01F);
    }
}

}  // namespace

void savanna_elephants(canvas & photo)
{
    const float horizon = 0.76F;
    sky(photo, hex(0xb0481c), hex(0xf08a2a), hex(0xffd478), horizon);
    clouds(photo, horizon,
           {.amount = 0.35F, .size = 1.8F, .lit = hex(0xffb44a), .shaded = hex(0xb4521f), .seed = 543});
    glow(photo, {0.95F, 0.55F}, 0.75F, hex(0xffc050) * 0.6F);
    disc(photo, {0.95F, 0.55F}, 0.16F, hex(0xfff0b4), 1, 0.005F);
    hills(photo, {.base = 0.745F,
                  .swing = 0.02F,
                  .width = 0.8F,
                  .crest = hex(0xa85a26),
                  .foot = hex(0x8a4218),
                  .depth = 0.06F,
                  .seed = 545});
    const colour dark = hex(0x2a1206);
    acacia(photo, {1.3F, 0.79F}, 0.3F, hex(0x3a1a08), 547);
    acacia(photo, {0.1F, 0.77F}, 0.13F, hex(0x6a3012), 549);
    acacia(photo, {0.36F, 0.765F}, 0.08F, hex(0x7a3a16), 551);
    ground(photo, 0.775F, hex(0x7a3c14), hex(0x1c0c04), 0.6F, 553);
    elephant(photo, {1.12F, 0.845F}, 0.26F, dark);
    elephant(photo, {0.69F, 0.86F}, 0.36F, dark);
    elephant(photo, {0.32F, 0.85F}, 0.19F, dark);
    photo.lay({0, 0.7F, 100, 0.95F}, [](point p) {
        const float dust = cloudy(p.x * 3, p.y * 9, 4, 555);
        return ink{hex(0xf0a04a),
                   0.5F * rise(0.45F, 0.8F, dust) * rise(0.95F, 0.84F, p.y) * rise(0.72F, 0.82F, p.y)};
    });
    grass(photo, -0.05F, 1.55F, 1.0F, 0.11F, 900, hex(0x180a03), hex(0x7a3f12), 557);
    develop(photo, {.bloom = 0.35F, .vignette = 0.4F, .seed = 27});
}

namespace {

/// A frond from `from`: a curve that droops, with leaflets on both sides.
void frond(canvas & photo, point from, float angle, float reach, colour dark, colour lit, unsigned seed)
{
    dice chance(seed);
    const point out{std::cos(angle), std::sin(angle)};
    point last = from;
    for (int step = 1; step <= 26; ++step) {
        const float t = static_cast<float>(step) / 26;
        const point at = from + out * (reach * t) + point{0, reach * 0.62F * t * t};
        limb(photo, last, at, 0.0032F * (1.1F - t), 0.003F * (1.1F - t), mix(dark, lit, 0.4F));
        const point along = at - last;
        const float scale = 1 / std::max(1e-5F, length(along));
        for (const float side : {-1.0F, 1.0F}) {
            const point across{-along.y * scale * side, along.x * scale * side};
            const float leaf = reach * 0.3F * std::sin(0.35F + 2.6F * t) * chance.between(0.8F, 1.1F);
            const point tip =
                at + across * (leaf * 0.75F) + along * (scale * leaf * 0.6F) + point{0, leaf * 0.35F};
            limb(photo, at, tip, 0.0042F, 0.001F,
                 mix(dark, lit, chance.between(0.1F, 0.9F) + (side < 0 ? 0.15F : -0.15F)));
        }
        last = at;
    }
}

void palm(canvas & photo)
{
    point last{-0.03F, 0.98F};
    for (int step = 1; step <= 30; ++step) {
        const float t = static_cast<float>(step) / 30;
        const point at{-0.03F + 0.36F * t * t + 0.06F * t, 0.98F - 0.68F * t};
        const float shade = step % 2 ? 0.85F : 1.1F;
        limb(photo, last, at, 0.026F - 0.012F * t, 0.0255F - 0.012F * t,
             mix(hex(0x6a4a30), hex(0xb08a62), 0.4F) * shade, 1, 0.002F);
        limb(photo, last + point{0.01F, 0.002F}, at + point{0.01F, 0.002F}, 0.011F - 0.005F * t,
             0.011F - 0.005F * t, hex(0x4a3220), 0.5F, 0.008F);
        last = at;
    }
    for (int leaf = 0; leaf < 13; ++leaf) {
        const float angle =
            -3.3F + 3.5F * static_cast<float>(leaf) / 12 + 0.12F * std::sin(static_cast<float>(leaf) * 5);
        frond(photo, last, angle, 0.2F + 0.05F * std::sin(static_cast<float>(leaf) * 3.1F), hex(0x1d4a1c),
              hex(0x8ab84a), 561U + static_cast<unsigned>(leaf));
    }
    for (int nut = 0; nut < 4; ++nut)
        ball(photo,
             last + point{-0.022F + 0.016F * static_cast<float>(nut),
                          0.018F + 0.008F * static_cast<float>(nut % 2)},
             0.015F, hex(0x7a5228), 0.4F, 575);
}

}  // namespace

void palm_beach(canvas & photo)
{
    const float horizon = 0.56F;
    sky(photo, hex(0x2a7ac8), hex(0x7ab8e6), hex(0xd8eef4), horizon);
    clouds(photo, horizon, {.amount = 0.42F, .size = 2.4F, .seed = 577});
    hills(photo, {.base = 0.553F,
                  .swing = 0.02F,
                  .width = 0.3F,
                  .crest = hex(0x4a8a7a),
                  .foot = hex(0x5a9a86),
                  .depth = 0.03F,
                  .seed = 592});
    photo.lay({0, horizon, 100, 1}, [&](point p) {
        const float near = (p.y - horizon) / (0.8F - horizon);
        const float waves = cloudy(p.x * 14 / (0.3F + near), p.y * 90 / (0.3F + near), 3, 579) - 0.5F;
        colour c = mix(mix(hex(0x14629c), hex(0x1fa8b4), near * 1.6F), hex(0x9ae4d4), near * 1.9F - 0.8F) *
                   (1 + 0.28F * waves);
        const float line = 0.79F + 0.05F * (p.x - 0.3F) + 0.02F * cloudy(p.x * 5, 1, 3, 581);
        const float foam =
            rise(0.014F, 0, std::abs(p.y - line + 0.006F)) * (0.5F + cloudy(p.x * 40, p.y * 60, 3, 583));
        const float grain = cloudy(p.x * 60, p.y * 90, 4, 585) - 0.5F;
        const colour sand = mix(hex(0xd8bc8c), hex(0xf6e6c4), (p.y - line) * 6) * (1 + 0.16F * grain);
        c = mix(c, sand, rise(line - 0.004F, line + 0.008F, p.y));
        return ink{mix(c, hex(0xffffff), foam)};
    });
    polygon(photo, {{0.49F, 0.615F}, {0.6F, 0.612F}, {0.585F, 0.632F}, {0.505F, 0.634F}}, hex(0xe8e4da));
    polygon(photo, {{0.495F, 0.622F}, {0.597F, 0.62F}, {0.587F, 0.632F}, {0.505F, 0.634F}}, hex(0xc84a3a));
    oval(photo, {0.545F, 0.638F}, 0.055F, 0.006F, hex(0x0c5a6a), 0.6F, 0.006F);
    oval(photo, {0.42F, 0.945F}, 0.2F, 0.02F, hex(0x8a6c48), 0.5F, 0.03F);
    palm(photo);
    develop(photo,
            {.bloom = 0.22F, .vignette = 0.25F, .contrast = 0.28F, .tint = {1.02F, 1, 0.97F}, .seed = 28});
}

namespace {

void windmill(canvas & photo, point foot, float height)
{
    polygon(photo,
            {foot + point{-height * 0.2F, 0}, foot + point{height * 0.2F, 0},
             foot + point{height * 0.11F, -height * 0.62F}, foot + point{-height * 0.11F, -height * 0.62F}},
            hex(0x6a4a3a));
    polygon(photo,
            {foot + point{-height * 0.02F, 0}, foot + point{height * 0.2F, 0},
             foot + point{height * 0.11F, -height * 0.62F}, foot + point{0, -height * 0.62F}},
            hex(0x3a2a24), 0.6F, 0.006F);
    polygon(photo,
            {foot + point{-height * 0.13F, -height * 0.62F}, foot + point{height * 0.13F, -height * 0.62F},
             foot + point{0, -height * 0.78F}},
            hex(0x2e2a2c));
    box(photo,
        {foot.x - height * 0.24F, foot.y - height * 0.3F, foot.x + height * 0.24F, foot.y - height * 0.27F},
        hex(0xded4c4));
    const point hub = foot + point{0, -height * 0.68F};
    for (int sail = 0; sail < 4; ++sail) {
        const float angle = 0.5F + 1.5708F * static_cast<float>(sail), c = std::cos(angle),
                    s = std::sin(angle);
        const auto at = [&](float along, float across) {
            return hub + point{c * along - s * across, s * along + c * across} * height;
        };
        limb(photo, hub, at(0.62F, 0), height * 0.012F, height * 0.008F, hex(0x4a3a30));
        polygon(photo, {at(0.12F, 0.01F), at(0.6F, 0.01F), at(0.6F, 0.09F), at(0.12F, 0.09F)}, hex(0xeee6d6),
                0.85F);
    }
}

void tulip(canvas & photo, point at, float size, colour color, unsigned seed)
{
    limb(photo, at, at + point{0, size * 2.4F}, size * 0.13F, size * 0.15F, hex(0x4a7a2a), 1, size * 0.06F);
    for (const float side : {-1.0F, 1.0F})
        oval(photo, at + point{side * size * 0.42F, size * 1.8F}, size * 0.16F, size * 0.85F, hex(0x3a6a26),
             1, size * 0.08F, side * 0.35F);
    const float shade = 0.85F + 0.25F * hashed(static_cast<int>(seed), 3, 7);
    for (const float side : {-0.4F, 0.4F, 0.0F}) {
        const colour petal = color * (shade * (side < 0 ? 1.05F : (side > 0 ? 0.72F : 0.92F)));
        fill(
            photo, {at.x - size * 1.1F, at.y - size * 1.2F, at.x + size * 1.1F, at.y + size * 1.2F},
            [&](point p) {
                return to_ellipse(p, at + point{side * size, size * 0.05F}, size * 0.42F, size * 0.85F,
                                  side * 0.4F);
            },
            [&](point p) {
                return mix(petal + hex(0x201808), petal * 0.7F, (p.y - at.y) / size * 0.6F + 0.4F);
            },
            size * 0.06F);
    }
}

}  // namespace

void tulip_fields(canvas & photo)
{
    const float horizon = 0.42F;
    sky(photo, hex(0x4a8acc), hex(0x9cc6e8), hex(0xe8f0ee), horizon);
    clouds(photo, horizon, {.amount = 0.5F, .size = 2.1F, .seed = 601});
    hills(photo, {.base = 0.412F,
                  .swing = 0.012F,
                  .width = 0.2F,
                  .crest = hex(0x5a7a5a),
                  .foot = hex(0x6a8a52),
                  .depth = 0.02F,
                  .seed = 603});
    windmill(photo, {0.36F, 0.428F}, 0.24F);
    const colour kinds[] = {hex(0xd8242c), hex(0xf4c41c), hex(0xe8619c),
                            hex(0xf07a1c), hex(0x8a3aa0), hex(0xf2ece0)};
    const auto lane_of = [](point p) { return (p.x - 0.95F) / (0.03F + 0.9F * (p.y - 0.42F)); };
    photo.lay({0, horizon, 100, 1}, [&](point p) {
        const float lane = lane_of(p) * 3.2F, within = lane - std::floor(lane);
        const auto kind = static_cast<unsigned>(static_cast<int>(std::floor(lane)) + 60) % 6U;
        const float speck = cloudy(p.x * 90, p.y * 130, 3, 605);
        const colour bed = mix(hex(0x3a5a26), kinds[kind], 0.35F + speck * 0.75F) * 0.9F;
        return ink{mix(bed, hex(0x5a4a34), rise(0.86F, 0.92F, within))};
    });
    dice chance(607);
    for (int row = 0; row < 26; ++row) {
        const float near = std::pow(static_cast<float>(row) / 25, 1.8F), y = 0.445F + 0.5F * near,
                    size = 0.004F + 0.03F * near;
        for (float x = chance.between(-0.05F, 0); x < 1.55F; x += size * chance.between(1.1F, 1.8F)) {
            const point at{x, y + chance.between(-0.4F, 0.4F) * size};
            const float lane = lane_of({x, y + size}) * 3.2F;
            if (lane - std::floor(lane) < 0.88F)
                tulip(photo, at, size,
                      kinds[static_cast<unsigned>(static_cast<int>(std::floor(lane)) + 60) % 6U],
                      static_cast<unsigned>(row * 200) + static_cast<unsigned>(x * 90 + 9));
        }
    }
    soften_where(photo, 0.005F, [](point p) { return rise(0.56F, 0.4F, p.y) * 0.8F; });
    develop(photo, {.bloom = 0.2F, .vignette = 0.3F, .contrast = 0.28F, .seed = 33});
}
