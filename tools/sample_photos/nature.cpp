#include "nature.h"

#include "noise.h"

#include <numbers>

void sky(canvas & photo, colour top, colour middle, colour low, float horizon)
{
    photo.lay({}, [&](point p) {
        const float t = p.y / horizon;
        const float waver = 0.03F * (cloudy(p.x * 1.5F, p.y * 3, 3, 99) - 0.5F);
        return ink{t < 0.55F ? mix(top, middle, t / 0.55F + waver)
                             : mix(middle, low, (t - 0.55F) / 0.45F + waver)};
    });
}

void clouds(canvas & photo, float horizon, const cloud_cover & cover)
{
    photo.lay({0, 0, 100, horizon}, [&](point p) {
        const float away = 1 / (0.25F + 0.9F * (horizon - p.y) / horizon);  // flatter towards the horizon
        const float x = p.x * cover.size * (0.6F + 0.4F * away), y = p.y * cover.size * (0.8F + away);
        const float density = cloudy(x, y, 5, cover.seed);
        const float above = cloudy(x - 0.08F, y - 0.25F, 4, cover.seed);
        const float threshold = 0.78F - 0.55F * cover.amount;
        const float thick = rise(threshold, threshold + 0.22F, density);
        const float light = clamped(0.5F + (density - above) * 3.2F);
        return ink{mix(cover.shaded, cover.lit, light), thick * 0.92F};
    });
}

float crest_of(const ridge & shape, float x)
{
    const float large = cloudy(x / shape.width, 0.37F, 2, shape.seed) - 0.5F;
    const float fine = cloudy(x / shape.width * 7, 1.7F, 4, shape.seed + 5) - 0.5F;
    return shape.base - shape.swing * (2.2F * large + 0.5F * fine);
}

void hills(canvas & photo, const ridge & shape)
{
    photo.lay({0, shape.base - shape.swing * 1.6F, 100, 1}, [&](point p) {
        const float below = p.y - crest_of(shape, p.x);
        const float cover = inside(-below, 0.0018F);
        if (cover <= 0)
            return ink{{}, 0};
        const colour base = mix(shape.crest, shape.foot, below / shape.depth);
        const float slope = cloudy(p.x * 9 + below * 6, p.y * 7, 5, shape.seed + 11) - 0.5F;
        return ink{base * (1 + 2 * shape.rough * slope), cover};
    });
}

void water(canvas & photo, const water_surface & surface)
{
    const canvas above = photo;
    photo.lay({0, surface.top, 100, surface.bottom}, [&](point p) {
        const float near = (p.y - surface.top) / std::max(0.01F, surface.bottom - surface.top);
        const float fine = 26 / (0.12F + near);
        const float wave = cloudy(p.x * fine * 0.35F, p.y * fine * 2.2F, 3, surface.seed) - 0.5F;
        const float swell = cloudy(p.x * 5, p.y * 30, 2, surface.seed + 3) - 0.5F;
        const float shake = surface.ripple * (0.35F + near);
        const point mirrored{p.x + wave * shake * 0.7F,
                             2 * surface.top - p.y + (wave + swell) * shake * 2.4F};
        const colour reflected = above.seen({mirrored.x, std::min(mirrored.y, surface.top)}) * surface.tint;
        const float mirror = surface.mirror * (1 - 0.45F * near) + wave * 0.25F;
        return ink{mix(surface.depth, reflected, mirror)};
    });
}

void fir(canvas & photo, point foot, float height, colour color, unsigned seed, float soft)
{
    dice chance(seed);
    limb(photo, foot, foot + point{0, -height}, height * 0.02F, height * 0.004F, color * 0.8F, 1, soft);
    const int tiers = 11;
    for (int tier = 0; tier < tiers; ++tier) {
        const float at = static_cast<float>(tier) / tiers;
        const float y = foot.y - height * (0.08F + 0.9F * at);
        const float reach = height * 0.25F * (1 - at) * chance.between(0.8F, 1.15F) + height * 0.015F;
        for (const float side : {-1.0F, 1.0F}) {
            const point tip{foot.x + side * reach, y + reach * 0.42F};
            const float shade = chance.between(0.75F, 1.2F) * (side < 0 ? 1.12F : 0.9F);
            limb(photo, {foot.x, y - height * 0.02F}, tip, height * 0.05F * (1.1F - at), height * 0.008F,
                 color * shade, 1, std::max(soft, height * 0.006F));
        }
    }
}

void tree(canvas & photo, point foot, float height, colour shaded, colour lit, unsigned seed)
{
    dice chance(seed);
    const colour bark = shaded * 0.55F + colour{0.04F, 0.02F, 0.01F};
    limb(photo, foot, foot + point{0, -height * 0.55F}, height * 0.032F, height * 0.014F, bark);
    // A crown of several rounded masses, each of many small tufts of leaves.
    for (int mass = 0; mass < 9; ++mass) {
        const float turn = static_cast<float>(mass) * 2.4F + chance.between(-0.3F, 0.3F);
        const float away = height * (mass == 0 ? 0 : chance.between(0.12F, 0.23F));
        const point middle =
            foot + point{std::cos(turn) * away, -height * 0.64F + std::sin(turn) * away * 0.85F};
        for (int tuft = 0; tuft < 90; ++tuft) {
            const float angle = chance.between(0, 2 * std::numbers::pi_v<float>),
                        out = std::sqrt(chance.next());
            const point off{std::cos(angle) * out * height * 0.15F, std::sin(angle) * out * height * 0.13F};
            const point at = middle + off;
            const float light = 0.45F - (off.x + off.y * 1.5F) / height * 2.2F -
                                ((at.x - foot.x) + (at.y - foot.y + height * 0.62F) * 1.3F) / height +
                                chance.between(-0.3F, 0.3F);
            disc(photo, at, height * chance.between(0.006F, 0.022F), mix(shaded, lit, light), 0.9F,
                 height * 0.006F);
        }
    }
}

void grass(canvas & photo, float left, float right, float foot, float height, int blades, colour dark,
           colour light, unsigned seed)
{
    dice chance(seed);
    for (int blade = 0; blade < blades; ++blade) {
        const point at{chance.between(left, right), foot + chance.between(-0.2F, 0.3F) * height};
        const point tip =
            at + point{chance.between(-0.35F, 0.35F) * height, -height * chance.between(0.45F, 1.1F)};
        limb(photo, at, tip, height * 0.022F, height * 0.004F, mix(dark, light, chance.next()), 0.9F);
    }
}

void figure(canvas & photo, point foot, float height, pose how, colour color, float soft)
{
    const auto at = [&](float x, float y) { return foot + point{x * height, -y * height}; };
    const auto draw = [&](point a, point b, float ra, float rb) {
        limb(photo, a, b, ra * height, rb * height, color, 1, soft);
    };
    const float spread =
        how == pose::standing || how == pose::holding_up ? 0.05F : (how == pose::jumping ? 0.2F : 0.13F);
    const float lift = how == pose::jumping ? 0.13F : 0;
    draw(at(-0.035F, 0.5F), at(-spread, 0.26F), 0.052F, 0.04F);
    draw(at(-spread, 0.26F), at(-spread * 1.2F, 0.03F + lift * 1.3F), 0.04F, 0.025F);
    draw(at(0.035F, 0.5F), at(spread, 0.27F + lift * 0.5F), 0.052F, 0.04F);
    draw(at(spread, 0.27F + lift * 0.5F), at(spread * (how == pose::jumping ? 1.9F : 0.9F), 0.03F + lift),
         0.04F, 0.025F);
    draw(at(0, 0.53F), at(0, 0.76F), 0.075F, 0.085F);
    draw(at(-0.06F, 0.79F), at(0.06F, 0.79F), 0.042F, 0.042F);
    draw(at(0, 0.8F), at(0.005F, 0.87F), 0.03F, 0.03F);
    oval(photo, at(0.008F, 0.925F), height * 0.056F, height * 0.07F, color, 1, soft);
    const bool up_left = how == pose::jumping, up_right = how != pose::standing && how != pose::walking;
    draw(at(-0.09F, 0.78F), up_left ? at(-0.19F, 0.93F) : at(-0.13F, 0.6F), 0.03F, 0.024F);
    draw(up_left ? at(-0.19F, 0.93F) : at(-0.13F, 0.6F), up_left ? at(-0.2F, 1.1F) : at(-0.1F, 0.46F), 0.024F,
         0.018F);
    draw(at(0.09F, 0.78F), up_right ? at(0.19F, 0.9F) : at(0.13F, 0.6F), 0.03F, 0.024F);
    draw(up_right ? at(0.19F, 0.9F) : at(0.13F, 0.6F), up_right ? at(0.18F, 1.07F) : at(0.11F, 0.46F), 0.024F,
         0.018F);
}

void ground(canvas & photo, float top, colour far, colour near, float grain, unsigned seed)
{
    photo.lay({0, top, 100, 1}, [&](point p) {
        const float close = (p.y - top) / (1 - top);
        const float scale = 1 / (0.06F + close);
        const float coarse = cloudy((p.x - photo.aspect() / 2) * scale * 5, scale * 9, 4, seed) - 0.5F;
        const float fine = hashed(static_cast<int>(p.x * 1200), static_cast<int>(p.y * 1200), seed) - 0.5F;
        return ink{mix(far, near, close) * (1 + grain * (1.6F * coarse + 0.5F * fine))};
    });
}

void out_of_focus(canvas & photo, colour dark, colour light, unsigned seed)
{
    photo.lay({}, [&](point p) {
        return ink{mix(dark, light, cloudy(p.x * 3.5F, p.y * 3.5F, 3, seed) * 1.5F - 0.25F)};
    });
    dice chance(seed);
    for (int i = 0; i < 40; ++i)
        bokeh(photo, {chance.between(0, photo.aspect()), chance.next()}, chance.between(0.02F, 0.075F), light,
              chance.between(0.04F, 0.16F));
    soften(photo, 0.02F);
}

void planks(canvas & photo, float top, colour dark, colour light, float pitch, unsigned seed)
{
    photo.lay({0, top, 100, 1}, [&](point p) {
        const float board = p.y / pitch, within = board - std::floor(board);
        const auto row = static_cast<unsigned>(board);
        const float rings = cloudy(p.x * 2.5F + static_cast<float>(row) * 7.3F, p.y * 46, 5, seed + row);
        const float joint = rise(0, 0.03F, within) * rise(1, 0.97F, within);
        return ink{mix(dark, light, rings * 1.3F - 0.15F) *
                   ((0.8F + 0.35F * hashed(static_cast<int>(row), 1, seed)) * (0.4F + 0.6F * joint))};
    });
}

void stars(canvas & photo, float horizon, int count, unsigned seed)
{
    dice chance(seed);
    for (int star = 0; star < count; ++star) {
        const float bright = std::pow(chance.next(), 3.0F);
        disc(photo, {chance.between(0, photo.aspect()), chance.between(0, horizon)},
             0.0008F + 0.0014F * bright, mix(hex(0xbcd0ff), hex(0xfff2dc), chance.next()),
             0.25F + 0.75F * bright, 0.0012F);
    }
}

void ball(canvas & photo, point at, float radius, colour color, float rough, unsigned seed)
{
    fill(
        photo, {at.x - radius, at.y - radius, at.x + radius, at.y + radius},
        [&](point p) { return length(p - at) - radius; },
        [&](point p) {
            const point d = (p - at) * (1 / radius);
            const float skin = cloudy(d.x * 3 + at.x * 40, d.y * 3 + at.y * 40, 4, seed) - 0.5F;
            const float light = 0.9F - 0.3F * d.x * 0.5F - 0.35F * d.y - 0.25F * rise(0.55F, 1.0F, length(d));
            const float shine = rise(0.5F, 0, length({d.x + 0.36F, d.y + 0.42F}));
            return color * (light + rough * skin) + hex(0xfff4e0) * (0.28F * shine * shine);
        },
        radius * 0.03F);
}
