#include "support/color_profile.h"

#include "intake/color_profile.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

TEST(color_profile, is_taken_for_srgb_by_the_intake)
{
    const std::string_view profile = srgb_profile();
    EXPECT_TRUE(is_srgb(std::vector<std::uint8_t>(profile.begin(), profile.end())));
    EXPECT_LT(profile.size(), 1000U);
}

TEST(color_profile, tells_no_day_on_which_it_was_made)
{
    // Year, month, day, hour, minute and second, two bytes each.
    EXPECT_EQ(std::string(srgb_profile().substr(24, 12)), std::string("\x07\xd0\0\1\0\1\0\0\0\0\0\0", 12));
}
