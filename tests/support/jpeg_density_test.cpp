#include "support/jpeg_density.h"

#include "support/MFreeImage.h"
#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

TEST(jpeg_density, is_told_by_the_header_and_changes_nothing_else)
{
    const std::string before = jpeg_bytes(graded(40, 30));
    for (const int dpi : {1, 72, 255, 256, 300, 2400, 65535}) {
        const std::string after = with_density(before, dpi);
        EXPECT_EQ(density_of(after), dpi);
        ASSERT_EQ(after.size(), before.size());
        EXPECT_TRUE(after.substr(0, 13) == before.substr(0, 13));
        EXPECT_TRUE(after.substr(18) == before.substr(18));
    }
}

TEST(jpeg_density, of_a_file_is_read_by_the_image_library_as_well)
{
    const temporary_folder folder;
    const std::string path = folder.at("print.jpg");
    const bitmap image = graded(40, 30);
    write_file(path, with_density(jpeg_bytes(image), 300));
    const bitmap loaded = load_picture(picture_format::jpeg, path);
    EXPECT_EQ(loaded.width(), 40);
    // The library repeats the density that it has read.
    EXPECT_EQ(density_of(jpeg_bytes(loaded)), 300);
}

TEST(jpeg_density, of_other_bytes_is_not_told)
{
    for (const std::string bytes : {"", "\xff\xd8\xff", "\xff\xd8\xff\xe1 other header of that length"}) {
        EXPECT_EQ(with_density(bytes, 300), bytes);
        EXPECT_FALSE(density_of(bytes));
    }
}
