#include "decode/library_picture.h"

#include "decode/png_profile.h"
#include "intake/exif.h"

#include <FreeImage.h>
#include <cctype>
#include <cstring>
#include <memory>

namespace {

struct unloader {
    void operator()(FIBITMAP * image) const { FreeImage_Unload(image); }
};
using open_image = std::unique_ptr<FIBITMAP, unloader>;

struct memory_closer {
    void operator()(FIMEMORY * memory) const { FreeImage_CloseMemory(memory); }
};

FREE_IMAGE_FORMAT format_of(picture_kind kind)
{
    switch (kind) {
        case picture_kind::png:
            return FIF_PNG;
        case picture_kind::gif:
            return FIF_GIF;
        case picture_kind::bmp:
            return FIF_BMP;
        case picture_kind::tiff:
            return FIF_TIFF;
        case picture_kind::webp:
            return FIF_WEBP;
        default:
            return FIF_UNKNOWN;
    }
}

// A GIF is drawn on the whole of its screen, inks stay inks, and a PNG's own remark on gamma, which its
// profile repeats or contradicts, isn't applied.
int flags_for(picture_kind kind)
{
    if (kind == picture_kind::tiff)
        return TIFF_CMYK;
    return kind == picture_kind::png ? PNG_IGNOREGAMMA : 0;
}

open_image loaded(byte_view file, picture_kind kind, int more_flags)
{
    const std::unique_ptr<FIMEMORY, memory_closer> memory(
        FreeImage_OpenMemory(const_cast<BYTE *>(file.data()), static_cast<DWORD>(file.size())));
    return open_image(FreeImage_LoadFromMemory(format_of(kind), memory.get(), flags_for(kind) | more_flags));
}

// Where the first picture of a GIF is described: behind colours, and blocks that say other things.
std::size_t first_picture_of_gif(byte_view file)
{
    const auto colors_behind = [file](std::size_t flags) {
        return (byte_at(file, flags) & 0x80U) != 0 ? std::size_t{3} << (1U + (byte_at(file, flags) & 7U)) : 0;
    };
    std::size_t at = 13 + colors_behind(10);
    while (byte_at(file, at) == '!') {
        at += 2;
        while (byte_at(file, at) != 0)
            at += 1U + byte_at(file, at);
        ++at;
    }
    return at;
}

// Of both, the screen and what is drawn on it.
void expect_usable_screen(byte_view file)
{
    expect_usable(number16(file, 6, byte_order::little), number16(file, 8, byte_order::little));
    const std::size_t picture = first_picture_of_gif(file);
    if (byte_at(file, picture) != ',')
        throw decode_fault::damaged;
    expect_usable(number16(file, picture + 5, byte_order::little),
                  number16(file, picture + 7, byte_order::little));
}

// Some kinds tell their size without their pixels; a claim that is beyond all limits costs nothing then.
void expect_usable_header(byte_view file, picture_kind kind)
{
    if (kind == picture_kind::gif)
        expect_usable_screen(file);
    if (!FreeImage_FIFSupportsNoPixels(format_of(kind)))
        return;
    if (const open_image header = loaded(file, kind, FIF_LOAD_NOPIXELS))
        expect_usable(FreeImage_GetWidth(header.get()), FreeImage_GetHeight(header.get()));
}

std::string profile_of(FIBITMAP & image)
{
    const FIICCPROFILE * const profile = FreeImage_GetICCProfile(&image);
    if (profile == nullptr || profile->data == nullptr)
        return {};
    return {static_cast<const char *>(profile->data), profile->size};
}

bool holds_inks(FIBITMAP & image)
{
    const FIICCPROFILE * const profile = FreeImage_GetICCProfile(&image);
    return profile != nullptr && (profile->flags & FIICC_COLOR_IS_CMYK) != 0;
}

// Copies rows, the library's bottom one last, with the channels in the order of the places given.
template <typename Sample>
void copy_rows(FIBITMAP & image, samples & picture, std::span<const std::size_t> places)
{
    auto * target = reinterpret_cast<Sample *>(picture.values.data());
    const int height = picture.size.height;
    for (int y = height - 1; y >= 0; --y) {
        const auto * source = reinterpret_cast<const Sample *>(FreeImage_GetScanLine(&image, y));
        for (int x = 0; x < picture.size.width; ++x, source += places.size())
            for (const std::size_t place : places)
                *target++ = source[place];
    }
}

constexpr std::size_t in_order[] = {0, 1, 2, 3}, blue_first[] = {2, 1, 0, 3};

samples wide_samples(FIBITMAP & image, picture_size size, sample_model model)
{
    samples picture = made_samples(size, model, 2);
    const auto count = static_cast<std::size_t>(samples_a_pixel(model));
    copy_rows<std::uint16_t>(image, picture, std::span(in_order).first(count));
    return picture;
}

samples narrow_samples(FIBITMAP & image, picture_size size, sample_model model)
{
    samples picture = made_samples(size, model, 1);
    const bool is_colored = model == sample_model::rgb || model == sample_model::rgb_alpha;
    const auto count = static_cast<std::size_t>(samples_a_pixel(model));
    copy_rows<std::uint8_t>(image, picture, std::span(is_colored ? blue_first : in_order).first(count));
    return picture;
}

samples converted(FIBITMAP * made, picture_size size, sample_model model)
{
    const open_image image(made);
    if (!image)
        throw decode_fault::no_memory;
    return narrow_samples(*image, size, model);
}

samples bitmap_samples(FIBITMAP & image, picture_size size)
{
    const unsigned bits = FreeImage_GetBPP(&image);
    if (bits == 32 && holds_inks(image))
        return narrow_samples(image, size, sample_model::cmyk);
    if (bits == 32 || FreeImage_IsTransparent(&image))
        return converted(FreeImage_ConvertTo32Bits(&image), size, sample_model::rgb_alpha);
    const FREE_IMAGE_COLOR_TYPE colors = FreeImage_GetColorType(&image);
    if (bits <= 8 && (colors == FIC_MINISBLACK || colors == FIC_MINISWHITE))
        return converted(FreeImage_ConvertToGreyscale(&image), size, sample_model::grey);
    return converted(FreeImage_ConvertTo24Bits(&image), size, sample_model::rgb);
}

samples samples_of(FIBITMAP & image)
{
    const picture_size size{.width = static_cast<int>(FreeImage_GetWidth(&image)),
                            .height = static_cast<int>(FreeImage_GetHeight(&image))};
    switch (FreeImage_GetImageType(&image)) {
        case FIT_BITMAP:
            return bitmap_samples(image, size);
        case FIT_UINT16:
            return wide_samples(image, size, sample_model::grey);
        case FIT_RGB16:
            return wide_samples(image, size, sample_model::rgb);
        case FIT_RGBA16:
            return wide_samples(image, size,
                                holds_inks(image) ? sample_model::cmyk : sample_model::rgb_alpha);
        default:
            throw decode_fault::not_known;
    }
}

int number_of(FIBITMAP & image, const char * name)
{
    FITAG * tag = nullptr;
    const bool is_there = FreeImage_GetMetadata(FIMD_ANIMATION, &image, name, &tag) != FALSE &&
                          FreeImage_GetTagType(tag) == FIDT_SHORT;
    return is_there ? *static_cast<const std::uint16_t *>(FreeImage_GetTagValue(tag)) : 0;
}

// The first picture of a GIF may cover a part of its screen; what it leaves free shows through. Drawn here,
// since the library's own way to do that trips over damaged files.
samples on_its_screen(const samples & drawn, picture_size screen, FIBITMAP & image)
{
    const bool has_alpha = drawn.model == sample_model::rgb_alpha;
    samples whole = made_samples(screen, sample_model::rgb_alpha, 1);
    const int left = number_of(image, "FrameLeft"), top = number_of(image, "FrameTop");
    const std::size_t step = static_cast<std::size_t>(samples_a_pixel(drawn.model));
    for (int y = 0; y < drawn.size.height && top + y < screen.height; ++y)
        for (int x = 0; x < drawn.size.width && left + x < screen.width; ++x) {
            const std::uint8_t * from =
                &drawn.values[step * static_cast<std::size_t>(y * drawn.size.width + x)];
            std::uint8_t * to =
                &whole.values[4 * static_cast<std::size_t>((top + y) * screen.width + left + x)];
            for (std::size_t c = 0; c < 3; ++c)
                to[c] = from[step >= 3 ? c : 0];
            to[3] = has_alpha ? from[3] : 255;
        }
    return whole;
}

byte_view exif_of(byte_view file, picture_kind kind)
{
    if (kind == picture_kind::tiff)
        return file;
    if (kind == picture_kind::png)
        return exif_of_png(file);
    return kind == picture_kind::webp ? exif_of_webp(file) : byte_view();
}

// The library turns a TIFF in some of its ways to read one; it is given a file that needs no turn.
std::vector<std::uint8_t> with_upright_tag(byte_view file)
{
    std::vector<std::uint8_t> changed(file.begin(), file.end());
    const std::size_t place = place_of_orientation(file);
    if (place != 0) {
        changed.at(place) = order_of_exif(file) == byte_order::little ? 1 : 0;
        changed.at(place + 1) = order_of_exif(file) == byte_order::little ? 0 : 1;
    }
    return changed;
}

// The library reads rows of a BMP that aren't there as whatever the memory holds.
void expect_all_rows(byte_view file)
{
    const std::uint64_t begin = number32(file, 10, byte_order::little),
                        compression = number32(file, 30, byte_order::little);
    const auto height = static_cast<std::int32_t>(number32(file, 22, byte_order::little));
    const std::uint64_t width = number32(file, 18, byte_order::little),
                        bits = number16(file, 28, byte_order::little);
    const std::uint64_t row = (width * bits + 31) / 32 * 4;
    const bool is_plain =
        (compression == 0 || compression == 3) && number32(file, 14, byte_order::little) >= 40;
    if (is_plain && begin + row * static_cast<std::uint64_t>(std::abs(std::int64_t{height})) > file.size())
        throw decode_fault::damaged;
}

// The library reads only the short header of a BMP; what the longer ones add is colours for programs that
// print.
std::vector<std::uint8_t> with_short_header(byte_view file)
{
    constexpr std::size_t begin = 14, short_size = 40, masks_size = 12;
    const std::size_t size = number32(file, begin, byte_order::little);
    const std::size_t kept = short_size + (number32(file, 30, byte_order::little) == 3 ? masks_size : 0);
    std::vector<std::uint8_t> changed(file.begin(), file.end());
    if (size <= kept || size > 1000 || begin + size > file.size())
        return changed;
    changed.erase(changed.begin() + begin + static_cast<std::ptrdiff_t>(kept),
                  changed.begin() + begin + static_cast<std::ptrdiff_t>(size));
    const std::uint32_t pixels =
        number32(file, 10, byte_order::little) - static_cast<std::uint32_t>(size - kept);
    for (std::size_t i = 0; i < 4; ++i)
        changed[10 + i] = static_cast<std::uint8_t>(pixels >> (8 * i));
    changed[begin] = short_size;
    return changed;
}

// The text in which some programs hide Exif in a PNG: "exif", a count, and digits for the bytes.
std::string block_of_text(std::string_view text)
{
    const auto digit = [](char sign) { return sign <= '9' ? sign - '0' : (sign | 0x20) - 'a' + 10; };
    std::string digits, block;
    std::size_t at = text.find_first_of("0123456789");
    at = text.find_first_not_of("0123456789", std::min(at, text.size()));
    for (; at < text.size(); ++at)
        if (std::isxdigit(static_cast<unsigned char>(text[at])) != 0)
            digits += text[at];
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        block += static_cast<char>(digit(digits[i]) * 16 + digit(digits[i + 1]));
    constexpr std::string_view mark("Exif\0\0", 6);
    return block.starts_with(mark) ? block.substr(mark.size()) : block;
}

std::string hidden_exif(FIBITMAP & image)
{
    for (const char * name : {"Raw profile type exif", "Raw profile type APP1"}) {
        FITAG * tag = nullptr;
        if (FreeImage_GetMetadata(FIMD_COMMENTS, &image, name, &tag) != FALSE &&
            FreeImage_GetTagType(tag) == FIDT_ASCII)
            return block_of_text(
                {static_cast<const char *>(FreeImage_GetTagValue(tag)), FreeImage_GetTagLength(tag)});
    }
    return {};
}

photo_notes notes_of(byte_view file, picture_kind kind, FIBITMAP & image)
{
    const byte_view block = exif_of(file, kind);
    const std::string hidden =
        kind == picture_kind::png && block.empty() ? hidden_exif(image) : std::string();
    return notes_of_exif(hidden.empty() ? block : bytes_of_text(hidden));
}

// The file in a form in which the library reads it rightly.
std::vector<std::uint8_t> fit_for_library(byte_view file, picture_kind kind)
{
    if (kind == picture_kind::tiff)
        return with_upright_tag(file);
    expect_all_rows(file);
    return with_short_header(file);
}

}  // namespace

samples library_picture(byte_view file, picture_kind kind)
{
    const byte_view own = file;
    std::vector<std::uint8_t> changed;
    if (kind == picture_kind::bmp || kind == picture_kind::tiff)
        file = changed = fit_for_library(own, kind);
    expect_usable_header(file, kind);
    const open_image image = loaded(file, kind, 0);
    if (!image)
        throw decode_fault::damaged;
    samples picture = samples_of(*image);
    if (kind == picture_kind::gif)
        picture = on_its_screen(
            picture,
            {.width = number16(own, 6, byte_order::little), .height = number16(own, 8, byte_order::little)},
            *image);
    const photo_notes notes = notes_of(own, kind, *image);
    picture.profile = kind == picture_kind::png ? profile_of_png(own) : profile_of(*image);
    picture.orientation = notes.orientation;
    picture.taken = notes.taken;
    return picture;
}
