#include "support/letter_case.h"

#include <gtest/gtest.h>

TEST(upper_case, raises_the_letters_of_utf_8)
{
    EXPECT_EQ(upper_case("abc xyz 123 [{"), "ABC XYZ 123 [{");
    EXPECT_EQ(upper_case("\u00E4\u00F6\u00FC\u00E9\u00FE \u00F7\u00DF\u00FF"),
              "\u00C4\u00D6\u00DC\u00C9\u00DE \u00F7\u00DF\u00FF");
    EXPECT_EQ(upper_case("\u0101\u0133\u013A\u0148\u014B\u0177\u017A\u017E"),
              "\u0100\u0132\u0139\u0147\u014A\u0176\u0179\u017D");
    EXPECT_EQ(upper_case("\u03B1\u03C9\u03C2 \u0436\u0451"), "\u0391\u03A9\u03C2 \u0416\u0401");
}

TEST(upper_case, leaves_capitals_and_letters_without_one)
{
    EXPECT_EQ(upper_case("\u00C4\u0100\u0139\u0391\u0416 \u0138\u0149"),
              "\u00C4\u0100\u0139\u0391\u0416 \u0138\u0149");
    EXPECT_EQ(upper_case("\u65E5\u672C \U0001F30A"), "\u65E5\u672C \U0001F30A");
}

TEST(upper_case, leaves_bytes_that_are_no_letters)
{
    EXPECT_EQ(upper_case("\xC3"), "\xC3");
    EXPECT_EQ(upper_case("\xE4\x62"), "\xE4\x42");
}
