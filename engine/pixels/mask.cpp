#include "engine/pixels/mask.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace {

constexpr rgb_triple black{0, 0, 0}, white{255, 255, 255};
constexpr int bright = 200, dim = 80;  ///< what the channels of a key are above and below
constexpr int ground_reach = 110;
constexpr int darkest_border = 40;  ///< a border pixel is brighter in every channel
constexpr int brightest = 220, almost_white = 254, lightening = 33;

constexpr std::array<rgb_triple, 7> fills{
    {{255, 0, 0}, {0, 0, 255}, {165, 255, 50}, {255, 255, 0}, {255, 255, 255}, {0, 0, 0}, {255, 115, 0}}};

bool near(int left, int right)
{
    return std::abs(left - right) <= ground_reach;
}

std::uint8_t lightened(std::uint8_t channel)
{
    return static_cast<std::uint8_t>(channel > brightest ? almost_white : channel + lightening);
}

/// Tells the parts of a mask pixel by pixel. Most pixels are like the one before, so that is asked first.
class part_teller {
public:
    explicit part_teller(rgb_triple ground_color) : ground(ground_color), last(ground_color) {}
    mask_part operator()(rgb_triple seen)
    {
        if (seen != last) {
            last = seen;
            part = part_of_mask(seen, ground);
        }
        return part;
    }

private:
    rgb_triple ground, last;
    mask_part part = part_of_mask(ground, ground);
};

/// Walks the part of the mask that lies on the canvas; `color_of(y)` gives, for a row of the mask, what
/// gives the colour of a pixel that is neither ground nor key.
template <typename Color>
void paint(bitmap & canvas, const bitmap & mask, mask_spot at, Color color_of)
{
    if (!canvas || !mask)
        return;
    part_teller part_at(mask.row(0).front());
    const int first_x = std::max(0, -at.column), end_x = std::min(mask.width(), canvas.width() - at.column);
    const int first_y = std::max(0, -at.row), end_y = std::min(mask.height(), canvas.height() - at.row);
    for (int y = first_y; y < end_y; ++y) {
        const pixel * from = mask.row(y).data();
        pixel * to = canvas.row(at.row + y).data() + at.column;
        const auto color = color_of(y);
        for (int x = first_x; x < end_x; ++x)
            switch (const mask_part part = part_at(from[x])) {
                case mask_part::ground:
                    break;
                case mask_part::white_key:
                    to[x] = white;
                    break;
                case mask_part::black_key:
                    to[x] = black;
                    break;
                case mask_part::inside:
                case mask_part::border:
                    to[x] = color(part, x);
                    break;
            }
    }
}

}  // namespace

mask_part part_of_mask(rgb_triple seen, rgb_triple ground)
{
    if (seen.red > bright && seen.blue > bright && seen.green < dim)
        return mask_part::white_key;
    if (seen.red > bright && seen.green > bright && seen.blue < dim)
        return mask_part::black_key;
    if (near(seen.red, ground.red) && near(seen.green, ground.green) && near(seen.blue, ground.blue))
        return mask_part::ground;
    return std::min({seen.red, seen.green, seen.blue}) <= darkest_border ? mask_part::inside
                                                                         : mask_part::border;
}

rgb_triple shape_fill(int code)
{
    if (code < 1 || code > static_cast<int>(fills.size()))
        return black;
    return fills[static_cast<std::size_t>(code) - 1];
}

rgb_triple border_color(rgb_triple photo, shape_border drawn)
{
    if (drawn == shape_border::outlined)
        return black;
    return {lightened(photo.red), lightened(photo.green), lightened(photo.blue)};
}

void paint_mask(bitmap & canvas, const bitmap & mask, rgb_triple color, mask_spot at)
{
    paint(canvas, mask, at, [color](int) { return [color](mask_part, int) { return color; }; });
}

void paint_mask(bitmap & canvas, const bitmap & mask, const bitmap & photo, shape_border drawn, mask_spot at)
{
    if (photo.width() < mask.width() || photo.height() < mask.height())
        return;
    paint(canvas, mask, at, [&photo, drawn](int y) {
        return [from = photo.row(y).data(), drawn](mask_part part, int x) -> rgb_triple {
            return part == mask_part::inside ? rgb_triple(from[x]) : border_color(from[x], drawn);
        };
    });
}
