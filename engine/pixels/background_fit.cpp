#include "engine/pixels/background_fit.h"

#include "support/files/paths.h"

#include <algorithm>

namespace {

constexpr int short_side = 300, long_side = 450;

}  // namespace

int blend_alpha(double percent)
{
    if (percent < 5)
        return 0;
    if (percent > 95)
        return plain_copy;
    return nearest(percent * 2.56);
}

std::string full_size_picture(std::string_view path)
{
    constexpr std::string_view folder = "preview";
    for (std::size_t at = path.find(folder); at != std::string_view::npos; at = path.find(folder, at + 1)) {
        const bool opened = at > 0 && last_separator(path.substr(at - 1, 1)) == 0;
        if (!opened || !is_under(path.substr(at), folder))
            continue;
        const std::string start(path.substr(0, at));
        const std::string rest(path.substr(at + folder.size() + 1));
        std::string name = name_of(rest);
        const std::string way = rest.substr(0, rest.size() - name.size());
        if (name.starts_with("p_"))
            name.erase(0, 2);
        return start + way + name;
    }
    return std::string(path);
}

std::string preview_picture(std::string_view picture)
{
    if (last_separator(picture) == std::string_view::npos)
        return "images/" + std::string(picture);
    return "images/preview/" + folder_of(picture) + "/p_" + name_of(picture);
}

bitmap squared(const bitmap & image)
{
    const int width = image.width(), height = image.height();
    if (width > height) {
        const int left = nearest((width - height) / 2.0);
        return copied(image, left, 0, left + height, height);
    }
    const int top = nearest((height - width) / 2.0);
    return copied(image, 0, top, width, top + width);
}

bitmap continued(const bitmap & image, int width, int height)
{
    const int own_width = image.width(), own_height = image.height();
    bitmap larger(std::max(width, own_width), std::max(height, own_height));
    paste(larger, image, 0, 0, plain_copy);
    for (int i = 0; own_width + i < larger.width() && i < own_width; ++i)
        paste(larger, copied(image, own_width - 1 - i, 0, own_width - i, own_height), own_width + i, 0,
              plain_copy);
    for (int i = 0; own_height + i < larger.height() && i < own_height; ++i)
        paste(larger, copied(larger, 0, own_height - 1 - i, larger.width(), own_height - i), 0,
              own_height + i, plain_copy);
    return larger;
}

picture_size preview_background_size(picture_size picture, poster_shape shape)
{
    if (shape == poster_shape::square && picture.width == picture.height)
        return {.width = short_side, .height = short_side};
    const bool is_wide =
        shape == poster_shape::square ? picture.width > picture.height : shape == poster_shape::landscape;
    return is_wide ? picture_size{.width = long_side, .height = short_side}
                   : picture_size{.width = short_side, .height = long_side};
}

bitmap preview_background(bitmap scaled, poster_shape shape)
{
    constexpr int left_out = 112, end = 412;
    if (shape != poster_shape::square || scaled.width() == scaled.height())
        return scaled;
    return scaled.width() > scaled.height() ? copied(scaled, left_out, 0, end, short_side)
                                            : copied(scaled, 0, left_out, short_side, end);
}
