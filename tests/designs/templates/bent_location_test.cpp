#include "designs/templates/bent_location.h"

#include "support/platform_error.h"

#include <gtest/gtest.h>

TEST(turned, an_upright_place_swaps_its_sides_and_moves_its_corner)
{
    const location place{
        .top = 100, .left = 200, .height = 300, .width = 400, .frame = 4, .spare = 2, .file = "a"};
    EXPECT_EQ(
        turned(place, 3000),
        (location{
            .top = 200, .left = 2600, .height = 400, .width = 300, .frame = 4, .spare = 2, .file = "a"}));
    EXPECT_EQ(turned(place, 435).left, 35);
}

TEST(turned, a_slanted_place_moves_by_its_height_times_the_angle)
{
    const location place{.top = 0, .left = 200, .height = 300, .width = 400, .rotation = 15};
    EXPECT_EQ(turned(place, 3000).top, 122);  // 200 - 78.3
    const location other{.top = 0, .left = 200, .height = 300, .width = 400, .rotation = -15};
    EXPECT_EQ(turned(other, 3000).top, 278);
}

TEST(turned, height_times_angle_overflows_16_bits_although_the_result_would_fit)
{
    const location place{.height = 2185, .rotation = 15};  // 32775
    EXPECT_THROW(turned(place, 3000), platform_error);
    const location fitting{.height = 2184, .rotation = 15};  // 32760
    EXPECT_EQ(turned(fitting, 3000).top, -570);
}

TEST(stretched, a_tall_poster_loses_height_and_gains_width)
{
    const location poster{.top = 100, .left = 100, .height = 3000, .width = 2000, .rotation = 5};
    EXPECT_EQ(stretched(poster, tall_stretch),
              (location{.top = 93, .left = 105, .height = 2799, .width = 2100, .rotation = 5}));
    EXPECT_EQ(stretched(poster, wide_stretch),
              (location{.top = 105, .left = 93, .height = 3150, .width = 1866, .rotation = 5}));
}

TEST(stretched, halves_go_to_even)
{
    EXPECT_EQ(stretched({.left = 10, .width = 30}, tall_stretch).left, 10);   // 10.5
    EXPECT_EQ(stretched({.left = 10, .width = 30}, tall_stretch).width, 32);  // 31.5
}

TEST(stretched, the_corner_alone_leaves_the_sides)
{
    EXPECT_EQ(corner_stretched({.top = 100, .left = 100, .height = 7, .width = 5}, tall_stretch),
              (location{.top = 93, .left = 105, .height = 7, .width = 5}));
}
