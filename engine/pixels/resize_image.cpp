#include "engine/pixels/resize_image.h"

#include "support/numbers.h"

namespace {

/// The size at which the photo covers the target.
picture_size covering_size(const bitmap & image, int width, int height)
{
    if (width > height) {
        const double photo = static_cast<double>(image.height()) / image.width();
        if (static_cast<double>(height) / width > photo)
            return {.width = nearest16(height / photo), .height = height};
        return {.width = width, .height = nearest16(width * photo)};
    }
    const double photo = static_cast<double>(image.width()) / image.height();
    if (static_cast<double>(width) / height > photo)
        return {.width = width, .height = nearest16(width / photo)};
    return {.width = nearest16(height * photo), .height = height};
}

}  // namespace

bitmap resize_image(const bitmap & image, int width, int height)
{
    if (!image)
        return {};
    const picture_size size = covering_size(image, width, height);
    bitmap scaled = rescaled(image, size.width, size.height);
    const bool cut_rows = size.width == width;
    const int excess = cut_rows ? size.height - height : size.width - width;
    if (excess <= 0)
        return scaled;
    const int offset = nearest(excess / 2.0);
    if (cut_rows)
        return copied(scaled, 0, offset, width, height + offset);
    return copied(scaled, offset, 0, width + offset, height);
}
