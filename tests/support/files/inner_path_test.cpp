#include "support/files/inner_path.h"

#include <gtest/gtest.h>

TEST(inner_path, takes_separators_of_either_kind)
{
    EXPECT_EQ(inner_path("designs\\heart"), "designs/heart");
    EXPECT_EQ(inner_path("frames/my set\\captions"), "frames/my set/captions");
    EXPECT_EQ(inner_path("a"), "a");
    EXPECT_EQ(inner_path("M\xC3\xBCller's .design"), "M\xC3\xBCller's .design");
    EXPECT_EQ(inner_path("1/2/3/4/5/6/7/8"), "1/2/3/4/5/6/7/8");
}

TEST(inner_path, refuses_what_could_lead_elsewhere)
{
    for (const char * text : {"",          "/",
                              "\\",        "/a",
                              "\\a",       "\\\\server\\share",
                              "a/",        "a//b",
                              ".",         "..",
                              "./a",       "a/.",
                              "a/..",      "../a",
                              "a/../../b", "..\\a",
                              "C:",        "C:a",
                              "C:\\a",     "a:stream",
                              "a/b ",      "a./b",
                              "a /b",      "...",
                              "a\tb",      "a\nb",
                              "a*",        "a?",
                              "a\"b",      "<a",
                              "a>",        "a|b",
                              "\x7F",      "1/2/3/4/5/6/7/8/9"})
        EXPECT_EQ(inner_path(text), std::nullopt) << text;
    EXPECT_EQ(inner_path(std::string("a\0b", 3)), std::nullopt);
    EXPECT_EQ(inner_path(std::string(201, 'x')), std::nullopt);
}

TEST(inner_path, refuses_the_names_of_devices_with_any_ending)
{
    for (const char * name : {"con", "CON", "nul.txt", "Aux.tar.gz", "prn", "com1", "LPT9.x", "com0",
                              "conin$", "CONOUT$", "com\xC2\xB2", "nul .txt"})
        EXPECT_FALSE(is_plain_name(name)) << name;
    for (const char * name : {"console", "com", "com10", "lpt", "auxiliary", "xcon", "nul_", "com\xC2\xB5"})
        EXPECT_TRUE(is_plain_name(name)) << name;
}

TEST(shown_in_message, keeps_a_message_in_one_line)
{
    EXPECT_EQ(shown_in_message("a\r\nb\tc\x7F"), "a??b?c?");
    EXPECT_EQ(shown_in_message(std::string(500, 'x')).size(), 120U);
}
