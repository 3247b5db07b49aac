#include "engine/photo/lay_photo.h"

#include "engine/layout/worn_ornaments.h"
#include "support/platform_error.h"
#include "tests/engine/by_pixel.h"
#include "tests/engine/gif_file.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr rgb_triple canvas_color{9, 9, 9}, photo_color{100, 230, 50}, frame_color{200, 0, 0};

struct lay_photo_test : testing::Test {
    lay_photo_test()
    {
        main.install_folder = folder.at("program");
        main.data_folder = folder.at("data");
        main.run.canvas = plain(20, 24, canvas_color);
        main.run.frame_color = frame_color;
        main.run.shadow_color = {0, 0, 0};
    }

    std::string picture() const
    {
        return drawn(main.run.canvas, [](rgb_triple color) {
            return color == canvas_color  ? '.'
                   : color == photo_color ? '#'
                   : color == frame_color ? 'f'
                                          : '?';
        });
    }

    /// How many pixels are as the canvas was.
    std::size_t untouched() const
    {
        const std::string all = picture();
        return static_cast<std::size_t>(std::ranges::count(all, '.'));
    }

    void make_mask(const std::string & name)
    {
        folder.write("program/images/" + name,
                     gif_of({"...", ".#.", "..."}, {{'.', {255, 255, 255}}, {'#', {0, 0, 0}}}));
        mask = name;
    }

    void lay(const bitmap & photo, const rectangle & area)
    {
        photo_place place{
            .area = area, .worn = worn_by_boxes(main, 0), .mask = mask, .shape_color = shape_color};
        place.worn.frame = frame;
        place.worn.shadow = shadow;
        lay_photo(main, copied(photo, 0, 0, photo.width(), photo.height()), place);
    }

    temporary_folder folder;
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    int frame = 0, shadow = 0, shape_color = 0;
    std::string mask;
};

std::string blank(int rows)
{
    std::string text;
    for (int i = 0; i < rows; ++i)
        text += "....................\n";
    return text;
}

}  // namespace

TEST_F(lay_photo_test, a_plain_photo_fills_its_location)
{
    lay(plain(50, 60, photo_color), {.left = 7, .top = 2, .width = 5, .height = 3});
    EXPECT_EQ(picture(), blank(2) +
                             ".......#####........\n"
                             ".......#####........\n"
                             ".......#####........\n" +
                             blank(19));
}

TEST_F(lay_photo_test, a_frame_of_2_lies_around_the_photo)
{
    frame = 2;
    lay(plain(50, 60, photo_color), {.left = 7, .top = 4, .width = 5, .height = 3});
    EXPECT_EQ(picture(), blank(2) +
                             ".....fffffffff......\n"
                             ".....fffffffff......\n"
                             ".....ff#####ff......\n"
                             ".....ff#####ff......\n"
                             ".....ff#####ff......\n"
                             ".....fffffffff......\n"
                             ".....fffffffff......\n" +
                             blank(15));
}

TEST_F(lay_photo_test, the_shadow_begins_at_the_frame)
{
    main.run.canvas = plain(80, 90, canvas_color);
    frame = 3;
    shadow = 10;
    bitmap expected = plain(80, 90, canvas_color);
    const bitmap photo = plain(40, 50, photo_color);
    paste(expected, photo, 12, 15, plain_copy);
    draw_frame_by_pixel(expected, 12, 90 - (15 + 50), 50, 40, 2, frame_color);
    draw_shadow_by_paste(expected, 12, 15, 50, 40, 3, 10, {});
    lay(photo, {.left = 12, .top = 15, .width = 40, .height = 50});
    EXPECT_TRUE(same(main.run.canvas, expected));
}

TEST_F(lay_photo_test, a_photo_that_leaves_the_canvas_is_not_drawn_but_its_frame_is_as_far_as_it_goes)
{
    frame = 1;
    lay(plain(50, 60, photo_color), {.left = 7, .top = -1, .width = 5, .height = 3});
    EXPECT_EQ(picture(), "......f.....f.......\n......f.....f.......\n......fffffff.......\n" + blank(21));
}

TEST_F(lay_photo_test, far_outside_the_canvas_nothing_happens)
{
    frame = 1;
    shadow = 5;
    for (const int left : {-900, 900})
        lay(plain(50, 60, photo_color), {.left = left, .top = 4, .width = 5, .height = 3});
    for (const int top : {-900, 900})
        lay(plain(50, 60, photo_color), {.left = 4, .top = top, .width = 5, .height = 3});
    EXPECT_EQ(picture(), blank(24));
}

TEST_F(lay_photo_test, without_a_photo_frame_and_shadow_are_drawn)
{
    frame = 1;
    lay({}, {.left = 7, .top = 4, .width = 5, .height = 3});
    EXPECT_EQ(picture(), blank(3) +
                             "......fffffff.......\n"
                             "......f.....f.......\n"
                             "......f.....f.......\n"
                             "......f.....f.......\n"
                             "......fffffff.......\n" +
                             blank(16));
    for (check_box * box : {&main.chkRounded, &main.chkSoftEdge}) {
        box->tick(true);
        lay({}, {.left = 7, .top = 4, .width = 5, .height = 3});
    }
}

TEST_F(lay_photo_test, without_a_canvas_nothing_happens)
{
    main.run.canvas = {};
    frame = 1;
    shadow = 5;
    lay(plain(5, 3, photo_color), {.left = 7, .top = 4, .width = 5, .height = 3});
    main.chkRounded.tick(true);
    lay(plain(5, 3, photo_color), {.left = 7, .top = 4, .width = 5, .height = 3});
    lay(plain(5, 3, photo_color), {.left = 7, .top = 4, .width = 5, .height = 0});
    EXPECT_FALSE(main.run.canvas);
}

TEST_F(lay_photo_test, a_location_without_any_size_draws_no_photo)
{
    make_mask("dot.gif");
    for (const int16 color : {int16{0}, int16{5}}) {
        shape_color = color;
        lay(plain(50, 60, photo_color), {.left = 7, .top = 4, .width = 0, .height = 0});
        EXPECT_EQ(picture(), blank(24));
    }
}

TEST_F(lay_photo_test, a_size_beyond_16_bits_is_an_overflow)
{
    EXPECT_THROW(lay({}, {.left = 7, .top = 4, .width = 40000, .height = 3}), platform_error);
    EXPECT_THROW(lay({}, {.left = 7, .top = 4, .width = 0, .height = 40000}), platform_error);
}

TEST_F(lay_photo_test, rounded_corners_show_what_was_there_before)
{
    main.chkRounded.tick(true);
    frame = 2;
    shadow = 5;
    lay(plain(50, 60, photo_color), {.left = 1, .top = 2, .width = 16, .height = 14});
    EXPECT_EQ(picture(), blank(2) +
                             "......#######.......\n"
                             "....###########.....\n"
                             "...#############....\n"
                             "..###############...\n"
                             "..###############...\n"
                             ".################...\n"
                             ".################...\n"
                             ".################...\n"
                             "..###############...\n"
                             "..###############...\n"
                             "...#############....\n"
                             "....###########.....\n"
                             "......#######.......\n"
                             ".......#####........\n" +
                             blank(8));
}

TEST_F(lay_photo_test, a_disabled_tick_still_cuts_the_corners_but_keeps_the_frame)
{
    main.chkRounded.tick(true);
    main.chkRounded.enable(false);
    frame = 1;
    lay(plain(50, 60, photo_color), {.left = 3, .top = 4, .width = 14, .height = 14});
    EXPECT_EQ(picture().substr(21 * 3, 21 * 2), "..ffffffffffffffff..\n..f.....#####....f..\n");
}

TEST_F(lay_photo_test, soft_edges_are_pasted_where_the_ornaments_show)
{
    main.run.canvas = plain(60, 60, canvas_color);
    main.chkSoftEdge.tick(true);
    bitmap expected = plain(60, 60, canvas_color);
    soft_edge_by_pixel(expected, plain(40, 30, photo_color),
                       {.left = 9, .top = 12, .width = 40, .height = 30});
    lay(plain(40, 30, photo_color), {.left = 9, .top = 12, .width = 40, .height = 30});
    EXPECT_TRUE(same(main.run.canvas, expected));
}

TEST_F(lay_photo_test, soft_edges_are_off_while_the_ornaments_are_hidden)
{
    main.chkSoftEdge.tick(true);
    main.frmOrnaments.show(false);
    lay(plain(5, 3, photo_color), {.left = 7, .top = 2, .width = 5, .height = 3});
    EXPECT_EQ(untouched(), 20U * 24U - 15U);
}

TEST_F(lay_photo_test, a_soft_photo_keeps_its_square_corners_and_wins_over_round_ones)
{
    main.run.canvas = plain(60, 60, canvas_color);
    main.chkSoftEdge.tick(true);
    main.chkRounded.tick(true);
    bitmap expected = plain(60, 60, canvas_color);
    soft_edge_by_pixel(expected, plain(40, 30, photo_color),
                       {.left = 9, .top = 12, .width = 40, .height = 30});
    lay(plain(40, 30, photo_color), {.left = 9, .top = 12, .width = 40, .height = 30});
    EXPECT_TRUE(same(main.run.canvas, expected));
}

TEST_F(lay_photo_test, one_side_of_0_makes_a_shape_of_the_other)
{
    make_mask("dot.gif");
    lay(plain(50, 60, photo_color), {.left = 7, .top = 2, .width = 3, .height = 0});
    EXPECT_EQ(picture(), blank(3) + "........#...........\n" + blank(20));
    lay(plain(50, 60, photo_color), {.left = 7, .top = 12, .width = 0, .height = 3});
    EXPECT_EQ(picture(),
              blank(3) + "........#...........\n" + blank(9) + "........#...........\n" + blank(10));
}

TEST_F(lay_photo_test, a_coloured_shape_takes_no_photo_no_soft_edge_and_no_round_corners)
{
    make_mask("dot.gif");
    shape_color = 5;
    main.chkSoftEdge.tick(true);
    main.chkRounded.tick(true);
    lay(plain(50, 60, photo_color), {.left = 7, .top = 2, .width = 3, .height = 0});
    EXPECT_EQ(seen(main.run.canvas, 8, 3), (rgb_triple{255, 255, 255}));
    EXPECT_EQ(untouched(), 20U * 24U - 1U);
}

TEST_F(lay_photo_test, a_shape_colour_means_nothing_to_a_location_with_two_sides)
{
    shape_color = 5;
    lay(plain(50, 60, photo_color), {.left = 7, .top = 2, .width = 5, .height = 3});
    EXPECT_EQ(seen(main.run.canvas, 7, 2), photo_color);
}

TEST_F(lay_photo_test, a_photo_in_a_shape_may_be_soft)
{
    make_mask("dot.gif");
    main.run.canvas = plain(60, 70, canvas_color);
    main.chkSoftEdge.tick(true);
    bitmap expected = plain(60, 70, canvas_color);
    soft_edge_by_pixel(expected, plain(30, 30, photo_color),
                       {.left = 9, .top = 12, .width = 30, .height = 30});
    lay(plain(30, 30, photo_color), {.left = 9, .top = 12, .width = 30, .height = 0});
    EXPECT_TRUE(same(main.run.canvas, expected));
}

TEST_F(lay_photo_test, a_shape_is_framed_by_its_square)
{
    make_mask("dot.gif");
    frame = 1;
    lay(plain(50, 60, photo_color), {.left = 7, .top = 2, .width = 3, .height = 0});
    EXPECT_EQ(picture(), blank(1) +
                             "......fffff.........\n"
                             "......f...f.........\n"
                             "......f.#.f.........\n"
                             "......f...f.........\n"
                             "......fffff.........\n" +
                             blank(18));
}

TEST_F(lay_photo_test, a_shape_without_its_mask_draws_nothing)
{
    mask = "none.gif";
    lay(plain(50, 60, photo_color), {.left = 7, .top = 2, .width = 3, .height = 0});
    EXPECT_EQ(picture(), blank(24));
}

TEST_F(lay_photo_test, a_cell_of_which_a_wide_gap_left_nothing_has_no_frame_and_no_shadow)
{
    frame = 2;
    shadow = 3;
    lay(plain(4, 4, photo_color), {.left = 10, .top = 6, .width = -6, .height = 8});
    lay(plain(4, 4, photo_color), {.left = 6, .top = 10, .width = 8, .height = -6});
    EXPECT_EQ(untouched(), 20U * 24U);
}
