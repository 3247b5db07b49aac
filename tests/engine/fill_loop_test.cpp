#include "engine/fill_loop.h"

#include "engine/image_number.h"
#include "engine/run_steps.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

// A grid whose cells and gaps are whole tens, so that a sample every ten pixels shows it.
struct grid_run : collage_fixture {
    grid_run(int16 rows, int16 columns)
    {
        use_canvas(130, 110);
        main.work_style = "Fill";
        main.shake_start = 0;
        add_location({.top = 10, .left = 10, .height = rows, .width = columns, .frame = 0, .shadow = 0});
        add_location({.top = 10, .left = 10, .height = 30, .width = 20});
    }
    std::string filled()
    {
        fill_loop(main, [this] { show_image_number(main); });
        return sampled(main.run.canvas, 5, 10);
    }
};

std::vector<std::string> saved_lines(const collage_fixture & run)
{
    line_source source(joined(run.main.data_folder, "tmp/saved_matrix"));
    std::vector<std::string> lines;
    while (!source.at_end())
        lines.push_back(source.read_line());
    return lines;
}

}  // namespace

TEST(fill_loop, counts_of_the_template_bound_the_grid)
{
    grid_run run(2, 3);
    run.add_photo(red);
    run.add_photo(green);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.filled(),
              ".............\n"
              ".rr.gg.rr....\n"
              ".rr.gg.rr....\n"
              ".rr.gg.rr....\n"
              ".............\n"
              ".gg.rr.gg....\n"
              ".gg.rr.gg....\n"
              ".gg.rr.gg....\n"
              ".............\n"
              ".............\n"
              ".............\n");
}

TEST(fill_loop, without_counts_it_fills_the_canvas_to_its_end)
{
    grid_run run(0, 0);
    run.main.collage_width = 70;
    run.main.collage_height = 60;
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    // A cell that begins on the edge is still drawn: 70 isn't beyond 70.
    EXPECT_EQ(run.filled(),
              ".............\n"
              ".rr.rr.rr....\n"
              ".rr.rr.rr....\n"
              ".rr.rr.rr....\n"
              ".............\n"
              ".rr.rr.rr....\n"
              ".rr.rr.rr....\n"
              ".rr.rr.rr....\n"
              ".............\n"
              ".............\n"
              ".............\n");
}

TEST(fill_loop, the_bleed_moves_the_grid)
{
    grid_run run(1, 1);
    run.main.run.collage_margin = 20;
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    EXPECT_EQ(letter_at(run.main.run.canvas, 29, 45), '.');
    EXPECT_EQ(letter_at(run.main.run.canvas, 30, 30), 'r');
    EXPECT_EQ(letter_at(run.main.run.canvas, 49, 59), 'r');
    EXPECT_EQ(letter_at(run.main.run.canvas, 50, 45), '.');
}

TEST(fill_loop, the_wrap_asks_once_even_behind_the_last_cell)
{
    grid_run run(1, 2);
    run.add_photo(red);
    run.add_photo(green);
    run.desk.will_answer(answer::no);
    run.filled();
    EXPECT_EQ(run.desk.questions.size(), 1U);
    EXPECT_EQ(run.main.run.photo_cursor, 0);
}

TEST(fill_loop, a_photo_that_does_not_fit_is_passed_over)
{
    grid_run run(1, 3);
    run.main.chkMatch.tick(true);
    run.add_photo(blue, 60, 40);
    run.add_photo(red);
    run.add_photo(yellow, 50, 50);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.filled().substr(14, 14), ".rr.yy.rr....\n");
    EXPECT_TRUE(run.main.chkMatch.ticked());
}

TEST(fill_loop, without_a_photo_that_fits_it_says_so_and_stops_matching)
{
    grid_run run(1, 2);
    run.main.chkMatch.tick(true);
    int previews = 0;
    run.main.chkMatch.on_change = [&] { previews += run.main.updating_controls ? 0 : 1; };
    run.add_photo(blue, 60, 40);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.filled().substr(14, 14), ".bb.bb.......\n");
    EXPECT_EQ(run.desk.next_message(), "You don't have any photos that match this design.");
    EXPECT_FALSE(run.main.chkMatch.ticked());
    EXPECT_EQ(previews, 0) << "a preview inside the run";
}

TEST(fill_loop, a_search_that_comes_round_asks_when_a_photo_has_fitted_before)
{
    grid_run run(1, 2);
    run.main.chkMatch.tick(true);
    run.add_photo(red);
    run.add_photo(blue, 60, 40);
    run.desk.will_answer(answer::no);
    EXPECT_EQ(run.filled().substr(14, 14), ".rr.rr.......\n");
    EXPECT_EQ(run.desk.questions.size(), 1U);
}

TEST(fill_loop, a_photo_across_takes_two_cells_where_both_kinds_are_welcome)
{
    grid_run run(1, 4);
    run.main.chkMatch.tick(true);
    run.main.collage.matrix_both = true;
    run.add_photo(red);
    run.add_photo(blue, 60, 40);
    run.add_photo(green);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.filled().substr(14, 14), ".rr.bbbbb.gg.\n");
    EXPECT_EQ(run.main.run.image_number, 4) << "three pictures in four cells";
}

TEST(fill_loop, the_last_column_takes_no_photo_across)
{
    grid_run run(1, 3);
    run.main.chkMatch.tick(true);
    run.main.collage.matrix_both = true;
    run.add_photo(blue, 60, 40);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.filled().substr(14, 14), ".bbbbb.bb....\n");
    EXPECT_EQ(run.desk.next_message(), "You don't have any photos that match this design.");
}

TEST(fill_loop, a_photo_that_cannot_be_read_leaves_its_cell_to_the_next)
{
    grid_run run(1, 3);
    run.add_photo(red);
    run.add_path(run.home.at("photos/gone.jpg"));
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(run.filled().substr(14, 14), ".rr.rr.rr....\n");
}

TEST(fill_loop, six_rows_are_three_layers_and_the_photos_run_on)
{
    grid_run run(1, 2);
    run.add_location({.top = 50, .left = 10, .height = 1, .width = 2});
    run.add_location({.top = 10, .left = 10, .height = 30, .width = 20});
    run.add_location({.top = 80, .left = 40, .height = 1, .width = 1});
    run.add_location({.top = 10, .left = 10, .height = 20, .width = 20});
    for (const rgb_triple color : {red, green, blue, yellow, red})
        run.add_photo(color);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.main.run.photo_cursor = 3;
    place_photos(run.main, run_size::full);
    EXPECT_EQ(sampled(run.main.run.canvas, 5, 10),
              ".............\n"
              ".rr.gg.......\n"
              ".rr.gg.......\n"
              ".rr.gg.......\n"
              ".............\n"
              ".bb.yy.......\n"
              ".bb.yy.......\n"
              ".bb.yy.......\n"
              "....rr.......\n"
              "....rr.......\n"
              ".............\n");
    EXPECT_EQ(run.main.design_locations.count, 2);
}

TEST(fill_loop, a_cancel_is_not_looked_at)
{
    grid_run run(1, 3);
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.desk.on_pump(1, [&] { run.main.run.cancel_requested = true; });
    EXPECT_EQ(run.filled().substr(14, 14), ".rr.rr.rr....\n");
    EXPECT_TRUE(run.main.run.cancel_requested);
}

TEST(fill_loop, all_flags_off_leave_no_saved_matrix_behind)
{
    grid_run run(1, 1);
    const std::string path = run.home.write("data/tmp/saved_matrix", "old");
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    EXPECT_FALSE(file_exists(path));
}

TEST(fill_loop, tilted_photos_are_written_to_the_saved_matrix)
{
    grid_run run(1, 3);
    run.main.collage.matrix_rotate = true;
    run.main.collage.matrix_resize = true;
    run.main.run.collage_margin = 30;
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    // Rows 0 to 2 of the table; the shifts are 0.6 of the two last columns. Scales above 1 don't count on the
    // edge.
    EXPECT_EQ(saved_lines(run),
              (std::vector<std::string>{
                  "08:08:30:20:-05:-1:-1:0:", "12:43:27:18:10:-1:-1:0:", "11:67:30:20:15:-1:-1:0:"}));
    EXPECT_EQ(run.main.design_locations[1].rotation, 15);
}

TEST(fill_loop, upright_photos_leave_an_empty_saved_matrix)
{
    grid_run run(1, 2);
    run.main.collage.matrix_resize = true;
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    EXPECT_TRUE(saved_lines(run).empty());
}

TEST(fill_loop, resizing_alone_scales_and_shifts)
{
    grid_run run(1, 2);
    run.main.collage.matrix_resize = true;
    run.main.shake_start = 3;  // scale 0.85, shifts -2 and 2: 0.6 of each
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    const bitmap & canvas = run.main.run.canvas;
    EXPECT_EQ(letter_at(canvas, 11, 9), 'r');
    EXPECT_EQ(letter_at(canvas, 10, 20), '.');
    EXPECT_EQ(letter_at(canvas, 27, 34), 'r');  // 17 wide, 26 high
    EXPECT_EQ(letter_at(canvas, 28, 20), '.');
    EXPECT_EQ(letter_at(canvas, 20, 35), '.');
}

TEST(fill_loop, the_start_of_the_shaking_is_drawn_once)
{
    grid_run run(1, 1);
    run.main.shake_start = -1;
    run.main.random = listed({0.5});
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    EXPECT_EQ(run.main.shake_start, 8);
    run.filled();
    EXPECT_EQ(run.main.shake_start, 8);
}

TEST(fill_loop, the_start_of_the_shaking_may_be_any_of_the_table)
{
    for (const auto & [drawn, start] : {std::pair{0.0, 0}, {0.03, 0}, {0.04, 1}, {0.96, 15}, {0.97, 16}}) {
        grid_run run(1, 1);
        run.main.shake_start = -1;
        run.main.random = listed({drawn});
        run.add_photo(red);
        run.main.table.reshuffle_choice = photo_table::reshuffle::no;
        run.filled();
        EXPECT_EQ(run.main.shake_start, start) << drawn;
    }
}

TEST(fill_loop, a_grid_whose_cells_have_no_size_is_an_overflow)
{
    grid_run run(0, 0);
    run.main.design_locations[1] = {};
    run.add_photo(red);
    try {
        fill_loop(run.main, {});
        FAIL();
    } catch (const platform_error & error) {
        EXPECT_EQ(code(error), 6);
    }
}

TEST(fill_loop, a_template_without_its_two_rows_or_a_list_without_photos_draws_nothing)
{
    grid_run run(1, 1);
    EXPECT_EQ(run.filled().substr(14, 14), ".............\n");
    run.add_photo(red);
    run.main.design_locations.count = 0;
    EXPECT_EQ(run.filled().substr(14, 14), ".............\n");
}

TEST(fill_loop, a_card_fills_its_cell_without_shifts)
{
    grid_run run(1, 2);
    run.main.chkCaption.tick(true);
    run.main.collage.matrix_resize = true;
    run.main.run.frame_color = yellow;
    run.add_photo(red);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.filled();
    const bitmap & canvas = run.main.run.canvas;
    EXPECT_EQ(letter_at(canvas, 10, 10), 'y');
    EXPECT_EQ(letter_at(canvas, 29, 39), 'y');
    EXPECT_EQ(letter_at(canvas, 40, 10), 'y');
    EXPECT_EQ(letter_at(canvas, 9, 20), '.');
}
