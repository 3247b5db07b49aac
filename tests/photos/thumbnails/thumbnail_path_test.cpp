#include "photos/thumbnails/thumbnail_path.h"

#include <gtest/gtest.h>

TEST(thumbnail_path, lies_in_a_folder_beside_the_photo)
{
    EXPECT_EQ(thumbnail_path("/x/a.jpg"), "/x/sample_thumbs/a.jpg");
    EXPECT_EQ(thumbnail_path("/a.jpg"), "/sample_thumbs/a.jpg");
    EXPECT_EQ(thumbnail_path("a.jpg"), "sample_thumbs/a.jpg");
    EXPECT_EQ(thumbnail_path("D:\\x\\a.jpg"), "D:\\x\\sample_thumbs/a.jpg");
}

TEST(thumbnail_path, is_told_by_either_separator_beyond_the_first_character)
{
    EXPECT_TRUE(is_thumbnail("/x/sample_thumbs/a.jpg"));
    EXPECT_TRUE(is_thumbnail("D:\\x\\sample_thumbs\\a.jpg"));
    EXPECT_TRUE(is_thumbnail("/x/sample_thumbs/y/a.jpg"));
    EXPECT_FALSE(is_thumbnail("/sample_thumbs/a.jpg"));
    EXPECT_FALSE(is_thumbnail("sample_thumbs/a.jpg"));
    EXPECT_FALSE(is_thumbnail("/x/sample_thumbs"));
    EXPECT_FALSE(is_thumbnail("/x/my_sample_thumbs/a.jpg"));
    EXPECT_FALSE(is_thumbnail("/x/sample_thumbs.old/a.jpg"));
    EXPECT_FALSE(is_thumbnail("/x/sample_thumbs_a.jpg"));
    EXPECT_FALSE(is_thumbnail(""));
}

TEST(thumbnail_path, leads_back_to_the_photo)
{
    for (const char * photo : {"/x/a.jpg", "/x/y z/b.JPG", "/x/sample_thumbs.old/a.jpg"})
        EXPECT_EQ(photo_path(thumbnail_path(photo)), photo);
    EXPECT_EQ(photo_path("D:\\x\\sample_thumbs\\a.jpg"), "D:\\x\\a.jpg");
    EXPECT_EQ(photo_path("/x/a.jpg"), "/x/a.jpg");
    EXPECT_EQ(photo_path(""), "");
}

TEST(thumbnail_path, only_the_last_folder_of_that_name_is_taken_out)
{
    EXPECT_EQ(photo_path("/x/sample_thumbs/y/sample_thumbs/a.jpg"), "/x/sample_thumbs/y/a.jpg");
    EXPECT_EQ(photo_path("/x/sample_thumbs/my_sample_thumbs/a.jpg"), "/x/my_sample_thumbs/a.jpg");
}
