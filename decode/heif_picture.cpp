#include "decode/heif_picture.h"

#include "decode/colors.h"
#include "intake/exif.h"

#include <cstring>
#include <libheif/heif.h>
#include <memory>

namespace {

struct context_closer {
    void operator()(heif_context * context) const { heif_context_free(context); }
};
struct handle_closer {
    void operator()(heif_image_handle * handle) const { heif_image_handle_release(handle); }
};
struct image_closer {
    void operator()(heif_image * image) const { heif_image_release(image); }
};
struct nclx_closer {
    void operator()(heif_color_profile_nclx * profile) const { heif_nclx_color_profile_free(profile); }
};
using open_context = std::unique_ptr<heif_context, context_closer>;
using open_handle = std::unique_ptr<heif_image_handle, handle_closer>;
using open_image = std::unique_ptr<heif_image, image_closer>;
using open_nclx = std::unique_ptr<heif_color_profile_nclx, nclx_closer>;

void expect_ok(const heif_error & told)
{
    switch (told.code) {
        case heif_error_Ok:
            return;
        case heif_error_Unsupported_feature:
        case heif_error_Unsupported_filetype:
            throw decode_fault::not_known;
        case heif_error_Memory_allocation_error:
            throw told.subcode == heif_suberror_Security_limit_exceeded ? decode_fault::too_large
                                                                        : decode_fault::no_memory;
        default:
            throw decode_fault::damaged;
    }
}

open_handle main_picture(heif_context & context)
{
    heif_image_handle * handle = nullptr;
    expect_ok(heif_context_get_primary_image_handle(&context, &handle));
    return open_handle(handle);
}

photo_notes notes_of(const heif_image_handle & handle)
{
    heif_item_id block = 0;
    if (heif_image_handle_get_list_of_metadata_block_IDs(&handle, "Exif", &block, 1) < 1)
        return {};
    std::string bytes(heif_image_handle_get_metadata_size(&handle, block), '\0');
    if (heif_image_handle_get_metadata(&handle, block, bytes.data()).code != heif_error_Ok)
        return {};
    const byte_view all = bytes_of_text(bytes);
    const std::size_t begin = std::size_t{number32(all, 0, byte_order::big)} + 4;  // behind a mark, as a rule
    return notes_of_exif(part(all, begin, all.size()));
}

// Among the properties of the file's pictures: a turn, or a mirror.
bool says_how_to_turn(byte_view file)
{
    const std::string_view text = text_of_bytes(file);
    const std::size_t name = text.find("ipco");
    if (name == std::string_view::npos || name < 4)
        return false;
    const std::string_view properties = text.substr(name, number32(file, name - 4, byte_order::big));
    return properties.find("irot") != std::string_view::npos ||
           properties.find("imir") != std::string_view::npos;
}

// The curve of the number that a file gives for it. Pictures for screens of high range have no place in a
// print; they are read as if they were video.
light_curve curve_of(heif_transfer_characteristics told)
{
    switch (told) {
        case heif_transfer_characteristic_ITU_R_BT_470_6_System_M:
            return light_curve::gamma_22;
        case heif_transfer_characteristic_ITU_R_BT_470_6_System_B_G:
            return light_curve::gamma_28;
        case heif_transfer_characteristic_linear:
            return light_curve::linear;
        case heif_transfer_characteristic_ITU_R_BT_2100_0_PQ:
        case heif_transfer_characteristic_ITU_R_BT_2100_0_HLG:
            return light_curve::video;
        default:
            return light_curve::srgb;  // video for screens is graded on them: shown alike everywhere
    }
}

std::string profile_of_numbers(const heif_image_handle & handle)
{
    heif_color_profile_nclx * told = nullptr;
    if (heif_image_handle_get_nclx_color_profile(&handle, &told).code != heif_error_Ok)
        return {};
    const open_nclx numbers(told);
    switch (numbers->color_primaries) {
        case heif_color_primaries_ITU_R_BT_2020_2_and_2100_0:
            return made_profile(
                {{{.x = 0.708, .y = 0.292}, {.x = 0.170, .y = 0.797}, {.x = 0.131, .y = 0.046}}},
                curve_of(numbers->transfer_characteristics));
        case heif_color_primaries_SMPTE_EG_432_1:
            return made_profile(
                {{{.x = 0.680, .y = 0.320}, {.x = 0.265, .y = 0.690}, {.x = 0.150, .y = 0.060}}},
                curve_of(numbers->transfer_characteristics));
        default:
            return numbers->transfer_characteristics == heif_transfer_characteristic_linear
                       ? made_profile(
                             {{{.x = 0.64, .y = 0.33}, {.x = 0.30, .y = 0.60}, {.x = 0.15, .y = 0.06}}},
                             light_curve::linear)
                       : std::string();
    }
}

std::string profile_of(const heif_image_handle & handle)
{
    const std::size_t size = heif_image_handle_get_raw_color_profile_size(&handle);
    if (size == 0)
        return profile_of_numbers(handle);
    std::string profile(size, '\0');
    if (heif_image_handle_get_raw_color_profile(&handle, profile.data()).code != heif_error_Ok)
        return {};
    return profile;
}

heif_chroma layout_of(const heif_image_handle & handle)
{
    const bool has_alpha = heif_image_handle_has_alpha_channel(&handle) != 0;
    if (heif_image_handle_get_luma_bits_per_pixel(&handle) > 8)
        return has_alpha ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBB_LE;
    return has_alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
}

open_image decoded(const heif_image_handle & handle, heif_chroma layout)
{
    heif_image * image = nullptr;
    expect_ok(heif_decode_image(&handle, &image, heif_colorspace_RGB, layout, nullptr));
    return open_image(image);
}

// Values of 10 or 12 bits spread over 16.
void widen(samples & picture, int bits)
{
    auto * const values = reinterpret_cast<std::uint16_t *>(picture.values.data());
    const std::uint32_t most = (1U << static_cast<unsigned>(bits)) - 1;
    for (std::size_t i = 0; i < picture.values.size() / 2; ++i)
        values[i] = static_cast<std::uint16_t>(std::min<std::uint32_t>(values[i], most) * 65535U / most);
}

// Colours that were multiplied with their alpha, as they were before.
void undo_multiplied(samples & picture)
{
    if (picture.bytes_each != 1)
        return;
    for (std::size_t i = 0; i + 3 < picture.values.size(); i += 4)
        for (std::size_t c = 0; c < 3; ++c)
            if (const unsigned alpha = picture.values[i + 3]; alpha > 0)
                picture.values[i + c] = static_cast<std::uint8_t>(
                    std::min(255U, (picture.values[i + c] * 255U + alpha / 2) / alpha));
}

samples copied_rows(const heif_image & image, heif_chroma layout)
{
    const bool has_alpha =
        layout == heif_chroma_interleaved_RGBA || layout == heif_chroma_interleaved_RRGGBBAA_LE;
    const int bits = heif_image_get_bits_per_pixel_range(&image, heif_channel_interleaved);
    const picture_size size{.width = heif_image_get_width(&image, heif_channel_interleaved),
                            .height = heif_image_get_height(&image, heif_channel_interleaved)};
    samples picture =
        made_samples(size, has_alpha ? sample_model::rgb_alpha : sample_model::rgb, bits > 8 ? 2 : 1);
    int stride = 0;
    const std::uint8_t * const rows =
        heif_image_get_plane_readonly(&image, heif_channel_interleaved, &stride);
    if (rows == nullptr)
        throw decode_fault::damaged;
    const std::size_t row = picture.values.size() / static_cast<std::size_t>(size.height);
    for (std::size_t y = 0; y < static_cast<std::size_t>(size.height); ++y)
        std::memcpy(&picture.values[y * row], rows + y * static_cast<std::size_t>(stride), row);
    if (bits > 8)
        widen(picture, bits);
    return picture;
}

}  // namespace

samples heif_picture(byte_view file)
{
    const open_context context(heif_context_alloc());
    heif_context_set_maximum_image_size_limit(context.get(), longest_side);
    expect_ok(heif_context_read_from_memory_without_copy(context.get(), file.data(), file.size(), nullptr));
    const open_handle handle = main_picture(*context);
    expect_usable(heif_image_handle_get_width(handle.get()), heif_image_handle_get_height(handle.get()));
    const heif_chroma layout = layout_of(*handle);
    samples picture = copied_rows(*decoded(*handle, layout), layout);
    if (picture.model == sample_model::rgb_alpha &&
        heif_image_handle_is_premultiplied_alpha(handle.get()) != 0)
        undo_multiplied(picture);
    picture.profile = profile_of(*handle);
    const photo_notes notes = notes_of(*handle);
    picture.taken = notes.taken;
    // Cameras say it both ways, and the library has turned the picture by then. Some programs leave it to the
    // notes.
    if (!says_how_to_turn(file))
        picture.orientation = notes.orientation;
    return picture;
}
