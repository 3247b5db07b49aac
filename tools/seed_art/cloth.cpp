#include "cloth.h"

#include <cmath>

namespace {

struct weave {
    float pitch;
    colour warp, weft;
    bool twill;
    float checks;
    unsigned seed;
};

/// A thread where it is seen: how far from its middle, in pitches, and what its own look does to its colour.
struct thread {
    int at;
    float off, light, thick;
};

/// The threads of one direction at many places.
std::array<thread, together> threads_at(const many & across, const many & along, float pitch, unsigned seed)
{
    std::array<thread, together> found{};
    many row{}, slub{}, rough{}, place{};
    for (std::size_t at = 0; at < together; ++at) {
        const float pitches = across[at] / pitch;
        found[at].at = static_cast<int>(std::floor(pitches));
        found[at].off = pitches - std::floor(pitches) - 0.5F;
        row[at] = static_cast<float>(found[at].at) * 5.37F;
        place[at] = (along[at] + 3 * across[at]) / 4;
    }
    value_noise(divided(along, 130), row, seed + 1, slub);
    value_noise(place, row, seed + 2, rough);
    for (std::size_t at = 0; at < together; ++at) {
        found[at].light = 0.9F + 0.14F * hashed(found[at].at, 3, seed) + 0.16F * (slub[at] - 0.5F) +
                          0.16F * (rough[at] - 0.5F);
        found[at].thick = 0.4F + 0.16F * slub[at];
    }
    return found;
}

/// How high a thread lies above the gap: round across, bent where it goes under.
float height_of(const thread & one, float bend)
{
    const float share = one.off / one.thick;
    return std::sqrt(std::max(0.0F, 1 - share * share)) * bend;
}

bool in_check(const weave & cloth, int at)
{
    return cloth.checks > 0 &&
           static_cast<int>(std::floor(static_cast<float>(at) * cloth.pitch / cloth.checks)) % 2 == 0;
}

colour woven(const weave & cloth, const thread & warp, const thread & weft, float soft)
{
    const bool above = cloth.twill ? (warp.at + weft.at) % 3 != 0 : (warp.at + weft.at) % 2 == 0;
    const float bend_warp = above ? 0.72F + 0.28F * std::cos(6.283F * weft.off) : 0.4F;
    const float bend_weft = above ? 0.4F : 0.72F + 0.28F * std::cos(6.283F * warp.off);
    const float high_warp = height_of(warp, bend_warp), high_weft = height_of(weft, bend_weft);
    const float share = rise(-0.12F, 0.12F, high_warp - high_weft), high = std::max(high_warp, high_weft);
    const colour of_warp =
        (in_check(cloth, warp.at) ? cloth.weft : cloth.warp) * (warp.light - 0.22F * warp.off);
    const bool plain = cloth.checks <= 0;
    const colour of_weft =
        (plain || in_check(cloth, weft.at) ? cloth.weft : cloth.warp) * (weft.light - 0.22F * weft.off);
    return mix(of_weft, of_warp, share) * ((0.62F + 0.5F * high) * soft);
}

void cloth_at(const weave & cloth, const many & x, float y, many_colours & found)
{
    const float sway = 2.2F * cloth.pitch;
    many across{}, down{}, soft{};
    cloudy(divided(x, 420), same(y / 240), 2, cloth.seed, across);
    cloudy(divided(x, 240), same(y / 420), 2, cloth.seed + 9, down);
    cloudy(divided(x, 340), same(y / 300), 3, cloth.seed + 70, soft);
    for (std::size_t at = 0; at < together; ++at) {
        across[at] = x[at] + sway * (across[at] - 0.5F);
        down[at] = y + sway * (down[at] - 0.5F);
        soft[at] = 0.9F + 0.22F * soft[at];
    }
    const auto warp = threads_at(across, down, cloth.pitch, cloth.seed + 20),
               weft = threads_at(down, across, cloth.pitch, cloth.seed + 40);
    for (std::size_t at = 0; at < together; ++at)
        found[at] = woven(cloth, warp[at], weft[at], soft[at]);
}

}  // namespace

void paint_cloth(const stuff_words & words, QImage & page)
{
    const weave cloth{words.number("pitch", 8),      words.colours("warp").front(),
                      words.colours("weft").front(), words.number("twill", 0) > 0,
                      words.number("checks", 0),     words.seed()};
    fill_together(page, [&](const many & x, float y, many_colours & found) { cloth_at(cloth, x, y, found); });
}
