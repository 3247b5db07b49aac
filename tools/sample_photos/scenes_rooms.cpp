#include "scenes_rooms.h"

#include "nature.h"
#include "noise.h"

#include <numbers>

namespace {

/// Light from a window, as it falls on the wall.
void lit_wall(canvas & photo)
{
    photo.lay({0, 0, 100, 0.8F}, [](point p) {
        const float plaster = cloudy(p.x * 30, p.y * 30, 4, 691) - 0.5F;
        const float slant = p.x + p.y * 0.45F;
        const auto pane = [&](float left, float top) {
            return rise(left - 0.012F, left + 0.012F, slant) * rise(left + 0.137F, left + 0.113F, slant) *
                   rise(top - 0.012F, top + 0.012F, p.y + 0.06F * p.x) *
                   rise(top + 0.167F, top + 0.143F, p.y + 0.06F * p.x);
        };
        const float sun = pane(0.42F, 0.12F) + pane(0.57F, 0.12F) + pane(0.42F, 0.3F) + pane(0.57F, 0.3F);
        const colour wall =
            mix(hex(0x2a5a5c), hex(0x1a3c42), p.x * 0.9F + p.y * 0.3F) * (1 + 0.07F * plaster);
        return ink{mix(wall, hex(0xd8b888), 0.5F * clamped(sun))};
    });
}

void armchair(canvas & photo)
{
    oval(photo, {0.4F, 0.9F}, 0.26F, 0.03F, hex(0x140c08), 0.7F, 0.03F);
    const auto cushion = [&](area where, float round, colour color) {
        const point middle{(where.left + where.right) / 2, (where.top + where.bottom) / 2};
        const float half_x = (where.right - where.left) / 2 - round,
                    half_y = (where.bottom - where.top) / 2 - round;
        fill(
            photo, {where.left - 0.01F, where.top - 0.01F, where.right + 0.01F, where.bottom + 0.01F},
            [&](point p) {
                return length({std::max(0.0F, std::abs(p.x - middle.x) - half_x),
                               std::max(0.0F, std::abs(p.y - middle.y) - half_y)}) -
                       round;
            },
            [&](point p) {
                const float weave = cloudy(p.x * 160, p.y * 160, 2, 693) - 0.5F;
                return color * (1.06F - 0.35F * (p.x - where.left) / (where.right - where.left) -
                                0.25F * (p.y - where.top) / (where.bottom - where.top) + 0.12F * weave);
            },
            0.003F);
    };
    for (const float x : {0.24F, 0.55F})
        limb(photo, {x, 0.84F}, {x + (x < 0.4F ? -0.015F : 0.015F), 0.905F}, 0.009F, 0.006F, hex(0x5a3a20));
    cushion({0.22F, 0.46F, 0.58F, 0.8F}, 0.07F, hex(0xd89a2c));
    cushion({0.255F, 0.49F, 0.545F, 0.74F}, 0.05F, hex(0xe4a838));
    cushion({0.23F, 0.7F, 0.57F, 0.79F}, 0.03F, hex(0xe8b044));
    cushion({0.19F, 0.77F, 0.61F, 0.86F}, 0.03F, hex(0xb87c1e));
    cushion({0.175F, 0.63F, 0.25F, 0.86F}, 0.034F, hex(0xd0922a));
    cushion({0.55F, 0.63F, 0.625F, 0.86F}, 0.034F, hex(0xb47a20));
    cushion({0.34F, 0.58F, 0.49F, 0.72F}, 0.03F, hex(0xe8e0d0));
}

void houseplant(canvas & photo)
{
    dice chance(695);
    for (int leaf = 0; leaf < 17; ++leaf) {
        const float angle = -1.57F + chance.between(-1.15F, 1.15F), reach = chance.between(0.14F, 0.3F);
        const point foot{0.09F, 0.8F},
            tip = foot + point{std::cos(angle) * reach * 0.75F, std::sin(angle) * reach};
        limb(photo, foot, tip, 0.003F, 0.002F, hex(0x2a4a20));
        oval(photo, tip, 0.05F, 0.024F, mix(hex(0x1e4a24), hex(0x6aa04a), chance.next()), 1, 0.003F, angle);
        limb(photo, tip - point{std::cos(angle), std::sin(angle)} * 0.045F,
             tip + point{std::cos(angle), std::sin(angle)} * 0.045F, 0.001F, 0.001F, hex(0x9ac07a), 0.6F);
    }
    polygon(photo, {{0.03F, 0.79F}, {0.15F, 0.79F}, {0.135F, 0.915F}, {0.045F, 0.915F}}, hex(0xb8623a), 1,
            0.003F);
    polygon(photo, {{0.1F, 0.79F}, {0.15F, 0.79F}, {0.135F, 0.915F}, {0.1F, 0.915F}}, hex(0x6a3018), 0.5F,
            0.02F);
}

}  // namespace

void reading_corner(canvas & photo)
{
    lit_wall(photo);
    planks(photo, 0.79F, hex(0x6a4426), hex(0xc08a54), 0.05F, 697);
    box(photo, {0, 0.772F, 0.67F, 0.795F}, hex(0xe8e4da), 1, 0.002F);
    const colour prints[] = {hex(0xd86a4a), hex(0x3a6a9a), hex(0xe0b04a)};
    for (int print = 0; print < 3; ++print) {
        const float left = 0.06F + 0.125F * static_cast<float>(print),
                    top = 0.16F + 0.03F * static_cast<float>(print % 2);
        box(photo, {left + 0.005F, top + 0.007F, left + 0.108F, top + 0.152F}, hex(0x0c1a1c), 0.5F, 0.008F);
        box(photo, {left, top, left + 0.1F, top + 0.14F}, hex(0x2a1c12));
        box(photo, {left + 0.006F, top + 0.006F, left + 0.094F, top + 0.134F}, hex(0xf0ece0));
        box(photo, {left + 0.02F, top + 0.024F, left + 0.08F, top + 0.116F},
            mix(prints[print], hex(0xf0ece0), 0.35F));
        disc(photo, {left + 0.05F, top + 0.06F}, 0.02F, prints[print]);
    }
    oval(photo, {0.36F, 0.93F}, 0.34F, 0.05F, hex(0xb8a890), 1, 0.004F);
    oval(photo, {0.36F, 0.93F}, 0.3F, 0.04F, hex(0x8a3a34), 1, 0.003F);
    oval(photo, {0.36F, 0.93F}, 0.25F, 0.031F, hex(0xc8b49a), 1, 0.003F);
    armchair(photo);
    houseplant(photo);
    limb(photo, {0.625F, 0.35F}, {0.625F, 0.9F}, 0.003F, 0.003F, hex(0x2a2420));
    oval(photo, {0.625F, 0.905F}, 0.045F, 0.009F, hex(0x2a2420));
    glow(photo, {0.615F, 0.36F}, 0.34F, hex(0xffb860) * 0.6F);
    polygon(photo, {{0.585F, 0.28F}, {0.66F, 0.28F}, {0.7F, 0.385F}, {0.545F, 0.385F}}, hex(0xfbe0a8), 1,
            0.004F);
    develop(photo,
            {.bloom = 0.35F, .vignette = 0.4F, .contrast = 0.25F, .tint = {1.03F, 1, 0.96F}, .seed = 40});
}

namespace {

void gift(canvas & photo, area where, colour paper, colour ribbon)
{
    oval(photo, {(where.left + where.right) / 2, where.bottom}, (where.right - where.left) * 0.6F, 0.012F,
         hex(0x0c0604), 0.6F, 0.015F);
    photo.lay(where, [&](point p) {
        const float dots = std::sin(p.x * 300) * std::sin(p.y * 300) > 0.7F ? 1.15F : 1.0F;
        return ink{
            paper * (dots * (1.1F - 0.4F * (p.x - where.left) / (where.right - where.left))),
            p.x > where.left && p.x < where.right && p.y > where.top && p.y < where.bottom ? 1.0F : 0.0F};
    });
    const float middle = (where.left + where.right) / 2;
    box(photo, {middle - 0.008F, where.top, middle + 0.008F, where.bottom}, ribbon);
    box(photo,
        {where.left, (where.top + where.bottom) / 2 - 0.007F, where.right,
         (where.top + where.bottom) / 2 + 0.007F},
        ribbon);
    for (const float side : {-1.0F, 1.0F}) {
        oval(photo, {middle + side * 0.018F, where.top - 0.009F}, 0.019F, 0.01F, ribbon, 1, 0.002F,
             side * -0.45F);
        oval(photo, {middle + side * 0.018F, where.top - 0.009F}, 0.01F, 0.004F, ribbon * 0.6F, 1, 0.002F,
             side * -0.45F);
    }
    disc(photo, {middle, where.top - 0.005F}, 0.008F, ribbon * 0.9F);
}

/// A fir indoors: boughs from the top down, then lamps and baubles.
void festive_tree(canvas & photo, point top, float height)
{
    dice chance(701);
    for (int bough = 0; bough < 1500; ++bough) {
        const float down = std::sqrt(static_cast<float>(bough) / 1500);
        const float reach = height * 0.36F * down * (0.82F + 0.18F * std::sin(down * 44));
        const float out = chance.between(-1, 1);
        const point at = top + point{out * reach, height * down};
        const point tip =
            at + point{out * 0.03F + chance.between(-0.012F, 0.012F), chance.between(0.008F, 0.03F)};
        limb(photo, at, tip, 0.005F, 0.0015F,
             mix(hex(0x0a2414), hex(0x3a7040), chance.next() * 0.9F - 0.3F * out), 0.95F);
    }
    const colour baubles[] = {hex(0xc81e2c), hex(0xe0a82a), hex(0xd8d8e0), hex(0xa01838)};
    for (int bauble = 0; bauble < 46; ++bauble) {
        const float down = std::sqrt((static_cast<float>(bauble) + 1) / 47),
                    out = std::sin(static_cast<float>(bauble) * 2.4F) * 0.85F;
        ball(photo, top + point{out * height * 0.35F * down, height * down * 0.98F},
             0.0115F + 0.005F * chance.next(), baubles[bauble % 4], 0.05F, 703);
    }
    for (int lamp = 0; lamp < 150; ++lamp) {
        const float down = std::sqrt(chance.next());
        const point at = top + point{chance.between(-1, 1) * height * 0.35F * down, height * down};
        glow(photo, at, 0.024F, hex(0xffb850) * 0.85F);
        disc(photo, at, 0.0028F, hex(0xfff4d0), 1, 0.002F);
    }
    glow(photo, top, 0.13F, hex(0xffd880) * 0.8F);
    for (int ray = 0; ray < 5; ++ray) {
        const float angle = -1.5708F + 1.2566F * static_cast<float>(ray), c = std::cos(angle),
                    s = std::sin(angle);
        polygon(photo, {top + point{c, s} * 0.036F, top + point{-s, c} * 0.012F, top + point{s, -c} * 0.012F},
                hex(0xfff0b4));
    }
}

}  // namespace

void christmas_tree(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float stripes = 0.97F + 0.03F * std::sin(p.x * 130);
        const float warm = rise(0.9F, 0.1F, length({p.x - 0.36F, p.y - 0.55F}));
        return ink{mix(hex(0x2a1414), hex(0x9a5434), warm) * stripes};
    });
    box(photo, {0.015F, 0.12F, 0.175F, 0.5F}, hex(0x4a2c1c), 1, 0.003F);
    photo.lay({0.027F, 0.132F, 0.163F, 0.488F}, [](point p) {
        return ink{mix(hex(0x101c40), hex(0x3a4a7a), p.y * 1.6F),
                   p.x > 0.027F && p.x < 0.163F && p.y > 0.132F && p.y < 0.488F ? 1.0F : 0.0F};
    });
    dice chance(705);
    for (int flake = 0; flake < 70; ++flake)
        disc(photo, {chance.between(0.03F, 0.16F), chance.between(0.14F, 0.48F)}, 0.0022F, hex(0xe8f0ff),
             0.8F, 0.002F);
    box(photo, {0.091F, 0.13F, 0.099F, 0.49F}, hex(0x4a2c1c));
    box(photo, {0.027F, 0.3F, 0.163F, 0.309F}, hex(0x4a2c1c));
    box(photo, {0.005F, 0.494F, 0.187F, 0.514F}, hex(0x6a422a), 1, 0.003F);
    planks(photo, 0.85F, hex(0x3a2014), hex(0x8a5a34), 0.04F, 707);
    soften_where(photo, 0.006F, [](point) { return 0.8F; });
    glow(photo, {0.38F, 0.55F}, 0.55F, hex(0xff9a40) * 0.3F);
    limb(photo, {0.385F, 0.8F}, {0.385F, 0.9F}, 0.02F, 0.022F, hex(0x2a180c));
    oval(photo, {0.385F, 0.905F}, 0.2F, 0.02F, hex(0x0c0604), 0.6F, 0.02F);
    festive_tree(photo, {0.385F, 0.12F}, 0.71F);
    gift(photo, {0.13F, 0.83F, 0.27F, 0.925F}, hex(0xb8242e), hex(0xf0d890));
    gift(photo, {0.45F, 0.81F, 0.61F, 0.93F}, hex(0x2a5a4a), hex(0xd8303a));
    gift(photo, {0.28F, 0.865F, 0.4F, 0.96F}, hex(0xe8dcc8), hex(0xc02430));
    gift(photo, {0.39F, 0.9F, 0.48F, 0.97F}, hex(0x3a5a9a), hex(0xf0ece0));
    develop(photo,
            {.bloom = 0.5F, .vignette = 0.45F, .contrast = 0.2F, .tint = {1.03F, 1, 0.95F}, .seed = 34});
}

namespace {

void bicycle(canvas & photo, point hub, float radius, colour color, float cover, float soft)
{
    const point front = hub + point{radius * 2.75F, 0}, pedals = hub + point{radius * 1.25F, radius * 0.12F};
    const point seat = hub + point{radius * 0.95F, -radius * 1.25F},
                head = hub + point{radius * 2.3F, -radius * 1.3F};
    for (const point axle : {hub, front}) {
        fill(
            photo,
            {axle.x - radius * 1.1F, axle.y - radius * 1.1F, axle.x + radius * 1.1F, axle.y + radius * 1.1F},
            [&](point p) { return std::abs(length(p - axle) - radius) - radius * 0.045F; },
            [&](point) { return cover < 1 ? color : hex(0x141416); }, soft);
        for (int spoke = 0; spoke < 20; ++spoke) {
            const float angle = static_cast<float>(spoke) * std::numbers::pi_v<float> / 10;
            limb(photo, axle, axle + point{std::cos(angle), std::sin(angle)} * radius, radius * 0.005F,
                 radius * 0.005F, cover < 1 ? color : hex(0xb8b8b8), cover * 0.7F, soft);
        }
        disc(photo, axle, radius * 0.06F, color, cover, soft);
    }
    const auto tube = [&](point a, point b, float thick) {
        limb(photo, a, b, radius * thick, radius * thick, color, cover, soft);
    };
    tube(hub, pedals, 0.035F);
    tube(hub, seat + point{0.02F * radius, radius * 0.2F}, 0.03F);
    tube(pedals, seat, 0.045F);
    tube(pedals, head + point{0, radius * 0.3F}, 0.045F);
    tube(seat + point{radius * 0.06F, radius * 0.3F}, head + point{0, radius * 0.22F}, 0.045F);
    tube(head + point{-radius * 0.05F, -radius * 0.2F}, front, 0.04F);
    tube(head + point{-radius * 0.05F, -radius * 0.2F}, head + point{-radius * 0.4F, -radius * 0.32F},
         0.035F);
    limb(photo, seat + point{-radius * 0.28F, -radius * 0.06F}, seat + point{radius * 0.22F, -radius * 0.03F},
         radius * 0.09F, radius * 0.04F, cover < 1 ? color : hex(0x6a3a1c), cover, soft);
    limb(photo, pedals, pedals + point{radius * 0.12F, radius * 0.3F}, radius * 0.03F, radius * 0.03F, color,
         cover, soft);
}

}  // namespace

void bicycle_at_the_wall(canvas & photo)
{
    photo.lay({}, [](point p) {
        const float plaster = cloudy(p.x * 9, p.y * 9, 6, 711), stain = cloudy(p.x * 2, p.y * 1.3F, 4, 713);
        return ink{mix(hex(0xc07a3a), hex(0xe8b068), plaster * 0.9F + stain * 0.6F - 0.25F)};
    });
    ground(photo, 0.83F, hex(0x9a8a78), hex(0x5a4e44), 0.5F, 715);
    box(photo, {0.98F, 0.12F, 1.3F, 0.56F}, hex(0xf0e4cc), 1, 0.002F);
    box(photo, {1.0F, 0.14F, 1.28F, 0.54F}, hex(0x2a3a44));
    photo.lay({1.0F, 0.14F, 1.28F, 0.54F}, [](point p) {
        return ink{hex(0x9ac4dc), 0.55F * rise(0.55F, 0.65F, cloudy(p.x * 6 + p.y * 4, p.y * 2, 3, 717))};
    });
    for (const float x : {0.855F, 1.303F}) {
        box(photo, {x, 0.12F, x + 0.122F, 0.56F}, hex(0x2f6a8a), 1, 0.002F);
        for (int slat = 0; slat < 20; ++slat)
            box(photo,
                {x + 0.012F, 0.14F + 0.0205F * static_cast<float>(slat), x + 0.11F,
                 0.146F + 0.0205F * static_cast<float>(slat)},
                hex(0x1c4660), 0.9F);
    }
    for (const float bar : {1.137F, 0.0F})
        box(photo,
            {bar > 0 ? bar : 1.0F, bar > 0 ? 0.14F : 0.33F, bar > 0 ? bar + 0.008F : 1.28F,
             bar > 0 ? 0.54F : 0.338F},
            hex(0xf0e4cc));
    box(photo, {0.96F, 0.565F, 1.32F, 0.62F}, hex(0x7a3a20), 1, 0.002F);
    dice chance(719);
    const colour petals[] = {hex(0xd8283a), hex(0xf06a8a), hex(0xf8f0f0)};
    for (int bloom = 0; bloom < 330; ++bloom) {
        const point at{chance.between(0.95F, 1.33F), 0.57F + chance.between(-0.06F, 0.035F)};
        disc(photo, at, chance.between(0.006F, 0.014F),
             bloom % 5 < 2 ? petals[bloom % 3] * chance.between(0.8F, 1.05F)
                           : mix(hex(0x1e4a1c), hex(0x6a9a3a), chance.next()),
             0.95F, 0.003F);
    }
    bicycle(photo, {0.32F, 0.76F}, 0.165F, hex(0x6a3a1a), 0.45F, 0.012F);
    bicycle(photo, {0.25F, 0.745F}, 0.165F, hex(0x1f7a72), 1, 0.0015F);
    polygon(photo, {{0.61F, 0.47F}, {0.76F, 0.47F}, {0.74F, 0.565F}, {0.63F, 0.565F}}, hex(0x9a6a38), 1,
            0.003F);
    for (int weave = 0; weave < 6; ++weave)
        box(photo,
            {0.625F, 0.482F + 0.014F * static_cast<float>(weave), 0.75F,
             0.486F + 0.014F * static_cast<float>(weave)},
            hex(0x6a4420), 0.8F);
    for (int bloom = 0; bloom < 90; ++bloom)
        disc(photo, {chance.between(0.615F, 0.755F), 0.455F + chance.between(-0.045F, 0.018F)},
             chance.between(0.006F, 0.013F),
             bloom % 3 ? mix(hex(0x8a5ac0), hex(0xf0d0f8), chance.next())
                       : mix(hex(0x2a5a24), hex(0x8ab05a), chance.next()),
             0.95F, 0.003F);
    photo.lay({}, [](point p) {
        return ink{hex(0x2a1208),
                   0.42F * rise(0.3F, 0.62F, cloudy(p.x * 2 + p.y, p.y * 3, 3, 721)) * rise(0.7F, 0.0F, p.x)};
    });
    develop(photo,
            {.bloom = 0.2F, .vignette = 0.35F, .contrast = 0.3F, .tint = {1.04F, 1, 0.95F}, .seed = 37});
}
