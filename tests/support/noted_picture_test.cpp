#include "support/MFreeImage.h"
#include "support/color_profile.h"
#include "support/files/text_file.h"
#include "support/jpeg_density.h"
#include "support/platform_error.h"
#include "tests/jpeg_files.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

picture_notes notes_at(int dpi)
{
    return {.dpi = dpi, .color_profile = srgb_profile(), .made_with = "Tessaloom"};
}

// What lies behind the headers: tables and pixels.
std::string from_tables(const std::string & jpeg)
{
    return jpeg.substr(jpeg.find("\xff\xdb"));
}

}  // namespace

TEST(noted_picture, a_jpeg_has_the_pixels_that_it_has_without_notes)
{
    for (const bitmap & image : {graded(203, 101), noise(64, 80), plain(5, 5, {1, 2, 3})}) {
        const std::string noted = noted_picture(picture_format::jpeg, image, notes_at(100));
        EXPECT_TRUE(from_tables(noted) == from_tables(jpeg_bytes(image)));
        EXPECT_EQ(density_of(noted), 100);
        EXPECT_NE(noted.find(srgb_profile()), std::string::npos);
        EXPECT_NE(noted.find(std::string("Exif\0\0II*\0", 10)), std::string::npos);
        EXPECT_NE(noted.find("Tessaloom"), std::string::npos);
    }
}

TEST(noted_picture, a_png_has_every_pixel_as_it_is)
{
    const temporary_folder place;
    const bitmap image = noise(203, 101);
    const std::string bytes = noted_picture(picture_format::png, image, notes_at(300));
    EXPECT_TRUE(same(load_picture(picture_format::png, place.write("a.png", bytes)), image));
    EXPECT_NE(bytes.find("iCCP"), std::string::npos);
    EXPECT_NE(bytes.find(std::string("Software\0", 9)), std::string::npos);
    // 300 an inch are 11,811 a metre.
    EXPECT_NE(bytes.find(std::string("pHYs\0\0\x2e\x23\0\0\x2e\x23\1", 13)), std::string::npos);
}

TEST(noted_picture, takes_nothing_over_from_where_the_picture_comes_from)
{
    const temporary_folder place;
    bitmap image = plain(40, 30, {9, 90, 200});
    std::string from = jpeg_bytes(image);
    from.insert(2, std::string("\xff\xfe\0\x13"
                               "by Anna at home!!",
                               21));
    ASSERT_TRUE(take_notes(image, place.write("camera.jpg", from)));
    ASSERT_NE(jpeg_bytes(image).find("Anna"), std::string::npos) << "as other pictures do";
    for (const picture_format format : {picture_format::jpeg, picture_format::png})
        EXPECT_EQ(noted_picture(format, image, notes_at(100)).find("Anna"), std::string::npos);
    EXPECT_NE(jpeg_bytes(image).find("Anna"), std::string::npos) << "the picture keeps its own";
}

TEST(noted_picture, is_the_same_each_time)
{
    const bitmap image = graded(60, 40);
    for (const picture_format format : {picture_format::jpeg, picture_format::png})
        EXPECT_TRUE(noted_picture(format, image, notes_at(85)) == noted_picture(format, image, notes_at(85)));
}

TEST(noted_picture, needs_a_picture)
{
    EXPECT_THROW(noted_picture(picture_format::jpeg, {}, notes_at(100)), platform_error);
}
