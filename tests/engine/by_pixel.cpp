#include "tests/engine/by_pixel.h"

#include "tests/pictures.h"

#include <algorithm>
#include <cmath>

namespace {

int fading(int value)
{
    return 200 - value < 10 ? 10 : 200 - value;
}

void paste_dot(bitmap & target, rgb_triple color, int x, int y, int alpha)
{
    paste(target, plain(1, 1, color), x, y, alpha);
}

}  // namespace

void draw_frame_by_pixel(bitmap & target, int left, int row, int height, int width, int band,
                         rgb_triple color)
{
    // The frame is the ring between the photo and a rectangle that reaches `band` pixels further.
    for (int x = left - 1 - band; x <= left + width + band; ++x)
        for (int y = row - 1 - band; y <= row + height + band; ++y)
            if (x < left || x >= left + width || y < row || y >= row + height)
                set_pixel(target, x, y, color);
}

namespace {

// The edges of the framed photo, and how dark the shadow is that it throws.
struct shaded {
    int left, top, height, width, size, step;
    int offset() const { return std::min(size, 5); }
};

void shade_right(bitmap & target, const shaded & at, rgb_triple color)
{
    const bitmap tall = plain(1, at.height + at.size, color);
    int length = at.height - 2 - at.offset();
    const int start = at.top + 2 + at.offset();
    for (int i = 0; i <= at.size - 1; ++i) {
        const int x = at.left + at.width + i, part = at.step * i;
        if (i == at.size - 1 || i == at.size - 2 || i == at.size - 3) {
            length -= 2;
            paste_dot(target, color, x, start + length, fading(part + 24));
            paste_dot(target, color, x, start + length + 1, fading(part + 36));
        } else {
            length += 1;
        }
        paste(target, copied(tall, 0, 0, 1, length), x, start, fading(part));
        if (i > 0 && i < at.size - 12)
            paste_dot(target, color, x, start - 2, fading(part + 36));
        if (i > 0 && i < at.size - 7)
            paste_dot(target, color, x, start - 1, fading(part + 24));
    }
}

void shade_below(bitmap & target, const shaded & at, rgb_triple color)
{
    const bitmap wide = plain(at.width + at.size, 1, color);
    int length = at.width - 2 - at.offset();
    const int start = at.left + 2 + at.offset();
    for (int i = 0; i <= at.size - 1; ++i) {
        const int y = at.top + at.height + i, part = at.step * i;
        if (i == at.size - 1 || i == at.size - 2) {
            length -= 2;
            paste_dot(target, color, start + length, y, fading(part + 24));
            paste_dot(target, color, start + length + 1, y, fading(part + 36));
        } else {
            length += 1;
        }
        paste(target, copied(wide, 0, 0, length, 1), start, y, fading(part));
        if (i > 0 && i < at.size - 12)
            paste_dot(target, color, start - 2, y, fading(part + 36));
        if (i > 0 && i < at.size - 7)
            paste_dot(target, color, start - 1, y, fading(part + 24));
    }
}

}  // namespace

void draw_shadow_by_paste(bitmap & target, int left, int top, int height, int width, int frame,
                          int shadow_size, rgb_triple color)
{
    const shaded at{.left = left - frame,
                    .top = top - frame,
                    .height = 2 * frame + height,
                    .width = 2 * frame + width,
                    .size = shadow_size,
                    .step = static_cast<int>(std::nearbyint(160.0 / shadow_size))};
    shade_right(target, at, color);
    shade_below(target, at, color);
}

void soft_edge_by_pixel(bitmap & target, const bitmap & image, const rectangle & place)
{
    const int side = std::min(place.width, place.height);
    const int n = side < 120 ? 5 : side < 200 ? 17 : side < 270 ? 50 : 80;
    const double step = side < 120 ? 50.0 : side < 200 ? 15.0 : side < 270 ? 5.1 : 3.2;
    for (int y = 0; y < place.height; ++y)
        for (int x = 0; x < place.width; ++x) {
            const int depth = std::min({x, y, place.width - 1 - x, place.height - 1 - y});
            const int alpha =
                depth >= n ? 256 : std::max(0, static_cast<int>(std::nearbyint(255 - (n - depth) * step)));
            paste(target, copied(image, x, y, x + 1, y + 1), place.left + x, place.top + y, alpha);
        }
}

void cut_corners_by_pixel(bitmap & photo, const bitmap & canvas, int width, int height, int left,
                          int bottom_row, std::span<const std::uint8_t> table)
{
    const auto take = [&](int x, int y) {
        if (const std::optional<rgb_triple> background = pixel_at(canvas, left + x, bottom_row + y))
            set_pixel(photo, x, y, *background);
    };
    for (int i = 0; i < static_cast<int>(table.size()); ++i)
        for (int j = 0; j <= table[static_cast<std::size_t>(i)]; ++j) {
            take(i, j);
            take(width - i, j);
            take(i, height - j);
            take(width - i, height - j);
        }
}

void paste_mask_by_pixel(bitmap & canvas, const bitmap & mask, const mask_painting & painting, int size,
                         int column, int row)
{
    const auto brighter = [](int channel) {
        return static_cast<std::uint8_t>(channel > 220 ? 254 : channel + 33);
    };
    const rgb_triple ground = pixel_at(mask, 0, 0).value_or(rgb_triple{});
    for (int i = 0; i < size; ++i)
        for (int j = 0; j < size; ++j) {
            const auto [r, g, b] = pixel_at(mask, i, j).value_or(rgb_triple{});
            if (r > 200 && b > 200 && g < 80) {
                set_pixel(canvas, column + i, row + j, {255, 255, 255});
            } else if (r > 200 && g > 200 && b < 80) {
                set_pixel(canvas, column + i, row + j, {0, 0, 0});
            } else if (std::abs(r - ground.red) <= 110 && std::abs(g - ground.green) <= 110 &&
                       std::abs(b - ground.blue) <= 110) {
                continue;
            } else if (!painting.photo) {
                set_pixel(canvas, column + i, row + j, painting.fill);
            } else {
                const rgb_triple seen_there = pixel_at(painting.photo, i, j).value();
                if (r <= 40 || g <= 40 || b <= 40)
                    set_pixel(canvas, column + i, row + j, seen_there);
                else if (painting.outlined)
                    set_pixel(canvas, column + i, row + j, {0, 0, 0});
                else
                    set_pixel(
                        canvas, column + i, row + j,
                        {brighter(seen_there.red), brighter(seen_there.green), brighter(seen_there.blue)});
            }
        }
}
