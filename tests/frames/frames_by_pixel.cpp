#include "tests/frames/frames_by_pixel.h"

#include <cmath>
#include <cstdlib>

namespace {

struct pixels {
    bitmap & target;
    void fill(int left, int right, int low, int high, rgb_triple color) const
    {
        for (int x = left; x <= right; ++x)
            for (int y = low; y <= high; ++y)
                set_pixel(target, x, y, color);
    }
};

text_request request_of(const frame_look & look, const std::string & text, double size)
{
    text_request request{.text = text,
                         .font = look.font,
                         .color = get_rgb_triple(look.caption_fore),
                         .background = get_rgb_triple(look.caption_back)};
    request.font.size = size;
    return request;
}

int text_width(desktop & desk, const frame_look & look, const std::string & text, double size)
{
    return desk.text_size(request_of(look, text, size)).width;
}

int line_height(desktop & desk, const frame_look & look, double size)
{
    return desk.text_size(request_of(look, " ", size)).height;
}

struct margins {
    double first = 0;
    int grow = 0, tallest = 0, fit = 0, below = 0;
};

double size_of_caption(desktop & desk, const frame_look & look, const std::string & caption, int width,
                       const margins & by)
{
    double size = by.first;
    while (true) {
        if (width - by.grow < text_width(desk, look, caption, size) ||
            line_height(desk, look, size) > by.tallest)
            break;
        size += 1;
    }
    while (true) {
        size -= 1;
        if (size <= 1)
            return size;
        if (width - by.fit > text_width(desk, look, caption, size) &&
            line_height(desk, look, size) < by.below)
            return size;
    }
}

// The text on its surface, and the part of it that comes into the frame, pixel by pixel from the top.
void print_caption(bitmap & frame, const bitmap & text, picture_size surface, rgb_triple ground, double x,
                   double y, int bottom, int left, int top)
{
    const int text_left = static_cast<int>(std::nearbyint(x)), text_top = static_cast<int>(std::nearbyint(y));
    for (int row = 1; row < bottom; ++row)
        for (int column = 1; column < surface.width - 15; ++column) {
            const int from_top = row - text_top;
            const auto of_text = pixel_at(text, column - text_left, text.height() - 1 - from_top);
            set_pixel(frame, left + column - 1, frame.height() - 1 - (top + row - 1),
                      of_text.value_or(ground));
        }
}

void lay_icon_by_pixel(bitmap & frame, const bitmap & icon, int key_at)
{
    const rgb_triple key = *pixel_at(icon, key_at, key_at);
    for (int x = 0; x <= icon.width() - 3; ++x)
        for (int y = 0; y <= icon.height() - 3; ++y) {
            const rgb_triple color = *pixel_at(icon, x, y);
            const bool near = std::abs(color.red - key.red) <= 110 &&
                              std::abs(color.green - key.green) <= 110 &&
                              std::abs(color.blue - key.blue) <= 110;
            if (!near)
                set_pixel(frame, x, y, color);
        }
}

}  // namespace

bitmap portrait_frame_by_pixel(desktop & desk, const frame_look & look, const std::string & caption)
{
    const rgb_triple outside = get_rgb_triple(look.outside), inside = get_rgb_triple(look.inside);
    bitmap frame(347, 520);
    const pixels all{frame};
    all.fill(0, 347, 0, 10, outside);
    all.fill(0, 347, 510, 520, outside);
    all.fill(0, 8, 10, 512, outside);
    all.fill(338, 347, 10, 512, outside);
    all.fill(8, 338, 7, 510, inside);
    const bool with_icon = !look.icon_path.empty();
    const int width = with_icon ? 295 : 330;
    const double size = size_of_caption(desk, look, caption, width, {28, 67, 61, 67, 62});
    const bitmap text = desk.draw_text(request_of(look, caption, size));
    print_caption(frame, text, {width, 65}, get_rgb_triple(look.caption_back),
                  (width - text.width()) / 2.0 + (with_icon ? 15 : 0), (60 - text.height()) / 2.0, 61,
                  with_icon ? 51 : 16, 444);
    if (with_icon)
        lay_icon_by_pixel(frame, load_picture(picture_format::bmp, look.icon_path), 0);
    return frame;
}

bitmap landscape_frame_by_pixel(desktop & desk, const frame_look & look, const std::string & caption)
{
    const rgb_triple outside = get_rgb_triple(look.outside), inside = get_rgb_triple(look.inside);
    const rgb_triple band = get_rgb_triple(look.caption_back);
    bitmap frame(520, 347);
    const pixels all{frame};
    all.fill(0, 520, 0, 10, outside);
    all.fill(0, 520, 337, 347, outside);
    all.fill(0, 8, 10, 339, outside);
    all.fill(511, 520, 10, 339, outside);
    all.fill(8, 511, 7, 337, inside);
    int top = 227;
    for (int x = 19; x <= 58; ++x, ++top)
        all.fill(x, x, 50, top, band);
    const double size = size_of_caption(desk, look, caption, 470, {17, 77, 38, 140, 39});
    const bitmap text = desk.draw_text(request_of(look, caption, size));
    print_caption(frame, text, {470, 46}, band, (470 - text.width()) / 2.0 + 10, (46 - text.height()) / 2.0,
                  42, 19, 289);
    int right = 58, left = 425;
    for (int y = 17; y <= 62; ++y, --right, ++left) {
        all.fill(19, right, y, y, inside);
        all.fill(left, 480, y, y, inside);
    }
    if (!look.icon_path.empty()) {
        const bitmap whole = load_picture(picture_format::bmp, look.icon_path);
        lay_icon_by_pixel(frame,
                          rescaled(whole, static_cast<int>(std::nearbyint(whole.width() * 0.8)),
                                   static_cast<int>(std::nearbyint(whole.height() * 0.8))),
                          1);
    }
    return frame;
}
