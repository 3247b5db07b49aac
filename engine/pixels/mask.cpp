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

rgb_triple color_at(const std::uint8_t * bytes)
{
    return {.red = bytes[2], .green = bytes[1], .blue = bytes[0]};
}

void put(std::uint8_t * bytes, rgb_triple color)
{
    bytes[0] = color.blue;
    bytes[1] = color.green;
    bytes[2] = color.red;
}

/// Tells the parts of a mask pixel by pixel. Most pixels are like the one before, so that is asked first.
class part_teller {
public:
    explicit part_teller(rgb_triple ground_color) : ground(ground_color), last(ground_color) {}
    mask_part operator()(const std::uint8_t * bytes)
    {
        const rgb_triple seen = color_at(bytes);
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

/// Walks the part of the mask that lies on the canvas; `colors_of(y)` gives, for a row of the mask, what
/// gives the colour of a pixel that is neither ground nor key.
template <typename Colors>
void paint(bitmap & canvas, const bitmap & mask, int column, int row, Colors colors_of)
{
    if (!canvas || !mask)
        return;
    part_teller part_at(color_at(mask.row(0).data()));
    const int first_x = std::max(0, -column), end_x = std::min(mask.width(), canvas.width() - column);
    const int first_y = std::max(0, -row), end_y = std::min(mask.height(), canvas.height() - row);
    for (int y = first_y; y < end_y; ++y) {
        const std::uint8_t * from = mask.row(y).data();
        std::uint8_t * to = canvas.row(row + y).data() + static_cast<std::ptrdiff_t>(column) * pixel_bytes;
        const auto color = colors_of(y);
        for (int x = first_x; x < end_x; ++x) {
            const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(x) * pixel_bytes;
            switch (const mask_part part = part_at(from + at)) {
                case mask_part::ground:
                    break;
                case mask_part::white_key:
                    put(to + at, white);
                    break;
                case mask_part::black_key:
                    put(to + at, black);
                    break;
                case mask_part::inside:
                case mask_part::border:
                    put(to + at, color(part, at));
                    break;
            }
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

void paint_mask(bitmap & canvas, const bitmap & mask, rgb_triple color, int column, int row)
{
    paint(canvas, mask, column, row,
          [color](int) { return [color](mask_part, std::ptrdiff_t) { return color; }; });
}

void paint_mask(bitmap & canvas, const bitmap & mask, const bitmap & photo, shape_border drawn, int column,
                int row)
{
    if (photo.width() < mask.width() || photo.height() < mask.height())
        return;
    paint(canvas, mask, column, row, [&photo, drawn](int y) {
        return [from = photo.row(y).data(), drawn](mask_part part, std::ptrdiff_t at) {
            const rgb_triple color = color_at(from + at);
            return part == mask_part::inside ? color : border_color(color, drawn);
        };
    });
}
