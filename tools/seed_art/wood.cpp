#include "wood.h"

#include <cmath>

namespace {

struct timber {
    float board;
    std::vector<colour> tones;
    colour seam;
    unsigned seed;
};

/// One board: how it lies and how it was sawn.
struct plank {
    unsigned seed;
    float along, within;  // the place in it, from its left end and its upper edge
    float length;
    float heart, depth,
        lean;  // the middle of the trunk: from the upper edge, below the face, and how fast that changes
    float knot_along, knot_within, knot;  // its size, or 0
};

plank plank_at(const timber & wood, float x, float y)
{
    const int row = static_cast<int>(std::floor(y / wood.board));
    const float length = 1500 + 1100 * hashed(row, 1, wood.seed), shift = length * hashed(row, 2, wood.seed);
    const int piece = static_cast<int>(std::floor((x + shift) / length));
    const auto chance = [&](int which) { return hashed(row * 37 + piece, which, wood.seed + 5); };
    plank found{};
    found.seed = wood.seed * 101 + static_cast<unsigned>(row * 37 + piece + 1000);
    found.along = x + shift - static_cast<float>(piece) * length;
    found.within = y - static_cast<float>(row) * wood.board;
    found.length = length;
    found.heart = wood.board * (chance(0) * 1.5F - 0.25F);
    found.depth = wood.board * (0.12F + 0.6F * chance(1));
    found.lean = (chance(2) - 0.5F) * 0.22F;
    found.knot_along = length * (0.15F + 0.7F * chance(3));
    found.knot_within = wood.board * (0.3F + 0.4F * chance(4));
    found.knot = chance(5) < 0.3F ? 16 + 16 * chance(6) : 0;
    return found;
}

/// Year rings about the place, as a count from the heart of the trunk.
float rings_at(const plank & one, float x, float y)
{
    const float across = one.within - one.heart + 34 * (value_noise(x / 520, 0, one.seed) - 0.5F);
    const float deep = one.depth + one.lean * one.along + 150 * (value_noise(x / 1100, 3, one.seed) - 0.5F);
    float far = std::hypot(across, deep) + 16 * (cloudy(x / 330, y / 55, 2, one.seed + 2) - 0.5F);
    if (one.knot > 0) {
        const float off = std::hypot((one.along - one.knot_along) / 2.6F, one.within - one.knot_within);
        far += 3.4F * one.knot * std::exp(-off * off / (5 * one.knot * one.knot));
    }
    return far / 12 + 2.2F * value_noise(far / 60, 7, one.seed + 3);
}

float knot_shade(const plank & one)
{
    if (one.knot <= 0)
        return 0;
    const float off = std::hypot((one.along - one.knot_along) / 1.35F, one.within - one.knot_within);
    return 0.5F * rise(one.knot, 0.55F * one.knot, off) + 0.16F * rise(2.2F * one.knot, 0.6F * one.knot, off);
}

/// What the edges do: the gap between two boards is dark, the edges that look to the light shine.
float edge_light(const timber & wood, const plank & one)
{
    const float top = one.within, bottom = wood.board - one.within, left = one.along,
                right = one.length - one.along;
    return 0.16F * std::exp(-std::fabs(top - 6) / 3) - 0.2F * std::exp(-bottom / 7) +
           0.1F * std::exp(-std::fabs(left - 5) / 3) - 0.15F * std::exp(-right / 6);
}

float gap(const timber & wood, const plank & one)
{
    const float edge =
        std::min(std::min(one.within, wood.board - one.within), std::min(one.along, one.length - one.along));
    return rise(3.6F, 1.2F, edge);
}

colour wood_at(const timber & wood, float x, float y)
{
    const plank one = plank_at(wood, x, y + 2 * value_noise(x / 400, 1, wood.seed));
    const float rings = rings_at(one, x, y), phase = rings - std::floor(rings);
    const float worn = 0.35F + 0.65F * value_noise(x / 210, y / 26, one.seed + 4);
    const float late = (0.35F * phase + 0.65F * rise(0.45F, 0.92F, phase)) * rise(1, 0.94F, phase) * worn;
    const float fine = value_noise(4.3F * rings, x / 900, one.seed + 7) - 0.5F;
    const float fibre = value_noise(x / 85, y / 1.7F, one.seed + 5) - 0.5F +
                        0.7F * (value_noise(x / 30, y / 1.2F, one.seed + 6) - 0.5F);
    const float pores =
        rise(0.7F, 0.92F, value_noise(x / 38, y / 1.5F, one.seed + 8)) * (0.45F + 0.55F * late);
    const float cloud = cloudy(x / 520, y / 150, 2, one.seed + 9) - 0.5F;
    const colour base = wood.tones[static_cast<std::size_t>(hashed(static_cast<int>(one.seed), 4, 1) *
                                                            static_cast<float>(wood.tones.size())) %
                                   wood.tones.size()];
    const float light = 1.03F - 0.2F * late + 0.15F * fibre + 0.09F * fine - 0.2F * pores + 0.26F * cloud +
                        edge_light(wood, one);
    const colour lit = mix(base * light, wood.seam, 0.22F * late * late);
    return mix(mix(lit, wood.seam * 0.8F, knot_shade(one)), wood.seam * 0.55F, gap(wood, one));
}

}  // namespace

void paint_wood(const stuff_words & words, QImage & page)
{
    const timber wood{words.number("board", 270), words.colours("tones"), words.colours("seam").front(),
                      words.seed()};
    fill(page, [&](float x, float y) { return wood_at(wood, x, y); });
}
