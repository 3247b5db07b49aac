#include "wood.h"

#include <cmath>

namespace {

struct timber {
    float board;
    std::vector<colour> tones;
    colour seam;
    unsigned seed;
};

/// The exponential of what is below 0, without the long way of the library to those that come out as 0.
float faded(float power)
{
    return power < -104 ? 0 : std::exp(power);
}

/// One board: how it lies and how it was sawn.
struct plank {
    int row, piece;
    unsigned seed;
    float along, within;  // the place in it, from its left end and its upper edge
    float length, shift;
    float heart, depth,
        lean;  // the middle of the trunk: from the upper edge, below the face, and how fast that changes
    float knot_along, knot_within, knot;  // its size, or 0
};

plank sawn(const timber & wood, int row, int piece)
{
    const float length = 1500 + 1100 * hashed(row, 1, wood.seed);
    const auto chance = [&](int which) { return hashed(row * 37 + piece, which, wood.seed + 5); };
    plank found{};
    found.row = row;
    found.piece = piece;
    found.seed = wood.seed * 101 + static_cast<unsigned>(row * 37 + piece + 1000);
    found.length = length;
    found.shift = length * hashed(row, 2, wood.seed);
    found.heart = wood.board * (chance(0) * 1.5F - 0.25F);
    found.depth = wood.board * (0.12F + 0.6F * chance(1));
    found.lean = (chance(2) - 0.5F) * 0.22F;
    found.knot_along = length * (0.15F + 0.7F * chance(3));
    found.knot_within = wood.board * (0.3F + 0.4F * chance(4));
    found.knot = chance(5) < 0.3F ? 16 + 16 * chance(6) : 0;
    return found;
}

/// The board at a place; `last` is that of a neighbour, most often the same one.
plank plank_at(const timber & wood, float x, float y, const plank & last)
{
    const int row = static_cast<int>(std::floor(y / wood.board));
    plank found = row == last.row ? last : sawn(wood, row, 0);
    const int piece = static_cast<int>(std::floor((x + found.shift) / found.length));
    if (piece != found.piece)
        found = sawn(wood, row, piece);
    found.along = x + found.shift - static_cast<float>(piece) * found.length;
    found.within = y - static_cast<float>(row) * wood.board;
    return found;
}

/// Many places of a row, each on its board.
struct places {
    many x;
    float y;
    std::array<plank, together> board;
    many_seeds seeds;

    /// Noise of a board of its own, so far drawn out.
    many noise(float wide, float high, unsigned more) const
    {
        return noise(divided(x, wide), same(y / high), more);
    }
    many noise(const many & across, const many & down, unsigned more) const
    {
        many found{};
        value_noise(across, down, seeds, more, found);
        return found;
    }

    /// The same, clouded: two octaves.
    many cloud(float wide, float high, unsigned more) const
    {
        const float down = y / high;
        many upper = noise(wide, high, more), across{}, deep{};
        for (std::size_t at = 0; at < together; ++at) {
            const float along = x[at] / wide;
            across[at] = 1.6F * along + 1.2F * down;
            deep[at] = -1.2F * along + 1.6F * down;
        }
        const many lower = noise(across, deep, more + 1);
        for (std::size_t at = 0; at < together; ++at)
            upper[at] = (0.5F * upper[at] + 0.25F * lower[at]) / 0.75F;
        return upper;
    }
};

places places_from(const timber & wood, const many & x, float y, plank & last)
{
    places found{x, y, {}, {}};
    many bend{};
    value_noise(divided(x, 400), same(1), wood.seed, bend);
    for (std::size_t at = 0; at < together; ++at) {
        last = plank_at(wood, x[at], y + 2 * bend[at], last);
        found.board[at] = last;
        found.seeds[at] = last.seed;
    }
    return found;
}

/// Year rings about the places, as a count from the heart of the trunk.
many rings_at(const places & here)
{
    const many bent = here.noise(divided(here.x, 520), same(0), 0),
               sunk = here.noise(divided(here.x, 1100), same(3), 0), cloud = here.cloud(330, 55, 2);
    many rings{};
    for (std::size_t at = 0; at < together; ++at) {
        const plank & one = here.board[at];
        const float across = one.within - one.heart + 34 * (bent[at] - 0.5F);
        const float deep = one.depth + one.lean * one.along + 150 * (sunk[at] - 0.5F);
        rings[at] = std::hypot(across, deep) + 16 * (cloud[at] - 0.5F);
        if (one.knot > 0) {
            const float off = std::hypot((one.along - one.knot_along) / 2.6F, one.within - one.knot_within);
            rings[at] += 3.4F * one.knot * faded(-off * off / (5 * one.knot * one.knot));
        }
    }
    const many uneven = here.noise(divided(rings, 60), same(7), 3);
    for (std::size_t at = 0; at < together; ++at)
        rings[at] = rings[at] / 12 + 2.2F * uneven[at];
    return rings;
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
    return 0.16F * faded(-std::fabs(top - 6) / 3) - 0.2F * faded(-bottom / 7) +
           0.1F * faded(-std::fabs(left - 5) / 3) - 0.15F * faded(-right / 6);
}

float gap(const timber & wood, const plank & one)
{
    const float edge =
        std::min(std::min(one.within, wood.board - one.within), std::min(one.along, one.length - one.along));
    return rise(3.6F, 1.2F, edge);
}

colour sawn_colour(const timber & wood, const plank & one, float light, float late)
{
    const colour base = wood.tones[static_cast<std::size_t>(hashed(static_cast<int>(one.seed), 4, 1) *
                                                            static_cast<float>(wood.tones.size())) %
                                   wood.tones.size()];
    const colour lit = mix(base * light, wood.seam, 0.22F * late * late);
    return mix(mix(lit, wood.seam * 0.8F, knot_shade(one)), wood.seam * 0.55F, gap(wood, one));
}

void wood_at(const timber & wood, const places & here, many_colours & found)
{
    const many rings = rings_at(here), worn = here.noise(210, 26, 4),
               fine = here.noise(times(rings, 4.3F), divided(here.x, 900), 7),
               fibres = here.noise(85, 1.7F, 5), shorter = here.noise(30, 1.2F, 6),
               holes = here.noise(38, 1.5F, 8), cloud = here.cloud(520, 150, 9);
    for (std::size_t at = 0; at < together; ++at) {
        const float phase = rings[at] - std::floor(rings[at]);
        const float late = (0.35F * phase + 0.65F * rise(0.45F, 0.92F, phase)) * rise(1, 0.94F, phase) *
                           (0.35F + 0.65F * worn[at]);
        const float fibre = fibres[at] - 0.5F + 0.7F * (shorter[at] - 0.5F);
        const float pores = rise(0.7F, 0.92F, holes[at]) * (0.45F + 0.55F * late);
        const float light = 1.03F - 0.2F * late + 0.15F * fibre + 0.09F * (fine[at] - 0.5F) - 0.2F * pores +
                            0.26F * (cloud[at] - 0.5F) + edge_light(wood, here.board[at]);
        found[at] = sawn_colour(wood, here.board[at], light, late);
    }
}

}  // namespace

void paint_wood(const stuff_words & words, QImage & page)
{
    const timber wood{words.number("board", 270), words.colours("tones"), words.colours("seam").front(),
                      words.seed()};
    plank last = sawn(wood, 0, 0);
    fill_together(page, [&](const many & x, float y, many_colours & found) {
        wood_at(wood, places_from(wood, x, y, last), found);
    });
}
