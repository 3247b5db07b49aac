#include "engine/pixels/rotation_numbers.h"

#include "support/numbers.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int numbered_width = 450, numbered_height = 300;  // of the photo that the numbers are made for

/// How often `part` holds `whole`, where it is larger.
double excess(int whole, int part)
{
    return whole > part ? static_cast<double>(whole) / part : 1;
}

}  // namespace

const std::array<rotation_key, 12> rotation_keys{{
    {"Grab_Height", &rotation_numbers::grab_height},
    {"Grab_Width", &rotation_numbers::grab_width},
    {"Grab_Top", &rotation_numbers::grab_top},
    {"Grab_Left", &rotation_numbers::grab_left},
    {"Paste_Top", &rotation_numbers::paste_top},
    {"Paste_Left", &rotation_numbers::paste_left},
    {"Put_Top", &rotation_numbers::put_top},
    {"Put_Left", &rotation_numbers::put_left},
    {"Copy_Left", &rotation_numbers::copy_left},
    {"Copy_Right", &rotation_numbers::copy_right},
    {"Copy_Top", &rotation_numbers::copy_top},
    {"Copy_Bottom", &rotation_numbers::copy_bottom},
}};

int rounded_rotation(int rotation)
{
    const int degrees = std::abs(rotation);
    const double fives = degrees / 5.0 + (degrees % 5 > 2 ? 1 : 0);
    const int rounded = nearest(fives * 5);
    return rotation < 0 ? -rounded : rounded;
}

std::string rotation_section(int width, int height, int rotation)
{
    return (width > height ? "L" : "P") + formatted(rotation, 2);
}

double reference_factor(int width, int height)
{
    const bool wide = width > height;
    return std::max(excess(width, wide ? numbered_width : numbered_height),
                    excess(height, wide ? numbered_height : numbered_width));
}

int preview_divisor(int width, int height)
{
    const int sides = width + height;
    return sides > 210 ? 2 : sides > 180 ? 3 : sides > 120 ? 4 : 5;
}

rotation_numbers scaled(const rotation_numbers & numbers, double factor, int divisor)
{
    rotation_numbers made = numbers;
    for (const rotation_key & key : rotation_keys)
        made.*key.number = nearest(static_cast<double>(nearest(numbers.*key.number * factor)) / divisor);
    return made;
}

int frame_in_rotation(int frame_size, int rotation)
{
    return std::max(frame_size, 0) - (rotation < 10 ? 1 : 0);
}

rectangle evolved(const rectangle & place, picture_size photo)
{
    const bool wide = place.width > place.height;
    const bool across = wide ? photo.height > photo.width : photo.width > photo.height;
    if (!across)
        return place;
    const int width = place.height, height = place.width;
    const int side = wide ? 1 : -1;
    return {.left = nearest16(place.left + side * width / 4.0),
            .top = nearest16(place.top - side * height / 4.0),
            .width = width,
            .height = height};
}

tilt_sizes tilt_sizes_of(const rotation_numbers & numbers, int rotation)
{
    if (numbers.grab_width <= 0 || numbers.grab_height <= 0)
        return {};
    tilt_sizes sizes{
        .grabbed = {.width = numbers.grab_width, .height = numbers.grab_height}, .turned = {}, .back = {}};
    sizes.turned = turned_size(sizes.grabbed, rotation);
    sizes.back = turned_size(sizes.turned, -rotation);
    return sizes;
}

picture_point on_canvas(const rotation_numbers & numbers, const tilt_sizes & sizes, int rotation,
                        picture_point point)
{
    const picture_point back =
        turned_point(sizes.turned, -rotation, {.x = point.x, .y = sizes.turned.height - point.y});
    return {.x = back.x - numbers.copy_left - numbers.paste_left,
            .y = sizes.back.height - back.y - numbers.copy_top - numbers.paste_top};
}
