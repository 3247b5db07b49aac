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

float hairs_at(float x, float y, float length, float width, unsigned seed)
{
    struct direction {
        float along, across;
    };
    static constexpr std::array<direction, 4> directions{
        {{0.955F, 0.296F}, {0.362F, 0.932F}, {-0.505F, 0.863F}, {-0.942F, 0.335F}}};
    float sum = 0;
    for (unsigned at = 0; at < directions.size(); ++at) {
        const auto [c, s] = directions[at];
        const float here = rise(0.3F, 0.8F,
                                value_noise((x + 97.0F * static_cast<float>(at)) / (1.3F * length),
                                            y / (1.3F * length), seed + 20 + at));
        sum += here * (value_noise((x * c + y * s) / length, (y * c - x * s) / width, seed + at) - 0.5F);
    }
    return sum * 0.5F;
}
