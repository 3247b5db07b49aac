#include "engine/pixels/brought_down.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <vector>

namespace {

constexpr std::size_t channel_count = 3;

void add_squares(std::span<const std::uint8_t> row, std::size_t samples, std::vector<unsigned> & sums)
{
    const std::uint8_t * from = row.data();
    for (std::size_t into = 0; into < sums.size(); into += channel_count)
        for (std::size_t i = 0; i < samples; ++i, from += channel_count)
            for (std::size_t channel = 0; channel < channel_count; ++channel)
                sums[into + channel] += from[channel];
}

}  // namespace

bitmap brought_down(const bitmap & image, const rectangle & part, int samples)
{
    if (samples == 1)
        return copied(image, part.left, part.top, part.right(), part.bottom());
    assert(part.width % samples == 0 && part.height % samples == 0);
    bitmap made(part.width / samples, part.height / samples);
    const auto left = static_cast<std::size_t>(part.left), width = static_cast<std::size_t>(part.width);
    const auto count = static_cast<unsigned>(samples * samples);
    std::vector<unsigned> sums(width / static_cast<std::size_t>(samples) * channel_count);
    for (int y = 0; y < made.height(); ++y) {
        std::ranges::fill(sums, count / 2);
        for (int i = 0; i < samples; ++i) {
            const int from = image.height() - part.bottom() + y * samples + i;
            add_squares(channels(image.row(from).subspan(left, width)), static_cast<std::size_t>(samples),
                        sums);
        }
        std::ranges::transform(sums, channels(made.row(y)).begin(),
                               [count](unsigned sum) { return static_cast<std::uint8_t>(sum / count); });
    }
    return made;
}
