#include "photos/lists/list_name.h"

#include <gtest/gtest.h>

TEST(list_name, quotes_umlauts_emoji_and_leading_blanks_are_names)
{
    for (const char * name : {"Summer", "\"Oma\" & 'Opa'", "M\xC3\xBCller", "\xF0\x9F\x8C\x8A", "  late", ".",
                              "..", "a.b.pls", "%s"})
        EXPECT_EQ(list_name_fault(name), "") << name;
}

TEST(list_name, a_separator_would_leave_the_folder)
{
    for (const char * name : {"a/b", "../x", "/etc/x", "a\\b", "..\\x"})
        EXPECT_EQ(list_name_fault(name), "The name of a photo list can't have a \"/\" or a \"\\\" in it.")
            << name;
}

TEST(list_name, control_characters_are_refused)
{
    for (const char * name : {"a\nb", "a\tb", "\x7F"})
        EXPECT_EQ(list_name_fault(name), "The name of a photo list can't have a line break or a tab in it.");
}

TEST(list_name, two_hundred_letters_are_a_name_and_two_hundred_emoji_are_too_long)
{
    std::string letters(200, 'x'), emoji;
    for (int i = 0; i < 200; ++i)
        emoji += "\xF0\x9F\x8C\x8A";
    EXPECT_EQ(list_name_fault(letters), "");
    EXPECT_EQ(list_name_fault(emoji), "That name is too long for a photo list.");
    EXPECT_EQ(list_name_fault(std::string(246, 'x')), "");
    EXPECT_NE(list_name_fault(std::string(247, 'x')), "");
}

TEST(list_name, the_session_s_own_lists_can_t_be_named)
{
    for (const char * name : {"last_photos", "_work_file", "__last__", "LAST_photos"})
        EXPECT_EQ(list_name_fault(name),
                  "The name \"" + std::string(name) + "\" is used by the program itself.");
}

TEST(list_name, saved_lists_are_pls_files_but_for_the_reserved_one)
{
    for (const char * name : {"a.pls", "b.PLS", ".pls", "last_photos.pls"})
        EXPECT_TRUE(is_saved_list(name)) << name;
    for (const char * name : {"a.txt", "a.pls.part", "pls", "__last__.pls"})
        EXPECT_FALSE(is_saved_list(name)) << name;
}
