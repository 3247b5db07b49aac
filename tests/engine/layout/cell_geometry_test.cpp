#include "engine/layout/cell_geometry.h"

#include "support/platform_error.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr grid three_by_four{.top = 10,
                             .left = 20,
                             .rows = 3,
                             .columns = 4,
                             .row_gap = 5,
                             .column_gap = 7,
                             .cell_height = 150,
                             .cell_width = 100};
constexpr shake_switches all{.resize = true, .rotate = true};
constexpr shake tilted_left{.scale = 0.9, .rotation = -5, .top = 3, .left = -4};

shaken inner(const shake & by, shake_switches allowed)
{
    row_lean lean = row_lean::none;
    return shaken_cell(three_by_four, {.row = 1, .column = 1}, by, allowed, lean);
}

// The rotations of a row whose cells are all shaken alike.
std::vector<int> rotations_of_row(int columns, const std::vector<int> & rotations)
{
    grid layer = three_by_four;
    layer.columns = columns;
    row_lean lean = row_lean::none;
    std::vector<int> result;
    for (std::size_t c = 0; c < rotations.size(); ++c)
        result.push_back(shaken_cell(layer, {.row = 1, .column = static_cast<int>(c)},
                                     {.rotation = rotations[c]}, all, lean)
                             .rotation);
    return result;
}

}  // namespace

TEST(cell_geometry, rows_of_the_template_become_a_grid_on_the_canvas)
{
    const grid layer = grid_of({.top = 1, .left = 2, .height = 3, .width = 4},
                               {.top = 5, .left = 6, .height = 70, .width = 80}, 100);
    EXPECT_EQ(layer.top, 101);
    EXPECT_EQ(layer.left, 102);
    EXPECT_EQ(layer.rows, 3);
    EXPECT_EQ(layer.columns, 4);
    EXPECT_EQ(layer.row_gap, 5);
    EXPECT_EQ(layer.column_gap, 6);
    EXPECT_EQ(layer.cell_height, 70);
    EXPECT_EQ(layer.cell_width, 80);
}

TEST(cell_geometry, a_row_ends_at_its_count_or_beyond_the_collage)
{
    EXPECT_FALSE(row_ends(three_by_four, 3, {.right = 5000}));
    EXPECT_TRUE(row_ends(three_by_four, 4, {.right = 5000}));
    grid open = three_by_four;
    open.columns = 0;
    EXPECT_FALSE(row_ends(open, 4, {.right = 448}));  // the fifth cell begins at 448
    EXPECT_TRUE(row_ends(open, 4, {.right = 447}));
}

TEST(cell_geometry, a_grid_ends_at_its_count_or_beyond_the_collage)
{
    EXPECT_FALSE(grid_ends(three_by_four, 2, {.bottom = 5000}));
    EXPECT_TRUE(grid_ends(three_by_four, 3, {.bottom = 5000}));
    grid open = three_by_four;
    open.rows = 0;
    EXPECT_FALSE(grid_ends(open, 3, {.bottom = 475}));
    EXPECT_TRUE(grid_ends(open, 3, {.bottom = 474}));
}

TEST(cell_geometry, a_grid_without_a_step_and_without_a_count_never_ends)
{
    EXPECT_FALSE(is_endless(three_by_four));
    EXPECT_TRUE(is_endless({}));
    EXPECT_FALSE(is_endless({.rows = 1, .columns = 1}));
}

TEST(cell_geometry, a_square_photo_fits_upright_and_level_cells)
{
    grid level = three_by_four;
    level.cell_width = 150;
    EXPECT_TRUE(fits_cell(three_by_four, 100, 100));
    EXPECT_TRUE(fits_cell(level, 100, 100));
    EXPECT_FALSE(fits_cell(three_by_four, 99, 100));
    EXPECT_FALSE(fits_cell(level, 100, 99));
}

TEST(cell_geometry, only_a_grid_with_a_count_has_room_for_a_double_cell)
{
    EXPECT_TRUE(has_right_neighbour(three_by_four, 2));
    EXPECT_FALSE(has_right_neighbour(three_by_four, 3));
    EXPECT_FALSE(has_right_neighbour({}, 0));
}

TEST(cell_geometry, shifts_are_fiftieths_of_the_longer_side)
{
    const shaken cell = inner(tilted_left, all);
    EXPECT_EQ(cell.shift_top, 9);  // 150 / 50 x 3
    EXPECT_EQ(cell.shift_left, -12);
    EXPECT_EQ(cell.rotation, -5);
    EXPECT_DOUBLE_EQ(cell.scale, 0.9);
}

TEST(cell_geometry, resizing_alone_keeps_scale_and_shifts_and_takes_the_rotation)
{
    const shaken cell = inner(tilted_left, {.resize = true});
    EXPECT_DOUBLE_EQ(cell.scale, 0.9);
    EXPECT_EQ(cell.rotation, 0);
    EXPECT_EQ(cell.shift_top, 9);
}

TEST(cell_geometry, rotating_alone_keeps_rotation_and_shifts)
{
    const shaken cell = inner(tilted_left, {.rotate = true});
    EXPECT_DOUBLE_EQ(cell.scale, 1);
    EXPECT_EQ(cell.rotation, -5);
    EXPECT_EQ(cell.shift_top, 9);
}

TEST(cell_geometry, with_both_switches_off_nothing_is_shaken)
{
    const shaken cell = inner(tilted_left, {});
    EXPECT_DOUBLE_EQ(cell.scale, 1);
    EXPECT_EQ(cell.rotation, 0);
    EXPECT_EQ(cell.shift_top, 0);
    EXPECT_EQ(cell.shift_left, 0);
}

TEST(cell_geometry, the_last_column_never_leans_as_the_first)
{
    EXPECT_EQ(rotations_of_row(3, {-5, 10, -15}), (std::vector{-5, 10, 15}));
    EXPECT_EQ(rotations_of_row(3, {5, 10, 15}), (std::vector{5, 10, -15}));
    EXPECT_EQ(rotations_of_row(3, {5, 10, -15}), (std::vector{5, 10, -15}));
    EXPECT_EQ(rotations_of_row(3, {-5, 10, 15}), (std::vector{-5, 10, 15}));
}

TEST(cell_geometry, columns_without_a_count_have_no_last_one)
{
    EXPECT_EQ(rotations_of_row(0, {-5, -10, -15}), (std::vector{-5, -10, -15}));
}

TEST(cell_geometry, big_photos_stay_inside_on_the_outer_cells_but_not_on_the_last_row)
{
    const shake big{.scale = 1.3};
    const auto scale_at = [&](int row, int column, cell_span span) {
        row_lean lean = row_lean::none;
        return shaken_cell(three_by_four, {.row = row, .column = column, .span = span}, big, all, lean).scale;
    };
    EXPECT_DOUBLE_EQ(scale_at(0, 1, cell_span::single), 1);
    EXPECT_DOUBLE_EQ(scale_at(1, 0, cell_span::single), 1);
    EXPECT_DOUBLE_EQ(scale_at(1, 3, cell_span::single), 1);
    EXPECT_DOUBLE_EQ(scale_at(1, 1, cell_span::single), 1.3);
    EXPECT_DOUBLE_EQ(scale_at(2, 1, cell_span::single), 1.3);
    EXPECT_DOUBLE_EQ(scale_at(1, 1, cell_span::twice), 1.3);
    EXPECT_DOUBLE_EQ(scale_at(1, 2, cell_span::twice), 1);
}

TEST(cell_geometry, an_upright_single_photo_is_scaled_and_shifted)
{
    const rectangle area = photo_area(three_by_four, {.row = 1, .column = 2},
                                      {.scale = 0.85, .shift_top = 9, .shift_left = -12});
    // 165 and 234 are the corner of the cell; 127.5 goes to the even 128
    EXPECT_EQ(area, (rectangle{.left = 222, .top = 174, .width = 85, .height = 128}));
}

TEST(cell_geometry, an_upright_double_photo_is_scaled_without_its_gap_and_not_shifted)
{
    const rectangle area = photo_area(three_by_four, {.row = 1, .column = 1, .span = cell_span::twice},
                                      {.scale = 0.85, .shift_top = 9, .shift_left = -12});
    EXPECT_EQ(area, (rectangle{.left = 127, .top = 165, .width = 177, .height = 128}));
}

TEST(cell_geometry, a_tilted_double_photo_is_summed_then_scaled_then_rounded)
{
    const rectangle area = photo_area(three_by_four, {.row = 1, .column = 1, .span = cell_span::twice},
                                      {.scale = 0.9, .rotation = 5, .shift_top = 9, .shift_left = -12});
    // 207 x 0.9 = 186.3
    EXPECT_EQ(area, (rectangle{.left = 115, .top = 174, .width = 186, .height = 135}));
}

TEST(cell_geometry, a_card_fills_its_cell_or_both)
{
    EXPECT_EQ(upright_area(three_by_four, {.row = 2, .column = 1}),
              (rectangle{.left = 127, .top = 320, .width = 100, .height = 150}));
    EXPECT_EQ(upright_area(three_by_four, {.row = 2, .column = 1, .span = cell_span::twice}),
              (rectangle{.left = 127, .top = 320, .width = 207, .height = 150}));
}

TEST(cell_geometry, a_cell_beyond_16_bits_is_an_overflow)
{
    try {
        upright_area({.cell_height = 20000, .cell_width = 10}, {.row = 2, .column = 0});
        FAIL();
    } catch (const platform_error & error) {
        EXPECT_EQ(code(error), 6);
    }
}

TEST(cell_geometry, a_saved_cell_has_no_bleed)
{
    EXPECT_EQ(location_of_cell({.left = 427, .top = 433, .width = 100, .height = 150}, -5, 430),
              (location{.top = 3, .left = -3, .height = 150, .width = 100, .rotation = -5}));
}

TEST(cell_geometry, the_shake_table_has_17_rows_that_all_turn)
{
    int scales = 0, tops = 0, lefts = 0, rotations = 0;
    for (const shake & row : shake_table) {
        EXPECT_NE(row.rotation, 0);
        EXPECT_EQ(row.rotation % 5, 0);
        scales += nearest(row.scale * 100);
        tops += row.top;
        lefts += row.left;
        rotations += row.rotation;
    }
    EXPECT_EQ(shake_table.size(), 17U);
    // Sums of the columns as written down.
    EXPECT_EQ(scales,
              110 + 90 + 115 + 85 + 100 + 95 + 130 + 90 + 115 + 85 + 120 + 90 + 115 + 85 + 100 + 95 + 120);
    EXPECT_EQ(rotations, -5 + 10 - 15 + 5 - 10 + 10 - 5 + 5 - 15 + 10 - 10 + 5 - 15 + 10 - 10 + 5 + 15);
    EXPECT_EQ(tops, -3 + 3 + 2 - 2 + 0 + 1 - 2 + 3 - 5 + 3 - 2 + 4 + 2 + 4 - 1 + 2 + 5);
    EXPECT_EQ(lefts, -3 + 5 - 5 + 2 + 0 + 4 - 5 + 4 - 2 + 5 - 2 + 5 - 7 + 3 - 1 + 1 + 6);
}
