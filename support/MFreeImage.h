#pragma once

#include "support/numbers.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct FIBITMAP;

/// The thin binding to the image library: the one file that knows it. Bitmaps have 24 bits a pixel, always:
/// whatever is loaded is turned into that at once. Row 0 is the **bottom** row in `row`, `pixel_at`
/// and `set_pixel`; `copied` and `paste` count from the **top**. Both are the library's own conventions.
/// Library messages are dropped.

/// A colour in the order in which the session holds it.
struct rgb_triple {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const rgb_triple &) const = default;
};

/// A colour as screen controls hold it, red in the low byte, then green, then blue; higher bytes are ignored.
rgb_triple get_rgb_triple(std::uint32_t color);

/// A pixel as it lies in a bitmap's memory.
struct pixel {
    std::uint8_t blue = 0, green = 0, red = 0;

    constexpr pixel() = default;
    constexpr pixel(rgb_triple color) : blue(color.blue), green(color.green), red(color.red) {}
    constexpr operator rgb_triple() const { return {.red = red, .green = green, .blue = blue}; }
};
static_assert(sizeof(pixel) == 3);

/// The bytes of a row, one after the other: for loops to which the three channels are alike.
std::span<std::uint8_t> channels(std::span<pixel> row);
std::span<const std::uint8_t> channels(std::span<const pixel> row);

struct picture_size {
    int width = 0, height = 0;
    bool operator==(const picture_size &) const = default;
};

/// A bitmap of 24 bits a pixel, or none: a load that failed gives an empty one. Owns its memory.
class bitmap {
public:
    bitmap() = default;
    /// A black bitmap. Raises out_of_memory (7); an empty size gives no bitmap.
    bitmap(int width, int height);

    explicit operator bool() const { return handle != nullptr; }
    /// Pixels; 0 for no bitmap. Raise overflow (6) from 32,768 on.
    int width() const;
    int height() const;
    picture_size size() const { return {.width = width(), .height = height()}; }

    /// The pixels of a row, bottom row first. The row has to exist.
    std::span<pixel> row(int y);
    std::span<const pixel> row(int y) const;

    /// For the binding's own functions.
    explicit bitmap(FIBITMAP * owned);
    FIBITMAP * get() const { return handle.get(); }

private:
    struct unloader {
        void operator()(FIBITMAP * owned) const;
    };
    std::unique_ptr<FIBITMAP, unloader> handle;
};

/// The library's own codes, as far as the system passes them.
enum class picture_format { bmp = 0, ico = 1, jpeg = 2, png = 13, tiff = 18, gif = 25 };

/// Swallows the messages of the library, and of those that it reads and writes files with.
void set_output_message();

/// The picture of that very format, or an empty bitmap when the file is missing, damaged or of another
/// format, whatever its name says. JPEGs that are grey or CMYK come as 24 bits. Raises overflow (6) for a
/// picture of 32,768 pixels or more in one direction.
bitmap load_picture(picture_format format, const std::string & path);

/// The size that load_picture would give for a JPEG, read from its header alone; nothing where the load would
/// fail at the header. Raises as load_picture.
std::optional<picture_size> jpeg_size(const std::string & path);

/// The same, but nothing where it would raise.
std::optional<picture_size> usable_jpeg_size(const std::string & path);

/// Gives the picture what that JPEG says beside its pixels (resolution, camera, comments) and a saved file
/// repeats, as `rescaled` hands it on from a loaded one. False where the file's header can't be read.
bool take_notes(bitmap & image, const std::string & path);

/// The bitmap as JPEG of the highest quality, as bytes. Raises 5 for an empty bitmap.
std::string jpeg_bytes(const bitmap & image);

/// What the file of a picture tells beside the pixels.
struct picture_notes {
    int dpi = 0;                     ///< pixels an inch
    std::string_view color_profile;  ///< the bytes of an ICC profile
    std::string_view made_with;      ///< the program's name
};

/// The bitmap as JPEG of the highest quality or as PNG, as bytes, with these notes and none that it brings
/// along. The pixels of a JPEG are those of `jpeg_bytes`. Raises 5 for an empty bitmap.
std::string noted_picture(picture_format format, const bitmap & image, const picture_notes & notes);

/// Writes the bitmap as JPEG of the highest quality, whole or not at all. Raises 61, 70, 75, 76.
void save_jpeg(const bitmap & image, const std::string & path);

/// The same as a BMP file.
void save_bmp(const bitmap & image, const std::string & path);

/// The same as a file of that format; a GIF has the 256 colours that come nearest.
void save_picture(picture_format format, const bitmap & image, const std::string & path);

/// A new bitmap of that size, bilinear. An empty source or size gives no bitmap.
bitmap rescaled(const bitmap & image, int width, int height);

/// The rectangle from (left, top) to (right, bottom), the latter exclusive, from the top. Swapped sides are
/// put in order; a rectangle that is empty or leaves the bitmap gives no bitmap.
bitmap copied(const bitmap & image, int left, int top, int right, int bottom);

/// All of it.
bitmap copied(const bitmap & image);

inline constexpr int plain_copy = 256;

/// Pastes with the source's top-left corner at (left, top). Alpha 0 to 255 weighs the source, rounded down;
/// `plain_copy` overwrites. False, and nothing changed, when the source leaves the target on any side or one
/// of the two is empty.
bool paste(bitmap & target, const bitmap & source, int left, int top, int alpha);

/// The classic rotation: enlarged to hold the turned image, corners black, positive counter-clockwise as
/// seen.
bitmap rotated(const bitmap & image, double degrees);

/// A pixel, row 0 at the bottom; nothing outside the bitmap.
std::optional<rgb_triple> pixel_at(const bitmap & image, int x, int y);

/// Sets a pixel, row 0 at the bottom; outside the bitmap nothing happens.
void set_pixel(bitmap & image, int x, int y, rgb_triple color);

/// Fills all of the bitmap.
void fill(bitmap & image, rgb_triple color);
