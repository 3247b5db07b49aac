#include "engine/pixels/resize_image.h"

#include "support/platform_error.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

/// One colour a row.
bitmap striped_down(int width, int height)
{
    return colored(width, height, [](int, int y) {
        return rgb_triple{static_cast<std::uint8_t>(y % 256), static_cast<std::uint8_t>(y / 256), 0};
    });
}

}  // namespace

TEST(resize_image, cuts_nothing_when_the_proportions_agree)
{
    const bitmap photo = graded(120, 80);
    EXPECT_TRUE(same(resize_image(photo, 60, 40), rescaled(photo, 60, 40)));
    EXPECT_TRUE(same(resize_image(photo, 120, 80), photo));
}

TEST(resize_image, a_square_photo_in_a_wide_target_keeps_the_middle_rows)
{
    const bitmap photo = striped_down(1000, 1000);
    const bitmap expected = copied(rescaled(photo, 300, 300), 0, 50, 300, 250);
    ASSERT_TRUE(expected);
    EXPECT_TRUE(same(resize_image(photo, 300, 200), expected));
}

TEST(resize_image, a_wide_photo_in_a_tall_target_keeps_the_middle_columns)
{
    const bitmap photo = graded(300, 200);
    const bitmap expected = copied(rescaled(photo, 300, 200), 100, 0, 200, 200);
    EXPECT_TRUE(same(resize_image(photo, 100, 200), expected));
}

TEST(resize_image, a_tall_photo_in_a_wide_target_is_as_wide_as_the_target)
{
    const bitmap photo = graded(200, 300);
    const bitmap expected = copied(rescaled(photo, 100, 150), 0, 50, 100, 100);
    EXPECT_TRUE(same(resize_image(photo, 100, 50), expected));
}

TEST(resize_image, half_a_pixel_of_excess_is_cut_by_ties_to_even)
{
    const bitmap photo = graded(100, 103);
    // Of 1 too many 0.5 becomes 0, of 3 too many 1.5 becomes 2.
    EXPECT_TRUE(same(resize_image(photo, 100, 102), copied(photo, 0, 0, 100, 102)));
    EXPECT_TRUE(same(resize_image(photo, 100, 100), copied(photo, 0, 2, 100, 102)));
}

TEST(resize_image, the_result_has_the_size_of_the_target)
{
    for (const picture_size photo :
         {picture_size{640, 427}, {427, 640}, {333, 333}, {1, 50}, {50, 1}, {7, 3}})
        for (const picture_size target : {picture_size{450, 300}, {300, 450}, {99, 100}, {1, 1}, {17, 5}}) {
            const bitmap result =
                resize_image(bitmap(photo.width, photo.height), target.width, target.height);
            EXPECT_EQ(result.width(), target.width) << photo.width << " for " << target.width;
            EXPECT_EQ(result.height(), target.height) << photo.height << " for " << target.height;
        }
}

TEST(resize_image, gives_nothing_for_nothing)
{
    EXPECT_FALSE(resize_image({}, 30, 20));
    EXPECT_FALSE(resize_image(graded(30, 20), 0, 0));
    EXPECT_FALSE(resize_image(graded(30, 20), 0, 10));
    EXPECT_FALSE(resize_image(graded(30, 20), 10, 0));
    EXPECT_FALSE(resize_image(graded(30, 20), -5, -9));
}

TEST(resize_image, a_side_beyond_16_bits_is_an_overflow)
{
    try {
        resize_image(bitmap(2000, 1), 50, 50);
        FAIL() << "no overflow";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.number, error_number::overflow);
    }
}
