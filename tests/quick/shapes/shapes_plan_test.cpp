#include "quick/shapes/shapes_plan.h"

#include "designs/templates/location_line.h"
#include "quick/shapes/shapes_tables.h"
#include "support/files/text_file.h"
#include "tests/sum_by_place.h"

#include <gtest/gtest.h>

namespace {

using lines = std::vector<std::string>;

// A source whose numbers don't matter.
shapes_layout planned_shapes(const shapes_request & request)
{
    return shapes_plan(request, seeded_random(1));
}

std::string grid_text(int last_photo)
{
    const shapes_layout plan = planned_shapes({.last_photo = last_photo});
    return std::to_string(static_cast<int>(plan.columns)) + "x" + std::to_string(static_cast<int>(plan.rows));
}

std::vector<std::string> fields_of_line(const std::string & line)
{
    return split(line, ':', 9);
}

std::vector<std::string> masks_of(const shapes_layout & plan)
{
    std::vector<std::string> masks;
    for (const location & place : plan.places)
        masks.push_back(place.file);
    return masks;
}

}  // namespace

TEST(shapes_plan, the_number_of_photos_decides_the_grid)
{
    EXPECT_EQ(grid_text(6), "2x3");
    EXPECT_EQ(grid_text(7), "2x3");
    EXPECT_EQ(grid_text(8), "2x4");
    EXPECT_EQ(grid_text(11), "2x5");
    EXPECT_EQ(grid_text(17), "4x4");
    EXPECT_EQ(grid_text(83), "9x9");
    EXPECT_EQ(grid_text(84), "7x12");
}

TEST(shapes_plan, fewer_than_six_photos_have_the_grid_of_six)
{
    EXPECT_EQ(grid_text(2), "2x3");
    EXPECT_EQ(grid_text(-1), "2x3");
}

TEST(shapes_plan, two_hundred_photos_or_more_have_the_grid_of_84)
{
    EXPECT_EQ(grid_text(200), "7x12");
    EXPECT_EQ(grid_text(1000), "7x12");
}

TEST(shapes_plan, every_grid_of_the_table_is_full)
{
    for (const shapes_grid_size & each : shapes_grid_sizes)
        EXPECT_EQ(each.cells % each.columns, 0) << each.cells;
}

TEST(shapes_tables, grids_grow_and_lie_upright_down_to_the_stopper)
{
    for (std::size_t i = 0; i + 1 < shapes_grid_sizes.size(); ++i) {
        const auto [cells, columns] = shapes_grid_sizes[i];
        EXPECT_LT(cells, shapes_grid_sizes[i + 1].cells);
        EXPECT_LE(columns, cells / columns) << cells;
    }
    EXPECT_GT(shapes_grid_sizes.back().cells, 200);
}

TEST(shapes_tables, hold_the_numbers_that_were_chosen)
{
    EXPECT_EQ(sum_by_place(shapes_grid_sizes, &shapes_grid_size::cells), 92204);
    EXPECT_EQ(sum_by_place(shapes_grid_sizes, &shapes_grid_size::columns), 48223);
    EXPECT_EQ(sum_by_place(shapes_mixes, &shapes_mix::down), -85);
    EXPECT_EQ(sum_by_place(shapes_mixes, &shapes_mix::right), 60);
    EXPECT_EQ(sum_by_place(shapes_mixes, &shapes_mix::growth), 200);
}

TEST(shapes_plan, squares_stand_in_the_middle_between_their_ornaments)
{
    // 2 by 5: 2830 down for five, 566 each; 1152 across leaves 848, 2910 down leaves 90.
    const lines plan =
        template_lines(planned_shapes({.last_photo = 10, .gap = 20, .frame = 10, .shadow = 10}).places);
    ASSERT_EQ(plan.size(), 10U);
    EXPECT_EQ(plan[0], "35:424:566:566:0:0:-1:0:");
    EXPECT_EQ(plan[1], "35:1010:566:566:0:0:-1:0:");
    EXPECT_EQ(plan[2], "621:424:566:566:0:0:-1:0:");
    EXPECT_EQ(plan[9], "2379:1010:566:566:0:0:-1:0:");
}

TEST(shapes_plan, other_shapes_have_no_height_but_a_mask_and_no_room_for_ornaments)
{
    const lines plan = template_lines(
        planned_shapes({.shape = "Stars", .last_photo = 10, .gap = 20, .frame = 10, .shadow = 10}).places);
    EXPECT_EQ(plan[0], "25:420:0:570:0:0:-1:0:star.gif");
    EXPECT_EQ(plan[3], "615:1010:0:570:0:0:-1:0:star.gif");
}

TEST(shapes_plan, the_top_alignment_lifts_squares_clear_of_the_edge)
{
    using enum shapes_align;
    const auto first = [](const shapes_request & request) {
        return std::to_string(planned_shapes(request).places.front().top);
    };
    EXPECT_EQ(first({.last_photo = 10, .gap = 20, .align = top}), "20");
    EXPECT_EQ(first({.last_photo = 10, .gap = 20, .frame = 45, .align = top}), "45");
    EXPECT_EQ(first({.last_photo = 10, .gap = 20, .frame = 20, .shadow = 300, .align = top}), "20");
    EXPECT_EQ(first({.shape = "Stars", .last_photo = 10, .gap = 20, .align = top}), "0");
    EXPECT_EQ(first({.poster = poster_shape::square, .last_photo = 10, .gap = 0, .align = top}), "20");
}

TEST(shapes_plan, squares_are_lifted_by_no_more_than_is_to_spare)
{
    // 3000 down for twenty rows of 146: 80 are left, and the frame is larger.
    const shapes_layout plan =
        planned_shapes({.last_photo = 10, .row_bias = 15, .frame = 95, .align = shapes_align::top});
    EXPECT_EQ(plan.places.front().top, 95);
    const shapes_layout full = planned_shapes(
        {.last_photo = 10, .row_bias = 95, .gap = 1, .frame = 200, .align = shapes_align::top});
    EXPECT_EQ(full.rows, 100);
    // A hundred rows of 26 and 99 gaps: 301 are left.
    EXPECT_EQ(full.places.front().top, 200);
}

TEST(shapes_plan, the_bottom_alignment_leaves_room_for_the_ornaments)
{
    const shapes_layout plan = planned_shapes(
        {.last_photo = 10, .gap = 20, .frame = 10, .shadow = 10, .align = shapes_align::bottom});
    EXPECT_EQ(location_text(plan.places.front()), "70:424:566:566:0:0:-1:0:");
}

TEST(shapes_plan, on_a_square_poster_masks_start_one_cell_further_right)
{
    // 4 by 4 on 2000 by 2000: 1880 down, 470 each, 60 left over in both directions.
    const shapes_request squares{.poster = poster_shape::square, .last_photo = 16};
    shapes_request stars = squares;
    stars.shape = "Stars";
    EXPECT_EQ(location_text(planned_shapes(squares).places.front()), "60:60:470:470:0:0:-1:0:");
    EXPECT_EQ(location_text(planned_shapes(stars).places.front()), "60:530:0:470:0:0:-1:0:star.gif");
}

TEST(shapes_plan, a_landscape_poster_is_laid_out_upright)
{
    shapes_request request{.last_photo = 10, .gap = 20};
    const lines upright = template_lines(planned_shapes(request).places);
    request.poster = poster_shape::landscape;
    EXPECT_EQ(template_lines(planned_shapes(request).places), upright);
}

TEST(shapes_plan, clicks_add_rows_and_columns)
{
    const shapes_layout plan = planned_shapes({.last_photo = 10, .row_bias = 2, .column_bias = -1});
    EXPECT_EQ(plan.rows, 7);
    EXPECT_EQ(plan.columns, 1);
    EXPECT_EQ(plan.places.size(), 7U);
}

TEST(shapes_plan, one_row_is_the_least_and_the_bias_stays_in_step)
{
    const shapes_layout plan = planned_shapes({.last_photo = 10, .row_bias = -5, .column_bias = -2});
    EXPECT_EQ(plan.rows, 1);
    EXPECT_EQ(plan.columns, 1);
    EXPECT_EQ(plan.row_bias, -4);
    EXPECT_EQ(plan.column_bias, -1);
}

TEST(shapes_plan, each_shape_has_its_mask)
{
    const std::vector<std::pair<const char *, const char *>> masks{{"Circles", "circle.gif"},
                                                                   {"Stars", "star.gif"},
                                                                   {"Hearrs", "heart.gif"},
                                                                   {"Hearts", "heart.gif"},
                                                                   {"Stamps", "stamp.gif"},
                                                                   {"Clouds", "cloud.gif"},
                                                                   {"Ovals", "oval.gif"},
                                                                   {"Polka Dots", "polka_dots.gif"},
                                                                   {"Targets", "target.gif"},
                                                                   {"Stripes", "stripes.gif"},
                                                                   {"Custom shape", "custom_shape.gif"},
                                                                   {"", "heart.gif"}};
    for (const auto & [shape, mask] : masks)
        EXPECT_EQ(masks_of(planned_shapes({.shape = shape, .last_photo = 6})),
                  std::vector<std::string>(6, mask));
}

TEST(shapes_plan, leaves_and_pieces_are_drawn_and_neighbours_differ)
{
    // One number a row for the mix, then one a cell: 1, 1 again becomes 2, 6; 6 again becomes 1, 3, 4.
    const shapes_layout plan = shapes_plan({.shape = "Leaves", .last_photo = 6, .column_bias = 0},
                                           listed({0, 0.0, 0.1, 0, 0.99, 0.9, 0, 0.4, 0.5}));
    EXPECT_EQ(masks_of(plan), (std::vector<std::string>{"leaf_1.gif", "leaf_2.gif", "leaf_6.gif",
                                                        "leaf_1.gif", "leaf_3.gif", "leaf_4.gif"}));
    EXPECT_EQ(plan.file, "leaf_4.gif");
    const shapes_layout pieces = shapes_plan({.shape = "Puzzle pieces", .last_photo = 6},
                                             listed({0, 0.2, 0.4, 0, 0.6, 0.8, 0, 0.4, 0.5}));
    EXPECT_EQ(pieces.places.front().file, "puzzle_2.gif");
}

TEST(shapes_plan, a_mixed_grid_takes_its_shifts_from_the_table_row_by_row)
{
    const lines plain = template_lines(planned_shapes({.last_photo = 6}).places);
    // 2 columns of 930: the first row begins at index 9, the second at 0, the third at 4.
    const lines mixed =
        template_lines(shapes_plan({.last_photo = 6, .mix = true}, listed({0.99, 0.0, 0.5})).places);
    const auto numbers = [](const std::string & line) {
        std::vector<int> values;
        for (int i = 0; i < 4; ++i)
            values.push_back(std::stoi(fields_of_line(line)[static_cast<std::size_t>(i)]));
        return values;
    };
    const std::vector<std::vector<int>> shifts{{40, -40, 60}, {40, 0, 0},    {-20, -40, 100},
                                               {40, 0, 0},    {60, 20, -40}, {20, -40, 20}};
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const std::vector<int> at = numbers(plain[i]), moved = numbers(mixed[i]);
        EXPECT_EQ(moved[0] - at[0], shifts[i][0]) << i;
        EXPECT_EQ(moved[1] - at[1], shifts[i][1]) << i;
        EXPECT_EQ(moved[2] - at[2], shifts[i][2]) << i;
        EXPECT_EQ(moved[3] - at[3], shifts[i][2]) << i;
    }
}

TEST(shapes_plan, a_gap_that_would_show_no_cells_leaves_them_a_quarter_of_the_poster)
{
    // 24 rows by 16 columns: of 2930 down three quarters are 23 gaps of 95, of 1930 across 15 of 96. What
    // is left is 745 down for 24, 505 across for 16.
    const shapes_layout plan =
        planned_shapes({.shape = "Stars", .last_photo = 84, .row_bias = 12, .column_bias = 9, .gap = 140});
    ASSERT_EQ(plan.places.size(), 384U);
    EXPECT_EQ(plan.places[0].width, 31);
    EXPECT_EQ(plan.places[1].left - plan.places[0].left, 31 + 95);
    EXPECT_EQ(plan.places[16].top - plan.places[0].top, 31 + 95);
}

TEST(shapes_plan, a_gap_is_kept_while_its_cells_show)
{
    // 13 columns with 12 gaps of 140 have 1930 across: 250 for 13.
    const shapes_layout plan =
        planned_shapes({.shape = "Stars", .last_photo = 84, .row_bias = 6, .column_bias = 6, .gap = 140});
    EXPECT_EQ(plan.places[0].width, 19);
    EXPECT_EQ(plan.places[2].left - plan.places[0].left, 2 * (19 + 140));
}

TEST(shapes_plan, a_mix_leaves_something_of_the_smallest_cells)
{
    const shapes_layout plan = shapes_plan(
        {.last_photo = 84, .row_bias = 6, .column_bias = 6, .gap = 140, .mix = true}, seeded_random(1));
    int least = 1000;
    for (const location & place : plan.places)
        least = std::min<int>(least, place.width);
    EXPECT_EQ(least, 10);
}

TEST(shapes_plan, a_hole_draws_no_leaf)
{
    const shapes_layout plan =
        shapes_plan({.shape = "Leaves", .last_photo = 6, .blanks = {.length = 40, .left = 40, .blank_at = 1}},
                    listed({0, 0.0, 0, 0.2, 0.4, 0, 0.6, 0.8}));
    EXPECT_EQ(masks_of(plan), (std::vector<std::string>{"leaf_1.gif", "leaf_2.gif", "leaf_3.gif",
                                                        "leaf_4.gif", "leaf_5.gif"}));
}

TEST(shapes_plan, a_negative_gap_lets_shapes_overlap)
{
    const lines plan =
        template_lines(planned_shapes({.shape = "Circles", .last_photo = 6, .gap = -100}).places);
    // 2030 across for two, 1015 each; 1930 wide, so they begin at 35.
    EXPECT_EQ(fields_of_line(plan[0])[3], "1015");
    EXPECT_EQ(fields_of_line(plan[0])[1], "35");
    EXPECT_EQ(fields_of_line(plan[1])[1], "950");
}
