#include "engine/pixels/card.h"

#include <gtest/gtest.h>

TEST(photo_on_card, has_the_room_at_the_right_of_a_wide_card)
{
    // 190 / 19 is 10.
    EXPECT_EQ(photo_on_card(300, 190), (rectangle{.left = 10, .top = 10, .width = 240, .height = 170}));
}

TEST(photo_on_card, has_the_room_below_on_an_upright_or_square_card)
{
    EXPECT_EQ(photo_on_card(190, 300), (rectangle{.left = 10, .top = 10, .width = 170, .height = 220}));
    EXPECT_EQ(photo_on_card(190, 190), (rectangle{.left = 10, .top = 10, .width = 170, .height = 132}));
}

TEST(photo_on_card, rounds_margin_and_height_to_the_nearest_pixel)
{
    EXPECT_EQ(photo_on_card(9, 22).left, 0);       // 9 / 19
    EXPECT_EQ(photo_on_card(10, 22).left, 1);      // 10 / 19
    EXPECT_EQ(photo_on_card(95, 101).height, 71);  // 101 - (20.2 + 10)
    EXPECT_EQ(photo_on_card(19, 23).height, 16);   // 23 - (4.6 + 2)
}
