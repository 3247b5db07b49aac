#include "support/jpeg_end.h"

#include "support/files/text_file.h"
#include "tests/jpeg_files.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

struct jpeg_end : testing::Test {
    temporary_folder folder;

    bool is_cut(const std::string & bytes) const { return is_cut_short(folder.write("a.jpg", bytes)); }
};

}  // namespace

TEST_F(jpeg_end, a_file_that_breaks_off_is_cut_short_of_whatever_kind)
{
    for (const jpeg_coding coding :
         {jpeg_coding::plain, jpeg_coding::best_tables, jpeg_coding::progressive, jpeg_coding::a_scan_each})
        for (const jpeg_colors colors : {jpeg_colors::grey, jpeg_colors::ycc, jpeg_colors::cmyk}) {
            const std::string whole = jpeg_of({.colors = colors, .coding = coding}, 400, 300);
            EXPECT_FALSE(is_cut(whole));
            EXPECT_TRUE(is_cut(whole.substr(0, whole.size() * 2 / 3)));
            EXPECT_TRUE(is_cut(whole.substr(0, whole.size() - 200)));
        }
}

TEST_F(jpeg_end, one_that_breaks_off_before_its_first_pixel_is_cut_short)
{
    const std::string whole = jpeg_of({}, 400, 300);
    for (const std::size_t bytes : {2U, 10U, 20U, 100U, 300U})
        EXPECT_TRUE(is_cut(whole.substr(0, bytes))) << bytes;
}

TEST_F(jpeg_end, what_has_all_its_pixels_is_whole)
{
    const std::string whole = jpeg_of({}, 400, 300);
    EXPECT_FALSE(is_cut(whole.substr(0, whole.size() - 2))) << "without the mark of its end";
    EXPECT_FALSE(is_cut(whole + "what a camera has written behind it"));
    EXPECT_FALSE(is_cut(jpeg_of({.restart = 4}, 64, 64)));
}

TEST_F(jpeg_end, what_is_no_picture_or_damaged_elsewhere_is_not_cut_short)
{
    EXPECT_FALSE(is_cut(""));
    EXPECT_FALSE(is_cut("a text"));
    EXPECT_FALSE(is_cut("x"));
    EXPECT_FALSE(is_cut_short(folder.at("none.jpg")));
    EXPECT_FALSE(is_cut_short(folder.path()));
}
