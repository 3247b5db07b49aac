#include "engine/output/flurn_file.h"

#include "support/color_profile.h"
#include "support/files/text_file.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr int long_inches = 30, square_inches = 20;

}  // namespace

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

int intended_dpi(picture_size poster)
{
    const int inches = poster.width == poster.height ? square_inches : long_inches;
    return std::max(1, nearest(std::max(poster.width, poster.height) / static_cast<double>(inches)));
}

picture_notes notes_of_flurn(picture_size poster, std::optional<int> dpi)
{
    return {
        .dpi = dpi.value_or(intended_dpi(poster)), .color_profile = srgb_profile(), .made_with = "Tessaloom"};
}

std::string encoded_in_size(const bitmap & image, int save_size, const picture_encoder & encode)
{
    const picture_size own = image.size();
    const picture_size wanted = saved_size(own, save_size);
    if (wanted == own)
        return encode(image);
    return encode(rescaled(image, wanted.width, wanted.height));
}

std::string flurn_bytes(const bitmap & image, int save_size)
{
    return encoded_in_size(image, save_size, [](const bitmap & saved) {
        return noted_picture(picture_format::jpeg, saved, notes_of_flurn(saved.size()));
    });
}

void save_flurn(const bitmap & image, int save_size, const std::string & path)
{
    replace_file(path, flurn_bytes(image, save_size));
}
