#include "soft_stuff.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

/// Of the grains about a place: the nearest one, how far it is, and how much further the next one.
struct nearest_grain {
    int column = 0, row = 0;
    float off_x = 0, off_y = 0, distance = 1e9F, second = 1e9F;
};

nearest_grain grain_about(float x, float y, float size, unsigned seed)
{
    const int column = static_cast<int>(std::floor(x / size)), row = static_cast<int>(std::floor(y / size));
    nearest_grain found;
    for (int down = row - 1; down <= row + 1; ++down)
        for (int across = column - 1; across <= column + 1; ++across) {
            const float off_x = x / size - static_cast<float>(across) - hashed(across, down, seed),
                        off_y = y / size - static_cast<float>(down) - hashed(across, down, seed + 1);
            const float distance = off_x * off_x + off_y * off_y;
            if (distance < found.distance)
                found = {across, down, off_x, off_y, distance, found.distance};
            else
                found.second = std::min(found.second, distance);
        }
    found.distance = std::sqrt(found.distance);
    found.second = std::sqrt(found.second);
    return found;
}

colour cork_at(const std::vector<colour> & tones, unsigned seed, float x, float y)
{
    const float bent_x = x + 9 * (value_noise(x / 8, y / 8, seed + 2) - 0.5F),
                bent_y = y + 9 * (value_noise(x / 8, y / 8, seed + 3) - 0.5F);
    const float coarse = rise(0.42F, 0.58F, cloudy(x / 90, y / 90, 2, seed + 4));
    const nearest_grain one =
        coarse > 0.5F ? grain_about(bent_x, bent_y, 19, seed) : grain_about(bent_x, bent_y, 11, seed + 40);
    const float own = hashed(one.column, one.row, seed + 6);
    const auto count = static_cast<float>(tones.size());
    const colour base = tones[static_cast<std::size_t>(own * own * count) % tones.size()];
    const float joint = rise(0.22F, 0.02F, one.second - one.distance);
    const float facing =
        -0.1F * (one.off_x + one.off_y);  // a grain is round: its upper left looks to the light
    const float rough = 0.2F * (cloudy(x / 3.5F, y / 3.5F, 2, seed + 8) - 0.5F) +
                        0.22F * (cloudy(x / 240, y / 240, 2, seed + 9) - 0.5F);
    const float hole = rise(0.8F, 0.95F, value_noise(x / 4.5F, y / 4.5F, seed + 10));
    return base * ((1 + facing + rough) * (1 - 0.17F * joint) * (1 - 0.5F * hole));
}

/// A page of heights, lit from the upper left: `strength` is how much a step of height brightens.
template <typename Function>
void fill_lit(QImage & page, Function height_at, colour base, float strength)
{
    const int width = page.width(), height = page.height();
    std::vector<float> heights(static_cast<std::size_t>(width + 2) * static_cast<std::size_t>(height + 2));
    const auto at = [&](int x, int y) -> float & {
        return heights[static_cast<std::size_t>(y) * static_cast<std::size_t>(width + 2) +
                       static_cast<std::size_t>(x)];
    };
    many heights_here{};
    for (int y = 0; y < height + 2; ++y)
        for (int x = 0; x < width + 2; x += static_cast<int>(together)) {
            height_at(counted(x), static_cast<float>(y), heights_here);
            const auto left = static_cast<std::size_t>(width + 2 - x);
            std::copy_n(heights_here.begin(), std::min(together, left), &at(x, y));
        }
    fill(page, [&](float x, float y) {
        const int column = static_cast<int>(x), row = static_cast<int>(y);
        const float slope = at(column + 2, row + 2) - at(column, row);
        return base * (1 + strength * slope + 0.1F * (at(column + 1, row + 1) - 0.5F));
    });
}

struct strokes {
    int count;
    float length, width;
    float bend;
    float opacity;
};

/// Hairs, fibres or blades strewn over the page: each tapers, is a little bent, and has one of the colours.
void strew(QImage & page, const std::vector<colour> & colours, const strokes & look, unsigned seed)
{
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    dice chance(seed);
    for (int at = 0; at < look.count; ++at) {
        const float x = chance.between(-look.length, static_cast<float>(page.width()) + look.length),
                    y = chance.between(-look.length, static_cast<float>(page.height()) + look.length);
        const float turn = chance.between(0, 6.283F), reach = look.length * chance.between(0.4F, 1),
                    bend = look.bend * chance.between(-1, 1);
        const float c = std::cos(turn), s = std::sin(turn), half = look.width * chance.between(0.6F, 1) / 2;
        const auto place = [&](float along, float across) {
            return QPointF(x + along * c - across * s, y + along * s + across * c);
        };
        QPainterPath blade(place(0, 0));
        blade.quadTo(place(reach * 0.4F, bend * reach - half), place(reach, bend * reach * 0.6F));
        blade.quadTo(place(reach * 0.4F, bend * reach + half), place(0, 0));
        const colour tone =
            colours[static_cast<std::size_t>(chance.whole(static_cast<int>(colours.size())))] *
            chance.between(0.85F, 1.15F);
        painter.setBrush(QColor::fromRgbF(clamped(tone.r), clamped(tone.g), clamped(tone.b),
                                          look.opacity * chance.between(0.5F, 1)));
        painter.drawPath(blade);
    }
}

int for_page(const QImage & page, float per_square)
{
    return static_cast<int>(static_cast<float>(page.width()) * static_cast<float>(page.height()) / 250000 *
                            per_square);  // squares of 500
}

/// Hairs or strokes of a brush, by how far they rise, how long and how wide they are.
struct nap {
    float height, length, width;
};

/// Bumps of one size, by how far they rise and how wide and high they are.
struct bumps {
    float height, wide, high;
    int octaves;
    unsigned seed;  // beyond that of the whole
};

/// How high the stuff rises at a place; 0.5 in the mean.
auto surface(nap hairs, std::array<bumps, 2> under, unsigned seed)
{
    return [=](const many & x, float y, many & found) {
        many part{};
        hairs_at(x, y, {.length = hairs.length, .width = hairs.width}, seed, part);
        for (std::size_t at = 0; at < together; ++at)
            found[at] = 0.5F + hairs.height * part[at];
        for (const bumps & one : under) {
            cloudy(divided(x, one.wide), same(y / one.high), one.octaves, seed + one.seed, part);
            for (std::size_t at = 0; at < together; ++at)
                found[at] += one.height * (part[at] - 0.5F);
        }
    };
}

}  // namespace

void paint_cork(const stuff_words & words, QImage & page)
{
    const std::vector<colour> tones = words.colours("tones");
    fill(page, [&, seed = words.seed()](float x, float y) { return cork_at(tones, seed, x, y); });
}

void paint_felt(const stuff_words & words, QImage & page)
{
    const unsigned seed = words.seed();
    fill_lit(page, surface({0.55F, 15, 1.7F}, {{{0.5F, 3, 3, 2, 50}, {0.9F, 60, 60, 3, 90}}}, seed),
             words.colours("color").front(), 0.26F);
    strew(page, words.colours("hairs"), {for_page(page, 260), 34, 1.6F, 0.5F, 0.25F}, seed + 7);
}

void paint_paper(const stuff_words & words, QImage & page)
{
    const unsigned seed = words.seed();
    fill_lit(page, surface({0.4F, 34, 2.4F}, {{{0.5F, 5, 4, 2, 50}, {0.6F, 160, 120, 3, 70}}}, seed),
             words.colours("color").front(), 0.2F);
    if (words.has("flecks"))
        strew(page, words.colours("flecks"), {for_page(page, 90), 40, 2.2F, 0.6F, 0.5F}, seed + 7);
}

void paint_wall(const stuff_words & words, QImage & page)
{
    fill_lit(page, surface({0.9F, 95, 5}, {{{0.8F, 34, 34, 4, 50}, {0.9F, 300, 300, 3, 70}}}, words.seed()),
             words.colours("color").front(), 0.3F);
}

void paint_lawn(const stuff_words & words, QImage & page)
{
    const std::vector<colour> blades = words.colours("blades");
    const colour ground = words.colours("color").front();
    fill(page, [&, seed = words.seed()](float x, float y) {
        return ground * (0.7F + 0.6F * cloudy(x / 40, y / 40, 3, seed));
    });
    // From below to above: the deeper, the darker.
    for (unsigned layer = 0; layer < 4; ++layer) {
        std::vector<colour> tones = blades;
        for (colour & tone : tones)
            tone = mix(ground, tone, 0.3F + 0.23F * static_cast<float>(layer));
        strew(page, tones, {for_page(page, 420), 84, 9, 0.35F, 0.9F}, words.seed() + layer);
    }
}
