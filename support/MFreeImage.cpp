#include "support/MFreeImage.h"

#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <FreeImage.h>
#include <algorithm>
#include <tiffio.h>

namespace {

constexpr int superb_quality = 128;  // the library's flag for the highest JPEG quality

bitmap in_24_bits(FIBITMAP * loaded)
{
    if (loaded == nullptr)
        return {};
    if (FreeImage_GetBPP(loaded) == 24)
        return bitmap(loaded);
    const bitmap source(loaded);
    return bitmap(FreeImage_ConvertTo24Bits(loaded));
}

bitmap made(FIBITMAP * result)
{
    return bitmap(result);
}

// Masks are grey, and so is many an old photo.
bool is_grey(const bitmap & image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto is_colored = [](pixel each) { return each.blue != each.green || each.blue != each.red; };
        if (std::ranges::any_of(image.row(y), is_colored))
            return false;
    }
    return true;
}

// The same pixels as with three equal channels, in about half the time.
bitmap rescaled_grey(const bitmap & image, int width, int height)
{
    const bitmap channel(FreeImage_GetChannel(image.get(), FICC_RED));
    if (!channel)
        return {};
    return in_24_bits(FreeImage_Rescale(channel.get(), width, height, FILTER_BILINEAR));
}

std::string encoded(const bitmap & image, FREE_IMAGE_FORMAT format, int flags)
{
    const std::unique_ptr<FIMEMORY, void (*)(FIMEMORY *)> memory(FreeImage_OpenMemory(),
                                                                 FreeImage_CloseMemory);
    BYTE * data = nullptr;
    DWORD size = 0;
    if (!image || FreeImage_SaveToMemory(format, image.get(), memory.get(), flags) == FALSE ||
        FreeImage_AcquireMemory(memory.get(), &data, &size) == FALSE)
        throw platform_error(error_number::invalid_call, "The picture can't be encoded.");
    return {reinterpret_cast<const char *>(data), size};
}

// The same pixels, with notes of their own: none yet.
bitmap without_notes(const bitmap & image)
{
    bitmap view(image ? FreeImage_CreateView(image.get(), 0, 0, static_cast<unsigned>(image.width()),
                                             static_cast<unsigned>(image.height()))
                      : nullptr);
    for (int model = FIMD_COMMENTS; view && model <= FIMD_EXIF_RAW; ++model)
        FreeImage_SetMetadata(static_cast<FREE_IMAGE_MDMODEL>(model), view.get(), nullptr, nullptr);
    return view;
}

constexpr WORD software_tag = 0x0131;  // of TIFF, and so of Exif
constexpr int inches_of_a_hundred_meters = 3937;

// What a JPEG tells of itself is a TIFF without a picture, low bytes first: one directory with one text.
std::string exif_block(std::string_view software)
{
    constexpr DWORD directory_at = 8, text_at = 26;
    std::string block{"Exif\0\0II*\0", 10};
    const auto put = [&block](DWORD number, int bytes) {
        for (; bytes > 0; --bytes, number >>= 8)
            block += static_cast<char>(number & 0xFF);
    };
    put(directory_at, 4);
    put(1, 2);  // entries
    put(software_tag, 2);
    put(FIDT_ASCII, 2);
    put(static_cast<DWORD>(software.size()) + 1, 4);
    put(text_at, 4);
    put(0, 4);  // no other directory
    return block + std::string(software) + '\0';
}

void attach(const bitmap & image, FREE_IMAGE_MDMODEL model, const char * key, const std::string & value)
{
    const std::unique_ptr<FITAG, void (*)(FITAG *)> tag(FreeImage_CreateTag(),
                                                        [](FITAG * made) { FreeImage_DeleteTag(made); });
    const auto size = static_cast<DWORD>(value.size());
    FreeImage_SetTagKey(tag.get(), key);
    FreeImage_SetTagType(tag.get(), model == FIMD_EXIF_RAW ? FIDT_BYTE : FIDT_ASCII);
    FreeImage_SetTagCount(tag.get(), size);
    FreeImage_SetTagLength(tag.get(), size);
    FreeImage_SetTagValue(tag.get(), value.data());
    FreeImage_SetMetadata(model, image.get(), key, tag.get());
}

void name_program(const bitmap & image, picture_format format, std::string_view name)
{
    if (format == picture_format::jpeg)
        attach(image, FIMD_EXIF_RAW, "ExifRaw", exif_block(name));
    else
        attach(image, FIMD_COMMENTS, "Software", std::string(name) + '\0');
}

bool inside(const bitmap & image, int x, int y)
{
    return image && x >= 0 && y >= 0 && x < image.width() && y < image.height();
}

}  // namespace

void bitmap::unloader::operator()(FIBITMAP * owned) const
{
    FreeImage_Unload(owned);
}

bitmap::bitmap(FIBITMAP * owned) : handle(owned) {}

bitmap::bitmap(int width, int height)
{
    if (width <= 0 || height <= 0)
        return;
    handle.reset(FreeImage_Allocate(width, height, 24, 0, 0, 0));
    if (!handle)
        throw platform_error(error_number::out_of_memory, "Out of memory");
}

int bitmap::width() const
{
    return handle ? narrow(FreeImage_GetWidth(handle.get())) : 0;
}

int bitmap::height() const
{
    return handle ? narrow(FreeImage_GetHeight(handle.get())) : 0;
}

std::span<std::uint8_t> channels(std::span<pixel> row)
{
    return {reinterpret_cast<std::uint8_t *>(row.data()), row.size_bytes()};
}

std::span<const std::uint8_t> channels(std::span<const pixel> row)
{
    return {reinterpret_cast<const std::uint8_t *>(row.data()), row.size_bytes()};
}

std::span<pixel> bitmap::row(int y)
{
    return {reinterpret_cast<pixel *>(FreeImage_GetScanLine(handle.get(), y)),
            static_cast<std::size_t>(width())};
}

std::span<const pixel> bitmap::row(int y) const
{
    return {reinterpret_cast<const pixel *>(FreeImage_GetScanLine(handle.get(), y)),
            static_cast<std::size_t>(width())};
}

rgb_triple get_rgb_triple(std::uint32_t color)
{
    return {.red = static_cast<std::uint8_t>(color & 0xFF),
            .green = static_cast<std::uint8_t>(color >> 8 & 0xFF),
            .blue = static_cast<std::uint8_t>(color >> 16 & 0xFF)};
}

void set_output_message()
{
    FreeImage_SetOutputMessageStdCall([](FREE_IMAGE_FORMAT, const char *) {});
    // What lies below it speaks for itself, of each tag that a TIFF hasn't.
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
}

bitmap load_picture(picture_format format, const std::string & path)
{
    bitmap loaded = in_24_bits(FreeImage_Load(static_cast<FREE_IMAGE_FORMAT>(format), path.c_str(), 0));
    narrow(loaded.width());
    narrow(loaded.height());
    return loaded;
}

std::optional<picture_size> jpeg_size(const std::string & path)
{
    const bitmap header(FreeImage_Load(FIF_JPEG, path.c_str(), FIF_LOAD_NOPIXELS));
    if (!header)
        return std::nullopt;
    return picture_size{.width = header.width(), .height = header.height()};
}

std::optional<picture_size> usable_jpeg_size(const std::string & path)
{
    try {
        return jpeg_size(path);
    } catch (const platform_error &) {
        return std::nullopt;
    }
}

bool take_notes(bitmap & image, const std::string & path)
{
    const bitmap header(FreeImage_Load(FIF_JPEG, path.c_str(), FIF_LOAD_NOPIXELS));
    return image && header && FreeImage_CloneMetadata(image.get(), header.get()) != FALSE;
}

std::string jpeg_bytes(const bitmap & image)
{
    return encoded(image, FIF_JPEG, superb_quality);
}

std::string noted_picture(picture_format format, const bitmap & image, const picture_notes & notes)
{
    const bitmap view = without_notes(image);
    if (view) {
        const auto a_meter = static_cast<unsigned>((notes.dpi * inches_of_a_hundred_meters + 50) / 100);
        FreeImage_SetDotsPerMeterX(view.get(), a_meter);
        FreeImage_SetDotsPerMeterY(view.get(), a_meter);
        FreeImage_CreateICCProfile(view.get(), const_cast<char *>(notes.color_profile.data()),
                                   static_cast<long>(notes.color_profile.size()));
        name_program(view, format, notes.made_with);
    }
    // A PNG packed harder takes five times as long and comes out a seventh smaller.
    return encoded(view, static_cast<FREE_IMAGE_FORMAT>(format),
                   format == picture_format::jpeg ? superb_quality : PNG_Z_BEST_SPEED);
}

void save_jpeg(const bitmap & image, const std::string & path)
{
    write_file(path, jpeg_bytes(image));
}

void save_bmp(const bitmap & image, const std::string & path)
{
    write_file(path, encoded(image, FIF_BMP, 0));
}

void save_picture(picture_format format, const bitmap & image, const std::string & path)
{
    if (format != picture_format::gif) {
        write_file(path, encoded(image, static_cast<FREE_IMAGE_FORMAT>(format), superb_quality));
        return;
    }
    const bitmap in_256_colors(image ? FreeImage_ColorQuantize(image.get(), FIQ_WUQUANT) : nullptr);
    write_file(path, encoded(in_256_colors, FIF_GIF, 0));
}

bitmap rescaled(const bitmap & image, int width, int height)
{
    if (!image || width <= 0 || height <= 0)
        return {};
    if (is_grey(image))
        return rescaled_grey(image, width, height);
    return made(FreeImage_Rescale(image.get(), width, height, FILTER_BILINEAR));
}

bitmap copied(const bitmap & image, int left, int top, int right, int bottom)
{
    if (!image)
        return {};
    return made(FreeImage_Copy(image.get(), left, top, right, bottom));
}

bitmap copied(const bitmap & image)
{
    return copied(image, 0, 0, image.width(), image.height());
}

bool paste(bitmap & target, const bitmap & source, int left, int top, int alpha)
{
    return target && source && FreeImage_Paste(target.get(), source.get(), left, top, alpha) != FALSE;
}

bitmap rotated(const bitmap & image, double degrees)
{
    if (!image)
        return {};
    return made(FreeImage_Rotate(image.get(), degrees, nullptr));
}

std::optional<rgb_triple> pixel_at(const bitmap & image, int x, int y)
{
    if (!inside(image, x, y))
        return std::nullopt;
    return image.row(y)[static_cast<std::size_t>(x)];
}

void set_pixel(bitmap & image, int x, int y, rgb_triple color)
{
    if (inside(image, x, y))
        image.row(y)[static_cast<std::size_t>(x)] = color;
}

void fill(bitmap & image, rgb_triple color)
{
    for (int y = 0; y < image.height(); ++y)
        std::ranges::fill(image.row(y), pixel(color));
}
