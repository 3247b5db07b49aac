#include "intake/picture_kind.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

picture_kind kind(std::string_view head, std::string_view name = "photo")
{
    return kind_of(bytes_of_text(head), name);
}

}  // namespace

TEST(picture_kind, is_told_by_the_first_bytes_whatever_the_name)
{
    EXPECT_EQ(kind("\xFF\xD8\xFF\xE0", "a.heic"), picture_kind::jpeg);
    EXPECT_EQ(kind("\x89PNG\r\n\x1A\n"), picture_kind::png);
    EXPECT_EQ(kind("GIF89a"), picture_kind::gif);
    EXPECT_EQ(kind("GIF87a"), picture_kind::gif);
    EXPECT_EQ(kind("RIFF____WEBPVP8 "), picture_kind::webp);
    EXPECT_EQ(kind("RIFF____WAVE"), picture_kind::none);
    EXPECT_EQ(kind("II*\0____"sv, "a.jpg"), picture_kind::tiff);
    EXPECT_EQ(kind("MM\0*____"sv), picture_kind::tiff);
    EXPECT_EQ(kind("BM________________________"), picture_kind::none);
    EXPECT_EQ(kind("BM_________________________"), picture_kind::bmp);
    EXPECT_EQ(kind("<html>", "a.jpg"), picture_kind::none);
    EXPECT_EQ(kind("", "a.jpg"), picture_kind::none);
}

TEST(picture_kind, knows_pictures_among_the_files_of_boxes)
{
    EXPECT_EQ(kind("\0\0\0\x18"
                   "ftypheic\0\0\0\0mif1heic"sv),
              picture_kind::heif);
    EXPECT_EQ(kind("\0\0\0\x1C"
                   "ftypavif\0\0\0\0mif1avif"sv),
              picture_kind::heif);
    EXPECT_EQ(kind("\0\0\0\x18"
                   "ftypunif\0\0\0\0mif1unif"sv),
              picture_kind::heif);
    EXPECT_EQ(kind("\0\0\0\x18"
                   "ftypcrx \0\0\0\1crx isom"sv),
              picture_kind::raw);
    EXPECT_EQ(kind("\0\0\0\x18"
                   "ftypqt  \0\0\0\0qt  mp42"sv),
              picture_kind::none);
    EXPECT_EQ(kind("\0\0\0\x10"
                   "ftypisom\0\0\0\0mif1"sv),
              picture_kind::none);
}

TEST(picture_kind, takes_raw_files_that_begin_as_others_do_by_their_names)
{
    EXPECT_EQ(kind("II*\0____"sv, "DSC_1.NEF"), picture_kind::raw);
    EXPECT_EQ(kind("II*\0\x10\0\0\0CR\2\0"sv), picture_kind::raw);
    EXPECT_EQ(kind("FUJIFILMCCD-RAW"), picture_kind::raw);
}

TEST(picture_kind, has_a_word_for_each)
{
    for (int i = 0; i <= static_cast<int>(picture_kind::raw); ++i)
        EXPECT_EQ(kind_of_word(word_of(static_cast<picture_kind>(i))), static_cast<picture_kind>(i));
    EXPECT_FALSE(kind_of_word("pdf"));
}

TEST(picture_kind, knows_the_names_of_pictures)
{
    for (const char * name : {"a.jpg", "a.JPEG", "IMG_1.HEIC", "b.Avif", "c.dng", "d.webp"})
        EXPECT_TRUE(has_picture_name(name)) << name;
    for (const char * name : {"a.mov", "jpg", "list.pls", "a.jpg.txt"})
        EXPECT_FALSE(has_picture_name(name)) << name;
}
