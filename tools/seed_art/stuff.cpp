#include "stuff.h"

#include <QColor>
#include <QStringList>

#include <array>
#include <stdexcept>

stuff_words::stuff_words(const QString & words)
{
    const QStringList parts = words.simplified().split(' ');
    first = parts.value(0);
    for (const QString & part : parts.mid(1))
        values[part.section('=', 0, 0)] = part.section('=', 1);
}

float stuff_words::number(const QString & name, float without) const
{
    return values.contains(name) ? values[name].toFloat() : without;
}

std::vector<colour> stuff_words::colours(const QString & name) const
{
    std::vector<colour> found;
    for (const QString & word : values.value(name).split(',', Qt::SkipEmptyParts))
        if (const QColor one(word); one.isValid())
            found.push_back(hex(one.rgb() & 0xffffffU));
    if (found.empty())
        throw std::runtime_error((first + ": no colours in " + name).toStdString());
    return found;
}

void hairs_at(const many & x, float y, hair_size hair, unsigned seed, many & found)
{
    const auto [length, width] = hair;
    struct direction {
        float along, across;
    };
    static constexpr std::array<direction, 4> directions{
        {{0.955F, 0.296F}, {0.362F, 0.932F}, {-0.505F, 0.863F}, {-0.942F, 0.335F}}};
    many sum{}, there{}, lying{}, along{}, across{};
    for (unsigned way = 0; way < directions.size(); ++way) {
        const auto [c, s] = directions[way];
        for (std::size_t at = 0; at < together; ++at) {
            across[at] = (x[at] + 97.0F * static_cast<float>(way)) / (1.3F * length);
            along[at] = y / (1.3F * length);
        }
        value_noise(across, along, seed + 20 + way, there);
        for (std::size_t at = 0; at < together; ++at) {
            along[at] = (x[at] * c + y * s) / length;
            across[at] = (y * c - x[at] * s) / width;
        }
        value_noise(along, across, seed + way, lying);
        for (std::size_t at = 0; at < together; ++at)
            sum[at] += rise(0.3F, 0.8F, there[at]) * (lying[at] - 0.5F);
    }
    for (std::size_t at = 0; at < together; ++at)
        found[at] = sum[at] * 0.5F;
}
