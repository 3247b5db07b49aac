#include "engine/pixels/draw_shadow.h"

#include "engine/pixels/draw_frame.h"
#include "engine/pixels/shadow_bands.h"
#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"

#include <gtest/gtest.h>

namespace {

struct draw_shadow_test : testing::Test {
    draw_shadow_test() { main.run.shadow_color = {0, 0, 0}; }
    scripted_desktop desk;
    frmMain main{desk, listed({})};

    /// A white target with the shadow of a photo, drawn as letters: the darker, the later in the alphabet.
    std::string shadowed(int width, int height, const rectangle & photo)
    {
        bitmap target = plain(width, height, {255, 255, 255});
        draw_shadow(main, target, photo.left, photo.top, photo.bottom - photo.top, photo.right - photo.left,
                    0);
        return drawn(target, [](rgb_triple color) {
            return color.red == 255 ? '.' : static_cast<char>('a' + (254 - color.red) / 20);
        });
    }
};

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
        {{30, 7, 31, 41}, 200},  // grown by 1
        {{31, 7, 32, 42}, 168},  // grown by 2
        {{32, 40, 33, 41}, 112}, {{32, 41, 33, 42}, 100}, {{32, 7, 33, 40}, 136},
        {{33, 38, 34, 39}, 80},  {{33, 39, 34, 40}, 68},  {{33, 7, 34, 38}, 104},
        {{34, 36, 35, 37}, 48},  {{34, 37, 35, 38}, 36},  {{34, 7, 35, 36}, 72}};
    EXPECT_EQ(right_shadow({0, 0, 30, 40}, 5), expected);
}

TEST(shadow_bands, the_bottom_band_is_shortened_in_its_last_two_rows_only)
{
    const std::vector<shadow_line> expected{{{7, 40, 31, 41}, 200}, {{7, 41, 32, 42}, 168},
                                            {{7, 42, 33, 43}, 136},  // the third from the end still grows
                                            {{31, 43, 32, 44}, 80}, {{32, 43, 33, 44}, 68},
                                            {{7, 43, 31, 44}, 104}, {{29, 44, 30, 45}, 48},
                                            {{30, 44, 31, 45}, 36}, {{7, 44, 29, 45}, 72}};
    EXPECT_EQ(bottom_shadow({0, 0, 30, 40}, 5), expected);
}

TEST(shadow_bands, a_small_shadow_starts_nearer_the_corner)
{
    // Below 6 the start lies as far further in as the shadow is wide.
    EXPECT_EQ(right_shadow({0, 10, 30, 50}, 3).back().area.top, 15);
    EXPECT_EQ(right_shadow({0, 10, 30, 50}, 6).back().area.top, 17);
    EXPECT_EQ(right_shadow({0, 10, 30, 50}, 50).back().area.top, 17);
}

TEST(shadow_bands, softens_the_start_of_all_but_the_outer_lines)
{
    std::string two_before(20, '.'), one_before(20, '.');
    for (const shadow_line & line : right_shadow({0, 0, 30, 100}, 20)) {
        const auto away = static_cast<std::size_t>(line.area.left - 30);
        if (line.area == rectangle{line.area.left, 5, line.area.right, 6})
            two_before[away] = '#';
        if (line.area == rectangle{line.area.left, 6, line.area.right, 7})
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

TEST_F(draw_shadow_test, two_fading_bands_with_cut_ends)
{
    main.run.shadow_size = 4;
    // The two bands meet on their diagonal, here in one pixel.
    EXPECT_EQ(shadowed(20, 21, {2, 2, 14, 16}),
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

TEST_F(draw_shadow_test, agrees_with_its_slow_twin)
{
    main.run.shadow_color = {7, 60, 90};
    const bitmap background = graded(240, 200);
    for (const int frame : {0, 1, 10})
        for (const int size : {1, 2, 3, 5, 6, 10, 20, 50})
            for (const int left : {12, 90}) {
                main.run.frame_size = static_cast<int16>(frame);
                main.run.shadow_size = static_cast<int16>(size);
                bitmap found = copied(background, 0, 0, 240, 200);
                bitmap expected = copied(background, 0, 0, 240, 200);
                draw_shadow(main, found, frame == 0 ? left : left - 1, 15, 100, 80, 0);
                draw_shadow_by_paste(expected, left, 15, 100, 80, frame, size, main.run.shadow_color);
                EXPECT_TRUE(same(found, expected)) << frame << ", " << size << ", " << left;
            }
}

TEST_F(draw_shadow_test, touches_the_frame_and_leaves_it_as_it_is)
{
    main.run.frame_size = 3;
    main.run.shadow_size = 10;
    main.run.frame_color = {1, 2, 3};
    bitmap target = plain(80, 70, {255, 255, 255});
    int left = 10, row = 70 - 8 - 40;
    draw_frame(main, target, left, row, 40, 50, 0);
    draw_shadow(main, target, left, 8, 40, 50, 0);
    EXPECT_EQ(seen(target, 62, 30), (rgb_triple{1, 2, 3}));     // last column of the frame
    EXPECT_EQ(seen(target, 63, 30), (rgb_triple{55, 55, 55}));  // first of the shadow: 200 of 256 black
    EXPECT_EQ(seen(target, 40, 50), (rgb_triple{1, 2, 3}));
    EXPECT_EQ(seen(target, 40, 51), (rgb_triple{55, 55, 55}));
}

TEST_F(draw_shadow_test, a_line_that_would_leave_the_target_is_not_drawn_at_all)
{
    main.run.shadow_size = 4;
    // The target ends right under the photo: the column that reaches one row further has no place.
    EXPECT_EQ(shadowed(20, 16, {2, 2, 14, 16}),
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

TEST_F(draw_shadow_test, without_a_size_with_rounded_photos_or_far_outside_nothing_happens)
{
    main.run.shadow_size = 0;
    EXPECT_EQ(shadowed(20, 21, {2, 2, 14, 16}).find_first_not_of(".\n"), std::string::npos);
    main.run.shadow_size = -4;
    EXPECT_EQ(shadowed(20, 21, {2, 2, 14, 16}).find_first_not_of(".\n"), std::string::npos);
    main.run.shadow_size = 4;
    EXPECT_EQ(shadowed(20, 21, {900, 2, 914, 16}).find_first_not_of(".\n"), std::string::npos);
    main.chkRounded.tick(true);
    EXPECT_EQ(shadowed(20, 21, {2, 2, 14, 16}).find_first_not_of(".\n"), std::string::npos);
}
