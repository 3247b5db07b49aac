#include "engine/pixels/background_fit.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

TEST(background_fit, a_blend_below_5_is_nothing_above_95_the_picture_alone)
{
    EXPECT_EQ(blend_alpha(0), 0);
    EXPECT_EQ(blend_alpha(4), 0);
    EXPECT_EQ(blend_alpha(5), 13);
    EXPECT_EQ(blend_alpha(50), 128);
    EXPECT_EQ(blend_alpha(95), 243);
    EXPECT_EQ(blend_alpha(96), plain_copy);
    EXPECT_EQ(blend_alpha(100), plain_copy);
}

TEST(background_fit, a_preview_picture_leads_to_the_full_size_one)
{
    EXPECT_EQ(full_size_picture("/opt/t/images/preview/sea/p_waves.jpg"), "/opt/t/images/sea/waves.jpg");
    EXPECT_EQ(full_size_picture("C:\\t\\images\\preview\\sea/p_waves.jpg"), "C:\\t\\images\\sea/waves.jpg");
    EXPECT_EQ(full_size_picture("/opt/t/images/preview/p_waves.jpg"), "/opt/t/images/waves.jpg");
    EXPECT_EQ(full_size_picture("/opt/t/images/preview/waves.jpg"), "/opt/t/images/waves.jpg");
}

TEST(background_fit, other_pictures_keep_their_names)
{
    for (const char * path : {"/home/u/p_sea.jpg", "/home/u/previews/p_sea.jpg", "preview/p_sea.jpg", ""})
        EXPECT_EQ(full_size_picture(path), path);
}

TEST(background_fit, a_design_picture_in_a_folder_has_a_small_one)
{
    EXPECT_EQ(preview_picture("sea/waves.jpg"), "images/preview/sea/p_waves.jpg");
    EXPECT_EQ(preview_picture("waves.jpg"), "images/waves.jpg");
}

TEST(background_fit, full_and_small_names_are_each_others_way_back)
{
    EXPECT_EQ(full_size_picture("/opt/" + preview_picture("sea/waves.jpg")), "/opt/images/sea/waves.jpg");
}

TEST(background_fit, the_longer_side_is_cut_evenly)
{
    const bitmap picture = graded(101, 60);
    EXPECT_TRUE(same(squared(picture), copied(picture, 20, 0, 80, 60)));  // 20.5, to even
    const bitmap high = graded(40, 63);
    EXPECT_TRUE(same(squared(high), copied(high, 0, 12, 40, 52)));  // 11.5, to even
    EXPECT_TRUE(same(squared(graded(30, 30)), graded(30, 30)));
}

TEST(background_fit, a_preview_picture_has_fixed_sizes)
{
    const bitmap wide = graded(200, 100), high = graded(100, 200), even = graded(100, 100);
    const auto scaled = [](const bitmap & image, poster_shape shape) {
        const picture_size size =
            preview_background_size({.width = image.width(), .height = image.height()}, shape);
        return preview_background(rescaled(image, size.width, size.height), shape);
    };
    EXPECT_TRUE(same(scaled(wide, poster_shape::portrait), rescaled(wide, 300, 450)));
    EXPECT_TRUE(same(scaled(high, poster_shape::landscape), rescaled(high, 450, 300)));
    EXPECT_TRUE(same(scaled(wide, poster_shape::square), copied(rescaled(wide, 450, 300), 112, 0, 412, 300)));
    EXPECT_TRUE(same(scaled(high, poster_shape::square), copied(rescaled(high, 300, 450), 0, 112, 300, 412)));
    EXPECT_TRUE(same(scaled(even, poster_shape::square), rescaled(even, 300, 300)));
}

TEST(background_fit, a_picture_goes_on_to_the_edges_of_a_larger_preview)
{
    const bitmap image = graded(30, 40), larger = continued(image, 33, 42);
    EXPECT_EQ(larger.width(), 33);
    EXPECT_EQ(larger.height(), 42);
    EXPECT_TRUE(same(copied(larger, 0, 0, 30, 40), image));
    for (int left = 30; left < 33; ++left)
        EXPECT_TRUE(same(copied(larger, left, 0, left + 1, 40), copied(image, 59 - left, 0, 60 - left, 40)));
    for (int top = 40; top < 42; ++top)
        EXPECT_TRUE(same(copied(larger, 0, top, 33, top + 1), copied(larger, 0, 79 - top, 33, 80 - top)));
    EXPECT_TRUE(same(continued(image, 20, 40), image)) << "a smaller preview is the canvas's affair";
}

TEST(background_fit, no_picture_stays_none)
{
    EXPECT_FALSE(squared({}));
    EXPECT_FALSE(preview_background({}, poster_shape::portrait));
    EXPECT_FALSE(preview_background({}, poster_shape::square));
}
