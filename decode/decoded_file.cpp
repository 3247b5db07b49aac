#include "decode/decoded_file.h"

#include "decode/colors.h"
#include "decode/heif_picture.h"
#include "decode/jpeg_picture.h"
#include "decode/library_picture.h"
#include "decode/raw_picture.h"
#include "decode/upright.h"
#include "intake/color_profile.h"
#include "intake/jpeg_header.h"

#include <optional>

namespace {

samples picture_of(byte_view file, picture_kind kind)
{
    switch (kind) {
        case picture_kind::jpeg:
            return jpeg_picture(file);
        case picture_kind::heif:
            return heif_picture(file);
        case picture_kind::raw:
            return raw_picture(file);
        case picture_kind::none:
            throw decode_fault::not_known;
        default:
            return library_picture(file, kind);
    }
}

bool has_plain_colors(const jpeg_header & header)
{
    const bool fits =
        header.profile.empty() ? !header.notes.is_adobe_rgb : is_srgb(bytes_of_text(header.profile));
    return fits && (header.components == 1 || header.components == 3) && header.precision == 8;
}

// A photo that only lies on its side loses nothing by being put upright.
std::optional<std::string> only_turned(byte_view file)
{
    const std::optional<jpeg_header> header = read_jpeg_header(file);
    if (!header || !has_plain_colors(*header))
        return std::nullopt;
    expect_usable(header->size.width, header->size.height);
    const std::optional<std::string> turned = turned_without_loss(file, header->notes.orientation);
    return turned ? std::optional(with_date(*turned, header->notes.taken)) : std::nullopt;
}

}  // namespace

std::string decoded_file(byte_view file, picture_kind kind)
{
    if (kind == picture_kind::jpeg)
        if (const std::optional<std::string> turned = only_turned(file))
            return *turned;
    const samples picture = upright(in_srgb(on_white(picture_of(file, kind))));
    return with_date(jpeg_of_samples(picture), picture.taken);
}
