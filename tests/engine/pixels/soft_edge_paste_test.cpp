#include "engine/pixels/soft_edge_paste.h"

#include "engine/pixels/soft_classes.h"
#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

TEST(soft_classes, change_at_120_200_and_270)
{
    EXPECT_EQ(soft_class_of(1), (soft_class{5, 50.0}));
    EXPECT_EQ(soft_class_of(119), (soft_class{5, 50.0}));
    EXPECT_EQ(soft_class_of(120), (soft_class{17, 15.0}));
    EXPECT_EQ(soft_class_of(199), (soft_class{17, 15.0}));
    EXPECT_EQ(soft_class_of(200), (soft_class{50, 5.1}));
    EXPECT_EQ(soft_class_of(269), (soft_class{50, 5.1}));
    EXPECT_EQ(soft_class_of(270), (soft_class{80, 3.2}));
}

TEST(soft_edge_paste, fades_from_the_core_to_the_edge)
{
    bitmap target(60, 50);
    soft_edge_paste(target, plain(40, 30, {255, 255, 255}),
                    {.left = 10, .top = 10, .width = 40, .height = 30});
    std::string along_the_middle;
    for (int x = 9; x <= 17; ++x)
        along_the_middle += std::to_string(seen(target, x, 25).red) + ' ';
    // 255 times 5, 55, 105, 155, 205 of 256, rounded down, then the core.
    EXPECT_EQ(along_the_middle, "0 4 54 104 154 204 255 255 255 ");
    EXPECT_EQ(seen(target, 49, 25).red, 4);
    EXPECT_EQ(seen(target, 50, 25).red, 0);
    EXPECT_EQ(seen(target, 30, 10).red, 4);
    EXPECT_EQ(seen(target, 30, 39).red, 4);
    EXPECT_EQ(seen(target, 30, 40).red, 0);
}

TEST(soft_edge_paste, corners_fade_as_the_ring_they_belong_to)
{
    bitmap target(60, 50);
    soft_edge_paste(target, plain(40, 30, {255, 255, 255}),
                    {.left = 10, .top = 10, .width = 40, .height = 30});
    std::string from_the_corner;
    for (int i = 0; i <= 5; ++i)
        from_the_corner += std::to_string(seen(target, 10 + i, 10 + i).red) + ' ';
    EXPECT_EQ(from_the_corner, "4 54 104 154 204 255 ");
    EXPECT_EQ(seen(target, 49, 39).red, 4);
}

TEST(soft_edge_paste, lays_every_pixel_once_however_small_the_photo_is)
{
    for (const picture_size size :
         {picture_size{300, 280}, {40, 30}, {11, 12}, {10, 10}, {9, 30}, {30, 8}, {7, 6}, {5, 1}, {1, 1}}) {
        bitmap found(320, 320), expected(320, 320);
        const bitmap photo = graded(size.width, size.height);
        soft_edge_paste(found, photo, {.left = 3, .top = 4, .width = size.width, .height = size.height});
        soft_edge_by_pixel(expected, photo,
                           {.left = 3, .top = 4, .width = size.width, .height = size.height});
        EXPECT_TRUE(same(found, expected)) << size.width << " by " << size.height;
    }
}

TEST(soft_edge_paste, a_large_photo_has_no_line_at_its_edge)
{
    bitmap target(320, 320);
    soft_edge_paste(target, plain(300, 300, {255, 255, 255}),
                    {.left = 10, .top = 10, .width = 300, .height = 300});
    EXPECT_EQ(seen(target, 10, 160).red, 0);    // 255 - 80 * 3.2 is below 0
    EXPECT_EQ(seen(target, 11, 160).red, 1);    // 255 - 79 * 3.2 is 2.2
    EXPECT_EQ(seen(target, 89, 160).red, 251);  // 255 - 3.2 is 251.8
    EXPECT_EQ(seen(target, 90, 160).red, 255);
}

TEST(soft_edge_paste, rings_that_leave_the_canvas_are_left_out_strip_by_strip)
{
    bitmap target(60, 50);
    soft_edge_paste(target, plain(40, 30, {255, 255, 255}),
                    {.left = -1, .top = 10, .width = 40, .height = 30});
    EXPECT_EQ(seen(target, 20, 10).red, 4);
    EXPECT_EQ(seen(target, 0, 25).red, 54);
    EXPECT_EQ(seen(target, 38, 25).red, 4);
}

TEST(soft_edge_paste, a_photo_that_came_out_one_pixel_narrower_is_laid_all_the_same)
{
    bitmap found(200, 200), expected(200, 200);
    const rectangle place{.left = 20, .top = 20, .width = 100, .height = 100};
    soft_edge_paste(found, graded(99, 100), place);
    soft_edge_by_pixel(expected, graded(99, 100), place);
    EXPECT_TRUE(same(found, expected));
}

TEST(soft_edge_paste, without_a_photo_or_a_target_nothing_happens)
{
    bitmap target(60, 50), none;
    soft_edge_paste(target, {}, {.left = 10, .top = 10, .width = 40, .height = 30});
    EXPECT_TRUE(same(target, bitmap(60, 50)));
    soft_edge_paste(none, plain(40, 30, {255, 255, 255}), {.left = 10, .top = 10, .width = 40, .height = 30});
    EXPECT_FALSE(none);
}
