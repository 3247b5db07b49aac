#pragma once
#include "colour.h"
#include "noise.h"

#include <QImage>
#include <QMap>
#include <QString>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

/// What the textures share: their words as numbers and colours, and pages filled by a function of the place.

class stuff_words {
public:
    explicit stuff_words(const QString & words);
    [[nodiscard]] QString kind() const { return first; }
    [[nodiscard]] float number(const QString & name, float without) const;
    [[nodiscard]] unsigned seed() const { return static_cast<unsigned>(number("seed", 1)); }
    [[nodiscard]] bool has(const QString & name) const { return values.contains(name); }
    /// One at least. Throws std::runtime_error.
    [[nodiscard]] std::vector<colour> colours(const QString & name) const;

private:
    QString first;
    QMap<QString, QString> values;
};

inline QRgba64 in_sixteen_bits(colour seen)
{
    const auto fine = [](float share) { return static_cast<quint16>(clamped(share) * 65535); };
    return QRgba64::fromRgba64(fine(seen.r), fine(seen.g), fine(seen.b), 65535);
}

/// Every pixel by a function of its place, in pixels from the top left.
template <typename Function>
void fill(QImage & page, Function colour_at)
{
    for (int y = 0; y < page.height(); ++y) {
        auto * row = reinterpret_cast<QRgba64 *>(page.scanLine(y));
        for (int x = 0; x < page.width(); ++x)
            row[x] = in_sixteen_bits(colour_at(static_cast<float>(x), static_cast<float>(y)));
    }
}

/// The same, many pixels of a row together: `colours_at` gets the first of them and gives as many colours.
using many_colours = std::array<colour, together>;
template <typename Function>
void fill_together(QImage & page, Function colours_at)
{
    many_colours seen{};
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); x += static_cast<int>(together)) {
            colours_at(counted(x), static_cast<float>(y), seen);
            auto * row = reinterpret_cast<QRgba64 *>(page.scanLine(y)) + x;
            for (int at = 0; at < std::min(static_cast<int>(together), page.width() - x); ++at)
                row[at] = in_sixteen_bits(seen[static_cast<std::size_t>(at)]);
        }
}

struct hair_size {
    float length, width;
};

/// Hairs or bristles that lie in four directions, which one where by chance: about 0, of a half at most.
void hairs_at(const many & x, float y, hair_size hair, unsigned seed, many & found);
