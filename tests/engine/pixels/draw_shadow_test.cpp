#include "engine/pixels/draw_shadow.h"

#include "engine/pixels/draw_frame.h"
#include "engine/pixels/shadow_bands.h"
#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

/// A white target with the shadow of a photo, drawn as letters: the darker, the later in the alphabet.
std::string shadowed(int width, int height, const rectangle & photo, const ornaments & worn)
{
    bitmap target = plain(width, height, {255, 255, 255});
    draw_shadow(target, photo, worn);
    return drawn(target, [](rgb_triple color) {
        return color.red == 255 ? '.' : static_cast<char>('a' + (254 - color.red) / 20);
    });
}

bool is_blank(const std::string & picture)
{
    return picture.find_first_not_of(".\n") == std::string::npos;
}

constexpr rectangle photo_inside{.left = 2, .top = 2, .width = 12, .height = 14};

}  // namespace

TEST(fade, runs_from_200_down_to_10)
{
    EXPECT_EQ(fade(0), 200);
    EXPECT_EQ(fade(32), 168);
    EXPECT_EQ(fade(190), 10);
    EXPECT_EQ(fade(195), 10);
}

TEST(shadow_bands, the_lines_of_a_shadow_of_5_one_by_one)
{
    // 160 / 5 is 32 a line. Start 2 and 5 pixels below the top, end at the bottom of 40 rows, then growing.
    const std::vector<shadow_line> expected{
        {{30, 7, 1, 34}, 200},  // grown by 1
        {{31, 7, 1, 35}, 168},  // grown by 2
        {{32, 40, 1, 1}, 112}, {{32, 41, 1, 1}, 100}, {{32, 7, 1, 33}, 136},
        {{33, 38, 1, 1}, 80},  {{33, 39, 1, 1}, 68},  {{33, 7, 1, 31}, 104},
        {{34, 36, 1, 1}, 48},  {{34, 37, 1, 1}, 36},  {{34, 7, 1, 29}, 72}};
    EXPECT_EQ(right_shadow({0, 0, 30, 40}, 5), expected);
}

TEST(shadow_bands, the_bottom_band_is_shortened_in_its_last_two_rows_only)
{
    const std::vector<shadow_line> expected{{{7, 40, 24, 1}, 200}, {{7, 41, 25, 1}, 168},
                                            {{7, 42, 26, 1}, 136},  // the third from the end still grows
                                            {{31, 43, 1, 1}, 80},  {{32, 43, 1, 1}, 68},
                                            {{7, 43, 24, 1}, 104}, {{29, 44, 1, 1}, 48},
                                            {{30, 44, 1, 1}, 36},  {{7, 44, 22, 1}, 72}};
    EXPECT_EQ(bottom_shadow({0, 0, 30, 40}, 5), expected);
}

TEST(shadow_bands, a_small_shadow_starts_nearer_the_corner)
{
    // Below 6 the start lies as far further in as the shadow is wide.
    EXPECT_EQ(right_shadow({0, 10, 30, 40}, 3).back().area.top, 15);
    EXPECT_EQ(right_shadow({0, 10, 30, 40}, 6).back().area.top, 17);
    EXPECT_EQ(right_shadow({0, 10, 30, 40}, 50).back().area.top, 17);
}

TEST(shadow_bands, softens_the_start_of_all_but_the_outer_lines)
{
    std::string two_before(20, '.'), one_before(20, '.');
    for (const shadow_line & line : right_shadow({0, 0, 30, 100}, 20)) {
        const auto away = static_cast<std::size_t>(line.area.left - 30);
        if (line.area == rectangle{line.area.left, 5, 1, 1})
            two_before[away] = '#';
        if (line.area == rectangle{line.area.left, 6, 1, 1})
            one_before[away] = '#';
    }
    EXPECT_EQ(two_before, ".#######............");
    EXPECT_EQ(one_before, ".############.......");
}

TEST(shadow_bands, the_strength_per_line_is_rounded_by_ties_to_even)
{
    // 160 / 64 is 2.5: 2 a line.
    EXPECT_EQ(right_shadow({0, 0, 300, 300}, 64)[1].alpha, 198);
}

TEST(draw_shadow, two_fading_bands_with_cut_ends)
{
    // The two bands meet on their diagonal, here in one pixel.
    EXPECT_EQ(shadowed(20, 21, photo_inside, {.shadow = 4}),
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "..............jhfd..\n"
              "..............jhfd..\n"
              "..............jhfd..\n"
              "..............jhfc..\n"
              "..............jhfc..\n"
              "..............jhe...\n"
              "..............jhe...\n"
              "..............jg....\n"
              "........jjjjjjmg....\n"
              "........hhhhhhhh....\n"
              "........ffffffee....\n"
              "........ddddcc......\n"
              "....................\n");
}

TEST(draw_shadow, agrees_with_its_slow_twin)
{
    const bitmap background = graded(240, 200);
    for (const int frame : {0, 1, 10})
        for (const int size : {1, 2, 3, 5, 6, 10, 20, 50})
            for (const int left : {12, 90}) {
                const ornaments worn{.frame = frame, .shadow = size, .shadow_color = {7, 60, 90}};
                bitmap found = copied(background, 0, 0, 240, 200);
                bitmap expected = copied(background, 0, 0, 240, 200);
                draw_shadow(found, {.left = left, .top = 15, .width = 80, .height = 100}, worn);
                draw_shadow_by_paste(expected, left, 15, 100, 80, frame, size, worn.shadow_color);
                EXPECT_TRUE(same(found, expected)) << frame << ", " << size << ", " << left;
            }
}

TEST(draw_shadow, touches_the_frame_and_leaves_it_as_it_is)
{
    const ornaments worn{.frame = 3, .shadow = 10, .frame_color = {1, 2, 3}};
    constexpr rectangle photo{.left = 10, .top = 8, .width = 50, .height = 40};
    bitmap target = plain(80, 70, {255, 255, 255});
    draw_frame(target, photo, worn, 0);
    draw_shadow(target, photo, worn);
    EXPECT_EQ(seen(target, 62, 30), (rgb_triple{1, 2, 3}));     // last column of the frame
    EXPECT_EQ(seen(target, 63, 30), (rgb_triple{55, 55, 55}));  // first of the shadow: 200 of 256 black
    EXPECT_EQ(seen(target, 40, 50), (rgb_triple{1, 2, 3}));
    EXPECT_EQ(seen(target, 40, 51), (rgb_triple{55, 55, 55}));
}

TEST(draw_shadow, a_line_that_would_leave_the_target_is_not_drawn_at_all)
{
    // The target ends right under the photo: the column that reaches one row further has no place.
    EXPECT_EQ(shadowed(20, 16, photo_inside, {.shadow = 4}),
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "....................\n"
              "...............hfd..\n"
              "...............hfd..\n"
              "...............hfd..\n"
              "...............hfc..\n"
              "...............hfc..\n"
              "...............he...\n"
              "...............he...\n"
              "...............g....\n");
}

TEST(draw_shadow, without_a_size_with_rounded_photos_or_far_outside_nothing_happens)
{
    EXPECT_TRUE(is_blank(shadowed(20, 21, photo_inside, {.shadow = 0})));
    EXPECT_TRUE(is_blank(shadowed(20, 21, photo_inside, {.shadow = -4})));
    EXPECT_TRUE(is_blank(shadowed(20, 21, photo_inside, {.shadow = 4, .corners = photo_corners::rounded})));
    EXPECT_FALSE(is_blank(shadowed(20, 21, photo_inside, {.shadow = 4, .corners = photo_corners::cut})));
    EXPECT_TRUE(
        is_blank(shadowed(20, 21, {.left = 900, .top = 2, .width = 12, .height = 14}, {.shadow = 4})));
}
