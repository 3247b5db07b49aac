#include "designs/catalogue/design_name.h"

#include <gtest/gtest.h>

TEST(is_one_line, takes_letters_of_every_script_and_no_control_character)
{
    for (const char * text :
         {"", "My own", "Bl\xC3\xA4tter \xE2\x80\x93 2", "\xC2\xA0", "\xFF Latin", "\xC2"})
        EXPECT_TRUE(is_one_line(text)) << text;
    for (const char * text :
         {"a\nb", "a\r", "\ta", "a\x01", "\x7F", "a\xC2\x85", "a\xE2\x80\xA8z", "\xE2\x80\xA9"})
        EXPECT_FALSE(is_one_line(text)) << text;
    EXPECT_FALSE(is_one_line(std::string_view("a\0b", 3)));
}

TEST(told_apart, gives_the_number_to_names_that_stand_more_than_once)
{
    std::string shown;
    for (const listed_design & design : told_apart({{.section = "Design600", .name = "Heart"},
                                                    {.section = "Design601", .name = "heart"},
                                                    {.section = "Design602", .name = "Heart"},
                                                    {.section = "Designs", .name = "heart"},
                                                    {.section = "[odd", .name = "heart"},
                                                    {.section = "Design700", .name = "Star"}}))
        shown += design.shown + "\n";
    EXPECT_EQ(shown, "Heart (600)\nheart (601)\nHeart (602)\nheart (s)\nheart ([odd)\nStar\n");
}
