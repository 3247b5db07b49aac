#include "engine/output/jpeg_name.h"

#include <gtest/gtest.h>

TEST(jpeg_path, takes_names_of_jpeg_files_and_ends_those_without_an_ending)
{
    struct row {
        const char *named, *path;
    };
    for (const row & each : {row{"/a/beach.jpg", "/a/beach.jpg"}, row{"/a/BEACH.JPG", "/a/BEACH.JPG"},
                             row{"/a/b.c.Jpeg", "/a/b.c.Jpeg"}, row{"/a/beach", "/a/beach.jpg"},
                             row{"/a.b/beach", "/a.b/beach.jpg"}, row{"/a/.beach", "/a/.beach.jpg"},
                             row{"/a/beach.", "/a/beach..jpg"}, row{"/a/St. Moritz", "/a/St. Moritz.jpg"},
                             row{"/a/ \"x\"", "/a/ \"x\".jpg"}, row{"/a/\xC3\xA4", "/a/\xC3\xA4.jpg"}})
        EXPECT_EQ(jpeg_path(each.named), each.path) << each.named;
}

TEST(jpeg_path, takes_no_other_ending)
{
    for (const char * named : {"/a/beach.png", "/a/beach.jpg.txt", "/a/beach.jp", "/a/beach.jpge", "/a/v1.2"})
        EXPECT_EQ(jpeg_path(named), std::nullopt) << named;
}
