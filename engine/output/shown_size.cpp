#include "engine/output/shown_size.h"

#include <algorithm>

namespace {

constexpr int units_of_a_pixel = 15;
// Extents of the scrolling frame in units, with room for its bars.
constexpr int camera_extent = 11870, landscape_extent = 13340, square_extent = 8900;
constexpr int camera_width = 748, landscape_width = 840, square_width = 560;
constexpr int least_portrait_width = 480;
constexpr int bar = 33;                       // what a frame has beside its picture, as a square has it
constexpr int margins = 24, button_row = 64;  // of the window, around and below the frame

picture_size of_width(picture_size own, int width)
{
    return {.width = width, .height = own.width > 0 ? width * own.height / own.width : width};
}

picture_size portrait(picture_size own, picture_size room)
{
    const int height = room.height - margins - button_row - bar;
    const int width = own.height > 0 ? height * own.width / own.height : height;
    const int widest = std::max(1, room.width - margins - bar);
    const int least = std::min(least_portrait_width, widest);
    return of_width(own, std::clamp(width, least, widest));
}

shown_size framed(picture_size picture, int frame_width, picture_size room)
{
    const picture_size window{.width = std::min(room.width, frame_width + margins),
                              .height = std::min(room.height, picture.height + bar + margins + button_row)};
    return {.picture = picture,
            .scroll = {.width = window.width - margins, .height = window.height - margins - button_row},
            .window = window};
}

}  // namespace

shown_size shown_size_of(picture_size own, picture_size room)
{
    if (own.width > own.height) {
        const bool is_camera = own.height * 4 == own.width * 3;
        return framed(of_width(own, is_camera ? camera_width : landscape_width),
                      (is_camera ? camera_extent : landscape_extent) / units_of_a_pixel, room);
    }
    if (own.width == own.height)
        return framed(of_width(own, square_width), square_extent / units_of_a_pixel, room);
    // A portrait has the whole height of the screen.
    const picture_size picture = portrait(own, room);
    shown_size sizes = framed(picture, picture.width + bar, room);
    sizes.window.height = room.height;
    sizes.scroll.height = room.height - margins - button_row;
    return sizes;
}
