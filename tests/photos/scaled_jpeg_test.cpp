#include "photos/scaled_jpeg.h"

#include "engine/pixels/resize_image.h"
#include "support/files/text_file.h"
#include "tests/jpeg_files.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

// The image library itself says what every byte has to be.

namespace {

struct photo_file {
    temporary_folder folder;
    std::string path = folder.at("photo.jpg");
    photo_memory memory;

    photo_file(const jpeg_kind & kind, int width, int height)
    {
        write_file(path, jpeg_of(kind, width, height));
    }
    bitmap loaded() const { return load_picture(picture_format::jpeg, path); }
};

constexpr picture_size places[] = {{45, 34},   {34, 45},   {30, 30},   {20, 150}, {150, 20},
                                   {200, 150}, {400, 300}, {301, 201}, {1, 1},    {2, 1}};

void expect_to_fit(const jpeg_kind & kind, int width, int height)
{
    photo_file file(kind, width, height);
    const bitmap whole = file.loaded();
    for (const picture_size & place : places) {
        const std::optional<bitmap> read = read_fitted_jpeg(file.path, place, file.memory);
        ASSERT_TRUE(read) << place.width << " x " << place.height;
        EXPECT_TRUE(same(*read, resize_image(whole, place.width, place.height)))
            << width << " x " << height << " to " << place.width << " x " << place.height;
    }
}

}  // namespace

TEST(scaled_jpeg, fits_as_loading_and_resizing_would)
{
    for (const auto & [width, height] :
         {std::pair{300, 200}, {200, 300}, {151, 149}, {211, 97}, {64, 64}, {7, 5}})
        expect_to_fit({}, width, height);
}

TEST(scaled_jpeg, fits_every_kind_that_is_read_by_rows)
{
    expect_to_fit({.colors = jpeg_colors::grey}, 210, 160);
    expect_to_fit({.sampling = {{2, 1}, {1, 1}, {1, 1}}}, 161, 210);
    expect_to_fit({.sampling = {{1, 1}, {1, 1}, {1, 1}}, .restart = 2}, 210, 161);
    expect_to_fit({.coding = jpeg_coding::progressive}, 210, 161);
}

TEST(scaled_jpeg, fits_a_photo_of_real_size)
{
    photo_file file({}, 4000, 3000);
    const bitmap whole = file.loaded();
    for (const picture_size & place : {picture_size{450, 338}, picture_size{287, 383}}) {
        const std::optional<bitmap> read = read_fitted_jpeg(file.path, place, file.memory);
        ASSERT_TRUE(read);
        EXPECT_TRUE(same(*read, resize_image(whole, place.width, place.height)));
    }
}

TEST(scaled_jpeg, rescales_as_loading_and_rescaling_would)
{
    photo_file file({}, 300, 211);
    const bitmap whole = file.loaded();
    for (const picture_size & place : places) {
        const std::optional<bitmap> read = read_rescaled_jpeg(file.path, place, file.memory);
        ASSERT_TRUE(read);
        EXPECT_TRUE(same(*read, rescaled(whole, place.width, place.height)));
    }
}

TEST(scaled_jpeg, leaves_to_the_library_what_it_alone_can_read)
{
    photo_file file({.colors = jpeg_colors::cmyk}, 40, 30);
    EXPECT_FALSE(read_fitted_jpeg(file.path, {20, 15}, file.memory));
    EXPECT_FALSE(read_rescaled_jpeg(file.path, {20, 15}, file.memory));
    EXPECT_FALSE(read_fitted_jpeg(file.folder.at("missing.jpg"), {20, 15}, file.memory));
}

TEST(scaled_jpeg, leaves_a_photo_with_a_fault_in_rows_that_are_cut_off)
{
    photo_file file({}, 64, 640);
    std::string bytes = jpeg_of({}, 64, 640);
    bytes.resize(bytes.size() - 100);
    write_file(file.path, bytes);
    EXPECT_FALSE(read_fitted_jpeg(file.path, {64, 32}, file.memory));
}

TEST(scaled_jpeg, leaves_a_place_that_no_photo_fits)
{
    photo_file file({}, 40, 30);
    EXPECT_FALSE(read_fitted_jpeg(file.path, {0, 0}, file.memory));
    EXPECT_FALSE(read_rescaled_jpeg(file.path, {0, 15}, file.memory));
    EXPECT_FALSE(read_rescaled_jpeg(file.path, {40'000, 15}, file.memory));
    photo_file narrow({.colors = jpeg_colors::grey}, 1, 3000);
    EXPECT_FALSE(read_fitted_jpeg(narrow.path, {300, 300}, narrow.memory));
}

TEST(scaled_jpeg, a_thumbnail_is_saved_with_the_bytes_and_the_notes_of_a_rescaled_photo)
{
    const std::string camera("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 32);
    const std::vector<jpeg_marker> notes{{0xE1, camera},
                                         {0xFE, "a comment"},
                                         {0xE2, std::string("ICC_PROFILE\0\x01\x01profile", 21)},
                                         {0xE1, std::string("http://ns.adobe.com/xap/1.0/\0<x/>", 33)}};
    for (const jpeg_colors colors : {jpeg_colors::ycc, jpeg_colors::grey, jpeg_colors::rgb}) {
        photo_file file({.colors = colors, .markers = notes}, 300, 211);
        const std::optional<bitmap> read = read_thumbnail(file.path, {200, 150}, file.memory);
        ASSERT_TRUE(read);
        EXPECT_EQ(jpeg_bytes(*read), jpeg_bytes(rescaled(file.loaded(), 200, 150)));
        EXPECT_NE(jpeg_bytes(*read), jpeg_bytes(*read_rescaled_jpeg(file.path, {200, 150}, file.memory)));
    }
}

TEST(scaled_jpeg, a_thumbnail_of_a_photo_of_its_size_is_left_to_the_library)
{
    photo_file file({}, 200, 150);
    EXPECT_FALSE(read_thumbnail(file.path, {200, 150}, file.memory));
}

TEST(scaled_jpeg, gives_nothing_once_a_stop_is_asked_for)
{
    photo_file file({}, 300, 200);
    std::stop_source stop;
    EXPECT_TRUE(read_fitted_jpeg(file.path, {.width = 40, .height = 30}, file.memory, 1, stop.get_token()));
    stop.request_stop();
    EXPECT_FALSE(read_fitted_jpeg(file.path, {.width = 40, .height = 30}, file.memory, 1, stop.get_token()));
}
