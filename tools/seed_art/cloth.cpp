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

thread thread_at(float across, float along, float pitch, unsigned seed)
{
    const float place = across / pitch;
    const int at = static_cast<int>(std::floor(place));
    const float row = static_cast<float>(at) * 5.37F;
    const float slub = value_noise(along / 130, row, seed + 1);
    return {at, place - std::floor(place) - 0.5F,
            0.9F + 0.14F * hashed(at, 3, seed) + 0.16F * (slub - 0.5F) +
                0.16F * (value_noise((along + 3 * across) / 4, row, seed + 2) - 0.5F),
            0.4F + 0.16F * slub};
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

colour cloth_at(const weave & cloth, float x, float y)
{
    const float sway = 2.2F * cloth.pitch;
    const float across = x + sway * (cloudy(x / 420, y / 240, 2, cloth.seed) - 0.5F),
                down = y + sway * (cloudy(x / 240, y / 420, 2, cloth.seed + 9) - 0.5F);
    const thread warp = thread_at(across, down, cloth.pitch, cloth.seed + 20),
                 weft = thread_at(down, across, cloth.pitch, cloth.seed + 40);
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
    const float soft = 0.9F + 0.22F * cloudy(x / 340, y / 300, 3, cloth.seed + 70);
    return mix(of_weft, of_warp, share) * ((0.62F + 0.5F * high) * soft);
}

}  // namespace

void paint_cloth(const stuff_words & words, QImage & page)
{
    const weave cloth{words.number("pitch", 8),      words.colours("warp").front(),
                      words.colours("weft").front(), words.number("twill", 0) > 0,
                      words.number("checks", 0),     words.seed()};
    fill(page, [&](float x, float y) { return cloth_at(cloth, x, y); });
}
