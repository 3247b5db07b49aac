#include "photos/image_file.h"

#include <gtest/gtest.h>

TEST(image_file, the_ending_gives_the_library_s_code_and_the_rest_the_base)
{
    struct row {
        const char * path;
        int format;
        const char * base;
    };
    for (const row & each :
         {row{"/p/a.jpg", 2, "/p/a"}, row{"/p/a.JPEG", 2, "/p/a"}, row{"/p/a.gif", 25, "/p/a"},
          row{"/p/a.Png", 13, "/p/a"}, row{"/p/a.ico", 1, "/p/a"}, row{"/p/a.tiff", 18, "/p/a"},
          row{"x.jpg", 2, "x"}, row{"a.b.jpg", 2, "a.b"}}) {
        EXPECT_EQ(image_file_of(each.path).format, each.format) << each.path;
        EXPECT_EQ(image_file_of(each.path).base, each.base) << each.path;
    }
}

TEST(image_file, other_endings_and_short_paths_have_none)
{
    for (const char * path : {"/p/a.bmp", "/p/a.tif", "/p/a", "/p/jpg", ".jpg", "", "/p/a.jpg.txt"}) {
        EXPECT_EQ(image_file_of(path).format, -1) << path;
        EXPECT_EQ(image_file_of(path).base, "") << path;
    }
}
