#include "decode/raw_picture.h"

#include "decode/jpeg_picture.h"
#include "intake/exif.h"
#include "intake/jpeg_header.h"

#include <array>
#include <ctime>
#include <libraw/libraw.h>
#include <memory>

namespace {

constexpr int large_enough = 1600;  // the long side of a picture that is taken as the camera made it

struct reader_closer {
    void operator()(libraw_data_t * reader) const { libraw_close(reader); }
};
using open_reader = std::unique_ptr<libraw_data_t, reader_closer>;

struct image_closer {
    void operator()(libraw_processed_image_t * image) const { libraw_dcraw_clear_mem(image); }
};
using open_image = std::unique_ptr<libraw_processed_image_t, image_closer>;

void expect_ok(int told)
{
    if (told == LIBRAW_SUCCESS)
        return;
    if (told == LIBRAW_FILE_UNSUPPORTED)
        throw decode_fault::not_known;
    throw told == LIBRAW_UNSUFFICIENT_MEMORY || told == LIBRAW_TOO_BIG ? decode_fault::too_large
                                                                       : decode_fault::damaged;
}

// The library says how the picture is to be turned by bits: 1 mirrors it from left to right, 2 from top to
// bottom, 4 swaps rows and columns before that.
int orientation_of(int flip)
{
    constexpr std::array<int, 8> orientations{1, 2, 4, 3, 5, 8, 6, 7};
    return flip >= 0 && flip < std::ssize(orientations) ? orientations.at(static_cast<std::size_t>(flip)) : 1;
}

// The time is the camera's own clock; the library has taken it for local time.
std::string taken_of(const libraw_data_t & reader)
{
    std::tm time{};
    const std::time_t told = reader.other.timestamp;
    if (told <= 0 || ::localtime_r(&told, &time) == nullptr)
        return {};
    std::string text(20, '\0');
    text.resize(std::strftime(text.data(), text.size(), "%Y:%m:%d %H:%M:%S", &time));
    return is_date(text) ? text : std::string();
}

bool holds_large_jpeg(const libraw_data_t & reader)
{
    return reader.thumbnail.tformat == LIBRAW_THUMBNAIL_JPEG &&
           std::max(reader.thumbnail.twidth, reader.thumbnail.theight) >= large_enough;
}

samples cameras_own_picture(const libraw_data_t & reader)
{
    samples picture = jpeg_picture(
        {reinterpret_cast<const std::uint8_t *>(reader.thumbnail.thumb), reader.thumbnail.tlength});
    if (std::max(picture.size.width, picture.size.height) < large_enough)
        throw decode_fault::damaged;
    if (picture.orientation == 1)
        picture.orientation = orientation_of(reader.sizes.flip);
    return picture;
}

samples developed(libraw_data_t & reader)
{
    expect_usable(reader.sizes.width, reader.sizes.height);
    expect_ok(libraw_unpack(&reader));
    expect_ok(libraw_dcraw_process(&reader));
    int fault = 0;
    const open_image image(libraw_dcraw_make_mem_image(&reader, &fault));
    if (!image || image->type != LIBRAW_IMAGE_BITMAP || image->bits != 8 ||
        (image->colors != 3 && image->colors != 1))
        throw decode_fault::damaged;
    samples picture = made_samples({.width = image->width, .height = image->height},
                                   image->colors == 3 ? sample_model::rgb : sample_model::grey, 1);
    if (image->data_size < picture.values.size())
        throw decode_fault::damaged;
    std::copy_n(image->data, picture.values.size(), picture.values.begin());
    return picture;
}

samples best_picture(libraw_data_t & reader)
{
    if (libraw_unpack_thumb(&reader) == LIBRAW_SUCCESS && holds_large_jpeg(reader)) {
        try {
            return cameras_own_picture(reader);
        } catch (decode_fault) {
            // What the camera put in is damaged; the sensor's values may not be.
        }
    }
    return developed(reader);
}

}  // namespace

samples raw_picture(byte_view file)
{
    const open_reader reader(libraw_init(LIBRAW_OPTIONS_NONE));
    if (!reader)
        throw decode_fault::no_memory;
    reader->params.use_camera_wb = 1;
    reader->params.output_color = 1;
    reader->params.output_bps = 8;
    expect_ok(libraw_open_buffer(reader.get(), const_cast<std::uint8_t *>(file.data()), file.size()));
    const std::string taken = taken_of(*reader);
    samples picture = best_picture(*reader);
    if (picture.taken.empty())
        picture.taken = taken;
    return picture;
}
