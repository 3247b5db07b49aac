#include "engine/pixels/shadow_bands.h"

#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr int strongest = 200, faintest = 10;
constexpr double fading = 160;  ///< what a shadow of any size loses over its whole width
constexpr int inset = 2;        ///< of the band's start from the frame's corner
constexpr int deepest_offset = 5;
/// What the corner of a band loses beyond its end: 24 in the middle of the first pixel, 36 in that of the
/// second.
constexpr double softening_at_end = 18, softening_a_pixel = 12;
constexpr int shortening = 2;
/// So many lines at the outer edge have no pixel one and two before their start, which rounds the corner off.
constexpr int lines_without_first = 7, lines_without_second = 12;

/// A band as a heap of lines that run along a photo's edge, `start` and `length` along it, `i` away from it,
/// in pixels of the layout.
struct band {
    int start = 0, length = 0;
    int shadow_size = 0;
    int shortened_lines = 0;  ///< at the outer edge
    int scale = 1;            ///< pixels drawn for one of the layout
};

/// In drawn pixels.
struct band_line {
    int away = 0, start = 0, length = 0, alpha = 0;
};

band band_along(int edge_start, int edge_length, int shadow_size, int shortened_lines, int scale)
{
    const int offset = std::min(shadow_size, deepest_offset);
    return {.start = edge_start + inset + offset,
            .length = edge_length - inset - offset,
            .shadow_size = shadow_size,
            .shortened_lines = shortened_lines,
            .scale = scale};
}

/// Where the middle of a drawn pixel lies, counted in pixels of the layout whose middles are whole numbers.
double middle_of(int drawn, int scale)
{
    return (drawn + 0.5) / scale - 0.5;
}

/// What the drawn pixel loses that stands so many beyond the end of its line.
double softening(int beyond, int scale)
{
    return softening_at_end + softening_a_pixel * (beyond + 0.5) / scale;
}

/// The drawn lines of line `i` of the layout, which becomes longer by `growth` with each line outwards.
void add_lines(const band & drawn, int i, int growth, std::vector<band_line> & lines)
{
    const int scale = drawn.scale, size = drawn.shadow_size, start = drawn.start * scale;
    const bool is_shortened = i >= size - drawn.shortened_lines;
    const int before_start =
        scale * (i == 0 ? 0 : (i < size - lines_without_first) + (i < size - lines_without_second));
    for (int away = i * scale; away < (i + 1) * scale; ++away) {
        const double depth = middle_of(away, scale);
        const double lost = nearest(fading / size) * depth;
        const int length = nearest(scale * (drawn.length + growth * (depth - i)));
        const auto faded = [lost](double more) { return fade(nearest(lost + more)); };
        for (int beyond = 0; is_shortened && beyond < 2 * scale; ++beyond)
            lines.push_back({away, start + length + beyond, 1, faded(softening(beyond, scale))});
        lines.push_back({away, start, length, faded(0)});
        for (int beyond = before_start - 1; beyond >= 0; --beyond)
            lines.push_back({away, start - 1 - beyond, 1, faded(softening(beyond, scale))});
    }
}

std::vector<band_line> lines_of(band drawn)
{
    std::vector<band_line> lines;
    for (int i = 0; i < drawn.shadow_size; ++i) {
        const int growth = i >= drawn.shadow_size - drawn.shortened_lines ? -shortening : 1;
        drawn.length += growth;
        add_lines(drawn, i, growth, lines);
    }
    return lines;
}

}  // namespace

int fade(int lost)
{
    return std::clamp(strongest - lost, faintest, strongest);
}

std::vector<shadow_line> right_shadow(const rectangle & framed, int shadow_size, int scale)
{
    std::vector<shadow_line> lines;
    for (const band_line & line : lines_of(band_along(framed.top, framed.height, shadow_size, 3, scale))) {
        lines.push_back({{.left = scale * framed.right() + line.away,
                          .top = line.start,
                          .width = 1,
                          .height = line.length},
                         line.alpha});
    }
    return lines;
}

std::vector<shadow_line> bottom_shadow(const rectangle & framed, int shadow_size, int scale)
{
    std::vector<shadow_line> lines;
    for (const band_line & line : lines_of(band_along(framed.left, framed.width, shadow_size, 2, scale))) {
        lines.push_back({{.left = line.start,
                          .top = scale * framed.bottom() + line.away,
                          .width = line.length,
                          .height = 1},
                         line.alpha});
    }
    return lines;
}
