#include "engine/output/flurn_file.h"

#include "support/files/text_file.h"
#include "support/numbers.h"

#include <algorithm>

picture_size saved_size(picture_size own, int save_size)
{
    const bool full_square =
        own.width == own.height && own.width <= full_short_side && save_size == full_long_side;
    const int long_side = std::max(own.width, own.height);
    if (full_square || save_size == long_side)
        return own;
    const double ratio = static_cast<double>(save_size) / long_side;
    return {.width = std::max(1, nearest(own.width * ratio)),
            .height = std::max(1, nearest(own.height * ratio))};
}

std::string flurn_bytes(const bitmap & image, int save_size)
{
    const picture_size own{.width = image.width(), .height = image.height()};
    const picture_size wanted = saved_size(own, save_size);
    if (wanted.width == own.width && wanted.height == own.height)
        return jpeg_bytes(image);
    return jpeg_bytes(rescaled(image, wanted.width, wanted.height));
}

void save_flurn(const bitmap & image, int save_size, const std::string & path)
{
    replace_file(path, flurn_bytes(image, save_size));
}
