#include "photos/lists/pls_line.h"

#include <gtest/gtest.h>

TEST(pls_line, readers_pass_over_the_first_two_characters_whatever_they_are)
{
    EXPECT_EQ(photo_of_line("L /x/a.jpg"), "/x/a.jpg");
    EXPECT_EQ(photo_of_line("P /x/a b.jpg"), "/x/a b.jpg");
    EXPECT_EQ(photo_of_line("X-/x/a.jpg "), "/x/a.jpg ");
}

TEST(pls_line, a_short_line_has_an_empty_path)
{
    for (const char * line : {"", "L", "L "})
        EXPECT_EQ(photo_of_line(line), "");
}

TEST(pls_line, only_a_portrait_is_written_as_one)
{
    EXPECT_EQ(list_line(orientation::portrait, "/a.jpg"), "P /a.jpg");
    EXPECT_EQ(list_line(orientation::landscape, "/a.jpg"), "L /a.jpg");
    EXPECT_EQ(list_line(std::nullopt, "/a.jpg"), "L /a.jpg");
}
