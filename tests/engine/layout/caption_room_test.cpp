#include "engine/layout/caption_room.h"

#include "support/platform_error.h"
#include "tests/engine/layout/measures.h"

#include <gtest/gtest.h>

namespace {

location roomy(const room_setting & setting, run_size size)
{
    return bent({.top = 1000, .left = 1000, .height = 1000, .width = 1000}, location_role::place,
                caption_room_bend(setting, size));
}

}  // namespace

TEST(mirrored, an_upright_location_lands_at_the_same_distance_from_the_other_side)
{
    const location place = mirrored({.top = 50, .left = 100, .height = 300, .width = 500}, 2000);
    EXPECT_EQ(place.left, 1400);
    EXPECT_EQ(place.top, 50);
}

TEST(mirrored, a_strong_turn_counts_a_third_of_the_side)
{
    // 67 x 67 / 67 leaves 33 percent: 2000 - (100 + 165)
    const location place = mirrored({.left = 100, .width = 500, .rotation = 67}, 2000);
    EXPECT_EQ(place.left, 1735);
    EXPECT_EQ(place.rotation, -67);
}

TEST(mirrored, the_top_follows_the_turn)
{
    const location place = mirrored({.top = 100, .left = 0, .width = 500, .rotation = 10}, 2000);
    EXPECT_EQ(place.top, 180);  // 10 x 1.6 x 500 / 100
}

TEST(mirrored, a_rotation_whose_square_leaves_16_bits_is_an_overflow)
{
    EXPECT_NO_THROW(mirrored({.rotation = 181}, 2000));
    EXPECT_THROW(mirrored({.rotation = 182}, 2000), platform_error);
}

TEST(flipped, an_upright_location_lands_at_the_same_distance_from_the_other_end)
{
    const location place = flipped({.top = 100, .left = 70, .height = 500, .width = 300}, 3000);
    EXPECT_EQ(place.top, 2400);
    EXPECT_EQ(place.left, 70);
}

TEST(flipped, the_left_goes_against_the_turn)
{
    const location place = flipped({.top = 0, .left = 100, .height = 400, .rotation = 10}, 3000);
    EXPECT_EQ(place.left, 30);  // 100 - 10 x 1.75 x 400 / 100
    EXPECT_EQ(place.rotation, -10);
}

TEST(caption_room, upright_table_at_full_size)
{
    EXPECT_EQ(roomy({.block = true, .at_bottom = true}, run_size::full), measures(900, 1000, 850, 950));
    EXPECT_EQ(roomy({.at_bottom = true}, run_size::full), measures(900, 1000, 920, 950));
    EXPECT_EQ(roomy({.square = true}, run_size::full), measures(1100, 1000, 920, 950));
    EXPECT_EQ(roomy({.at_bottom = true, .square = true}, run_size::full), measures(900, 1000, 920, 950));
    EXPECT_EQ(roomy({}, run_size::full), measures(1250, 1000, 920, 950));
}

TEST(caption_room, upright_table_in_a_preview)
{
    EXPECT_EQ(roomy({.at_bottom = true}, run_size::preview), measures(857, 957, 920, 950));
    EXPECT_EQ(roomy({.square = true}, run_size::preview), measures(885, 957, 920, 950));
    EXPECT_EQ(roomy({}, run_size::preview), measures(905, 957, 920, 950));
}

TEST(caption_room, the_table_before_a_turn_moves_the_left)
{
    EXPECT_EQ(roomy({.turned_afterwards = true, .block = true, .at_bottom = true}, run_size::full),
              measures(1040, 850, 920, 800));
    EXPECT_EQ(roomy({.turned_afterwards = true}, run_size::full), measures(1040, 1150, 920, 880));
    EXPECT_EQ(roomy({.turned_afterwards = true, .at_bottom = true}, run_size::preview),
              measures(945, 810, 920, 880));
    EXPECT_EQ(roomy({.turned_afterwards = true}, run_size::preview), measures(945, 855, 920, 880));
}
