#include "engine/pixels/shadow_bands.h"

#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr int strongest = 200, faintest = 10;
constexpr double fading = 160;  ///< what a shadow of any size loses over its whole width
constexpr int inset = 2;        ///< of the band's start from the frame's corner
constexpr int deepest_offset = 5;
constexpr int first_softening = 24, second_softening = 36;
constexpr int shortening = 2;
/// So many lines at the outer edge have no pixel one and two before their start, which rounds the corner off.
constexpr int lines_without_first = 7, lines_without_second = 12;

/// A band as a heap of lines that run along a photo's edge, `start` and `length` along it, `i` away from it.
struct band {
    int start = 0, length = 0;
    int shadow_size = 0;
    int shortened_lines = 0;  ///< at the outer edge
};

struct band_line {
    int away = 0, start = 0, length = 0, alpha = 0;
};

band band_along(int edge_start, int edge_length, int shadow_size, int shortened_lines)
{
    const int offset = std::min(shadow_size, deepest_offset);
    return {.start = edge_start + inset + offset,
            .length = edge_length - inset - offset,
            .shadow_size = shadow_size,
            .shortened_lines = shortened_lines};
}

std::vector<band_line> lines_of(band drawn)
{
    std::vector<band_line> lines;
    const int size = drawn.shadow_size, start = drawn.start;
    const int loss = nearest(fading / size);
    for (int i = 0; i < size; ++i) {
        const int first = fade(loss * i + first_softening), second = fade(loss * i + second_softening);
        if (i >= size - drawn.shortened_lines) {
            drawn.length -= shortening;
            lines.push_back({i, start + drawn.length, 1, first});
            lines.push_back({i, start + drawn.length + 1, 1, second});
        } else {
            ++drawn.length;
        }
        lines.push_back({i, start, drawn.length, fade(loss * i)});
        if (i > 0 && i < size - lines_without_second)
            lines.push_back({i, start - 2, 1, second});
        if (i > 0 && i < size - lines_without_first)
            lines.push_back({i, start - 1, 1, first});
    }
    return lines;
}

}  // namespace

int fade(int lost)
{
    return std::max(strongest - lost, faintest);
}

std::vector<shadow_line> right_shadow(const rectangle & framed, int shadow_size)
{
    std::vector<shadow_line> lines;
    for (const band_line & line : lines_of(band_along(framed.top, framed.height, shadow_size, 3))) {
        lines.push_back(
            {{.left = framed.right() + line.away, .top = line.start, .width = 1, .height = line.length},
             line.alpha});
    }
    return lines;
}

std::vector<shadow_line> bottom_shadow(const rectangle & framed, int shadow_size)
{
    std::vector<shadow_line> lines;
    for (const band_line & line : lines_of(band_along(framed.left, framed.width, shadow_size, 2))) {
        lines.push_back(
            {{.left = line.start, .top = framed.bottom() + line.away, .width = line.length, .height = 1},
             line.alpha});
    }
    return lines;
}
