#include "engine/pixels/rotation_numbers.h"

#include "support/platform_error.h"

#include <gtest/gtest.h>

TEST(rotation_numbers, keep_multiples_of_five_and_spoil_some_of_the_others)
{
    EXPECT_EQ(rounded_rotation(-15), -15);
    EXPECT_EQ(rounded_rotation(90), 90);
    EXPECT_EQ(rounded_rotation(0), 0);
    EXPECT_EQ(rounded_rotation(7), 7);
    EXPECT_EQ(rounded_rotation(8), 13);
    EXPECT_EQ(rounded_rotation(-9), -14);
}

TEST(rotation_numbers, name_a_section_by_the_longer_side_and_two_digits)
{
    EXPECT_EQ(rotation_section(300, 200, 5), "L05");
    EXPECT_EQ(rotation_section(200, 300, 10), "P10");
    EXPECT_EQ(rotation_section(300, 200, -15), "L-15");
    EXPECT_EQ(rotation_section(200, 300, -5), "P-05");
    EXPECT_EQ(rotation_section(250, 250, 45), "P45");
}

TEST(rotation_numbers, are_made_for_450_by_300_pixels_and_grow_with_the_larger_excess)
{
    EXPECT_EQ(reference_factor(450, 300), 1);
    EXPECT_EQ(reference_factor(200, 100), 1);
    EXPECT_EQ(reference_factor(900, 300), 2);
    EXPECT_EQ(reference_factor(500, 450), 1.5);
    EXPECT_EQ(reference_factor(600, 450), 1.5);
    EXPECT_EQ(reference_factor(300, 900), 2);
    EXPECT_EQ(reference_factor(300, 300), 1);
}

TEST(rotation_numbers, are_divided_in_a_preview_by_the_sum_of_both_sides)
{
    const std::pair<int, int> rows[] = {{211, 2}, {210, 3}, {181, 3}, {180, 4}, {121, 4}, {120, 5}, {20, 5}};
    for (const auto & [sides, divisor] : rows)
        EXPECT_EQ(preview_divisor(sides - 10, 10), divisor) << sides;
}

TEST(rotation_numbers, are_rounded_after_the_factor_and_after_the_divisor_with_ties_to_even)
{
    rotation_numbers numbers;
    numbers.grab_left = 5;
    numbers.put_top = 7;
    const rotation_numbers full = scaled(numbers, 1.5, 1);
    EXPECT_EQ(full.grab_left, 8);  // 7.5
    EXPECT_EQ(full.put_top, 10);   // 10.5
    const rotation_numbers preview = scaled(numbers, 1.5, 4);
    EXPECT_EQ(preview.grab_left, 2);
    EXPECT_EQ(preview.put_top, 2);  // 2.5
    EXPECT_EQ(preview.copy_right, 0);
}

TEST(rotation_numbers, give_a_thinner_frame_below_ten_degrees_and_so_to_every_turn_to_the_left)
{
    EXPECT_EQ(frame_in_rotation(13, 10), 13);
    EXPECT_EQ(frame_in_rotation(13, 5), 12);
    EXPECT_EQ(frame_in_rotation(13, -40), 12);
    EXPECT_EQ(frame_in_rotation(0, 15), 0);
    EXPECT_EQ(frame_in_rotation(0, 5), -1);
    EXPECT_EQ(frame_in_rotation(-4, 15), 0);
}

TEST(evolved, turns_a_location_that_the_photo_lies_across)
{
    const rectangle wide{.left = 50, .top = 100, .width = 300, .height = 200};
    EXPECT_EQ(evolved(wide, {.width = 60, .height = 90}),
              (rectangle{.left = 100, .top = 25, .width = 200, .height = 300}));
    const rectangle high{.left = 50, .top = 100, .width = 200, .height = 300};
    EXPECT_EQ(evolved(high, {.width = 90, .height = 60}),
              (rectangle{.left = -25, .top = 150, .width = 300, .height = 200}));
}

TEST(evolved, rounds_the_quarter_of_a_side_to_even)
{
    const rectangle wide{.left = 50, .top = 100, .width = 310, .height = 202};  // 77.5 and 50.5
    EXPECT_EQ(evolved(wide, {.width = 1, .height = 2}),
              (rectangle{.left = 100, .top = 22, .width = 202, .height = 310}));
}

TEST(evolved, leaves_a_location_that_the_photo_fits_and_square_photos_alone)
{
    const rectangle wide{.left = 50, .top = 100, .width = 300, .height = 200};
    EXPECT_EQ(evolved(wide, {.width = 90, .height = 60}), wide);
    EXPECT_EQ(evolved(wide, {.width = 90, .height = 90}), wide);
    const rectangle square{.left = 50, .top = 100, .width = 200, .height = 200};
    EXPECT_EQ(evolved(square, {.width = 60, .height = 90}), square);
    EXPECT_EQ(evolved(square, {.width = 90, .height = 60}),
              (rectangle{.left = 0, .top = 150, .width = 200, .height = 200}));
}

TEST(evolved, overflows_beyond_16_bits)
{
    const rectangle high{.left = 0, .top = 32760, .width = 200, .height = 300};
    EXPECT_THROW(evolved(high, {.width = 90, .height = 60}), platform_error);
}
