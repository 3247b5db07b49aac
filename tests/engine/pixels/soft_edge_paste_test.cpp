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

TEST(soft_edge_paste, corners_belong_to_two_strips)
{
    bitmap target(60, 50);
    soft_edge_paste(target, plain(40, 30, {255, 255, 255}),
                    {.left = 10, .top = 10, .width = 40, .height = 30});
    // 4, then 4 + (255 - 4) * 5 / 256.
    EXPECT_EQ(seen(target, 10, 10).red, 8);
    EXPECT_EQ(seen(target, 49, 39).red, 8);
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

TEST(soft_edge_paste, agrees_with_its_slow_twin)
{
    for (const picture_size size : {picture_size{300, 280},
                                    {270, 400},
                                    {210, 200},
                                    {199, 260},
                                    {119, 90},
                                    {40, 10},
                                    {9, 30},
                                    {30, 8},
                                    {7, 6},
                                    {4, 3},
                                    {1, 1}})
        for (const int left : {7, -1, 130}) {
            const bitmap photo = graded(size.width, size.height);
            bitmap found = plain(420, 420, {30, 200, 90}), expected = plain(420, 420, {30, 200, 90});
            soft_edge_paste(found, photo,
                            {.left = left, .top = 11, .width = size.width, .height = size.height});
            soft_edge_by_paste(expected, photo, size.width, size.height, 11, left);
            EXPECT_TRUE(same(found, expected)) << size.width << " by " << size.height << " at " << left;
        }
}

TEST(soft_edge_paste, a_photo_of_another_size_than_told_agrees_too)
{
    bitmap found(200, 200), expected(200, 200);
    soft_edge_paste(found, graded(99, 100), {.left = 20, .top = 20, .width = 100, .height = 100});
    soft_edge_by_paste(expected, graded(99, 100), 100, 100, 20, 20);
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
