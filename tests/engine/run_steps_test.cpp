#include "engine/run_steps.h"

#include "designs/templates/location_order.h"
#include "engine/layout/run_layout.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/engine/layout/measures.h"
#include "tests/pictures.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>

namespace {

// One location and no photos, so that the loop leaves the locations as they were brought to the canvas.
struct bare_run : collage_fixture {
    bare_run()
    {
        use_canvas(100, 100);
        main.run.collage_margin = 430;
        add_location(measures(100, 200, 300, 400));
    }
    location placed(run_size size)
    {
        main.in_preview = size == run_size::preview;
        place_photos(main, size);
        return main.design_locations[0];
    }
};

// A run of a dozen locations; the other eleven are small.
struct dozen_run : bare_run {
    dozen_run()
    {
        for (int16 i = 1; i < 12; ++i)
            add_location(measures(narrow(100 + i), 0, 1, 1));
    }
};

bool bending_mixes(const std::function<void(frmMain &)> & settings)
{
    dozen_run run;
    run.main.random = listed({0.5});
    settings(run.main);
    bend_template(run.main, run_size::full);
    return run.main.mix_step != -1;
}

}  // namespace

TEST(place_photos, adds_the_bleed)
{
    EXPECT_EQ(bare_run().placed(run_size::full), measures(530, 630, 300, 400));
    EXPECT_EQ(bare_run().placed(run_size::preview), measures(538, 638, 300, 400));
}

TEST(place_photos, a_grid_gets_its_bleed_in_its_loop)
{
    bare_run full, preview;
    full.main.work_style = preview.main.work_style = "Fill";
    EXPECT_EQ(full.placed(run_size::full), measures(100, 200, 300, 400));
    EXPECT_EQ(preview.placed(run_size::preview), measures(108, 208, 300, 400));
}

TEST(place_photos, frames_inside_take_their_width_off_the_locations)
{
    bare_run full, preview, no_frame, grid;
    for (bare_run * run : {&full, &preview, &no_frame, &grid}) {
        run->main.collage.frames_inside = true;
        run->main.run.frame_size = 10;
    }
    no_frame.main.run.frame_size = 0;
    grid.main.work_style = "Fill";
    EXPECT_EQ(full.placed(run_size::full), measures(540, 640, 280, 380));
    EXPECT_EQ(no_frame.placed(run_size::full), measures(530, 630, 300, 400));
    EXPECT_EQ(grid.placed(run_size::full), measures(100, 200, 300, 400));
}

TEST(place_photos, soft_edges_let_the_locations_grow)
{
    bare_run full, preview, hidden;
    for (bare_run * run : {&full, &preview, &hidden})
        run->main.chkSoftEdge.tick(true);
    hidden.main.frmOrnaments.show(false);
    EXPECT_EQ(full.placed(run_size::full), measures(510, 610, 340, 440));
    EXPECT_EQ(preview.placed(run_size::preview), measures(535, 635, 306, 406));
    EXPECT_EQ(hidden.placed(run_size::full), measures(530, 630, 300, 400));
}

TEST(place_photos, soft_edges_let_a_grid_grow_at_full_size_alone)
{
    bare_run full, preview;
    for (bare_run * run : {&full, &preview}) {
        run->main.chkSoftEdge.tick(true);
        run->main.work_style = "Fill";
    }
    EXPECT_EQ(full.placed(run_size::full), measures(80, 180, 300, 400));
    EXPECT_EQ(preview.placed(run_size::preview), measures(108, 208, 300, 400));
}

TEST(place_photos, evolve_counts_from_0_and_stays_out_of_the_way_otherwise)
{
    bare_run run;
    run.placed(run_size::full);
    EXPECT_EQ(run.main.run.evolve_portrait_wraps, 9);
    EXPECT_EQ(run.main.run.evolve_landscape_wraps, 9);
    run.main.chkEvolve.tick(true);
    run.placed(run_size::full);
    EXPECT_EQ(run.main.run.evolve_portrait_wraps, 0);
    EXPECT_EQ(run.main.run.evolve_landscape_wraps, 0);
}

TEST(place_photos, the_order_changes_only_for_plain_designs_that_were_asked_to)
{
    const auto first_top = [](bool random_design, bool rotated, std::initializer_list<double> chance) {
        dozen_run run;
        run.main.random = listed(chance);
        run.main.collage.random_design = random_design;
        run.main.collage.design_rotated = rotated;
        place_photos(run.main, run_size::full);
        return run.main.design_locations[0].top - 430;
    };
    EXPECT_EQ(first_top(true, false, {}), 100);
    EXPECT_EQ(first_top(false, true, {}), 100);
    // Two shuffles of their own step and start each.
    EXPECT_NE(first_top(true, true, {0.0, 0.0, 0.3, 0.4, 0.3, 0.7}), 100);
}

TEST(place_photos, the_order_is_turned_as_often_as_two_numbers_say_and_once_more)
{
    struct row {
        double count, factor;
        int shuffles;
    };
    // 1 to 8 and then 0, times 1 to 3.
    for (const row & each : {row{0.0, 0.0, 2}, row{0.0, 0.5, 3}, row{0.0, 0.99, 4}, row{0.25, 0.5, 7},
                             row{0.8, 0.99, 25}, row{0.95, 0.99, 1}}) {
        dozen_run run;
        int drawn = 0;
        run.main.random = {.next = [&] { return ++drawn == 1 ? each.count
                                                : drawn == 2 ? each.factor
                                                             : 0.3; },
                           .reseed = [] {}};
        run.main.collage.random_design = run.main.collage.design_rotated = true;
        location_table expected, scratch;
        expected.add(measures(530, 630, 300, 400));
        for (int16 i = 1; i < 12; ++i)
            expected.add(measures(narrow(530 + i), 430, 1, 1));
        place_photos(run.main, run_size::full);
        EXPECT_EQ(drawn, 2 + 2 * each.shuffles);
        for (int i = 0; i < each.shuffles; ++i)
            shuffle(expected, scratch,
                    {.step = 3, .first = 4});  // of 0.3: the third step of seven, the fourth of eleven places
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(run.main.design_locations[i], expected[i]) << each.shuffles << " at " << i;
    }
}

TEST(place_photos, a_full_run_turns_the_order_as_the_preview_before_it_did)
{
    const auto tops = [](dozen_run & run, run_size size) {
        run.main.design_locations.clear();
        for (int16 i = 0; i < 12; ++i)
            run.add_location(measures(i, 0, 1, 1));
        place_photos(run.main, size);
        std::vector<int> found;
        for (int i = 0; i < 12; ++i)
            found.push_back(run.main.design_locations[i].top - run.main.design_locations[0].top);
        return found;
    };
    dozen_run run;
    run.main.random = seeded_random(5);
    run.main.collage.random_design = run.main.collage.design_rotated = true;
    std::set<std::vector<int>> seen_orders;
    for (int i = 0; i < 5; ++i) {
        const std::vector<int> preview = tops(run, run_size::preview);
        seen_orders.insert(preview);
        EXPECT_EQ(tops(run, run_size::full), preview);
        EXPECT_EQ(tops(run, run_size::full), preview);
    }
    EXPECT_GT(seen_orders.size(), 2U) << "every preview draws anew";
}

TEST(place_photos, a_cancelled_preview_has_not_been_shown)
{
    dozen_run run;
    run.main.random = seeded_random(5);
    run.main.collage.random_design = run.main.collage.design_rotated = true;
    run.main.run.cancel_requested = true;
    EXPECT_EQ(place_photos(run.main, run_size::preview), run_end::cancelled);
    EXPECT_TRUE(run.main.collage.turns_shown.empty());
}

TEST(place_photos, a_design_of_another_size_has_an_order_of_its_own)
{
    dozen_run run;
    run.main.random = seeded_random(5);
    run.main.collage.random_design = run.main.collage.design_rotated = true;
    place_photos(run.main, run_size::preview);
    EXPECT_EQ(run.main.collage.locations_shown, 12);
    run.main.design_locations.clear();
    for (int16 i = 0; i < 7; ++i)
        run.add_location(measures(i, 0, 1, 1));
    place_photos(run.main, run_size::full);
    EXPECT_EQ(run.main.collage.locations_shown, 7);
}

TEST(place_photos, a_stretched_design_is_stretched_before_the_bleed_comes)
{
    bare_run run;
    run.main.collage.stretch_design = run.main.poster_tall = true;
    EXPECT_EQ(run.placed(run_size::full), measures(430 + 93, 430 + 210, 280, 420));
}

TEST(run_layout, what_is_turned_after_it_was_bent)
{
    const auto is_turned = [](const auto & settings) {
        collage_fixture run;
        settings(run.main);
        return is_turned_afterwards(run.main);
    };
    EXPECT_FALSE(is_turned([](frmMain &) {}));
    EXPECT_TRUE(is_turned([](frmMain & main) { main.collage.landscape_turn = -90; }));
    const auto upright_on_landscape = [](frmMain & main) {
        main.optLandscape.select();
        main.design_record.background = "Portrait";
    };
    EXPECT_TRUE(is_turned(upright_on_landscape));
    const auto saved_landscape = [](frmMain & main) {
        main.optLandscape.select();
        main.design_record.background = "Landscape";
        main.design_record.design = "Saved";
        main.work_style = "Place";
    };
    EXPECT_TRUE(is_turned(saved_landscape));
    EXPECT_FALSE(is_turned([&](frmMain & main) {
        saved_landscape(main);
        main.in_preview = true;
        main.collage.landscape_turn = saved_landscape_turn;
    })) << "a preview has turned it already";
}

TEST(run_layout, tells_grids_from_places)
{
    collage_fixture run;
    const auto of = [&](const char * style) {
        run.main.work_style = style;
        return layout_of(run.main);
    };
    EXPECT_EQ(of("Place"), layout::places);
    EXPECT_EQ(of("Fill"), layout::grids);
    EXPECT_EQ(of("Matrix"), layout::grids);
}

TEST(run_layout, saved_grids_are_never_turned)
{
    collage_fixture run;
    run.main.optLandscape.select();
    run.main.design_record.design = "Saved";
    run.main.work_style = "Fill";
    EXPECT_FALSE(is_saved_landscape(run.main));
    run.main.work_style = "Place";
    EXPECT_TRUE(is_saved_landscape(run.main));
    run.main.design_record.design = "";
    run.main.design_record.file = "saved612";
    EXPECT_TRUE(is_saved_landscape(run.main));
    run.main.optPortrait.select();
    EXPECT_FALSE(is_saved_landscape(run.main));
}

TEST(bend_template, notes_the_first_cell)
{
    bare_run run;
    bend_template(run.main, run_size::full);
    EXPECT_EQ(run.main.run.first_cell_height, 300);
    EXPECT_EQ(run.main.run.first_cell_width, 400);
}

TEST(bend_template, mixes_shapes_that_overlap_or_are_to_be_mixed)
{
    const auto mixed = [](const auto & settings) {
        return bending_mixes([&](frmMain & main) {
            main.optShapes.select();
            settings(main);
        });
    };
    EXPECT_FALSE(mixed([](frmMain &) {}));
    EXPECT_TRUE(mixed([](frmMain & main) { main.chkMix.tick(true); }));
    EXPECT_TRUE(mixed([](frmMain & main) { main.cmbSpace.set_text("-10"); }));
    EXPECT_FALSE(mixed([](frmMain & main) {
        main.chkMix.tick(true);
        main.frmStyle.show(false);
    }));
    EXPECT_FALSE(mixed([](frmMain & main) {
        main.chkMix.tick(true);
        main.optBlock.select();
    }));
}

TEST(bend_template, mixes_a_shaken_quick_matrix)
{
    const auto mixed = [](const auto & settings) {
        return bending_mixes([&](frmMain & main) {
            main.collage.quick_active = true;
            main.optMatrix.select();
            settings(main);
        });
    };
    EXPECT_FALSE(mixed([](frmMain &) {}));
    EXPECT_TRUE(mixed([](frmMain & main) { main.chkRotate.tick(true); }));
    EXPECT_TRUE(mixed([](frmMain & main) { main.chkResize.tick(true); }));
    EXPECT_TRUE(mixed([](frmMain & main) { main.chkShuffle.tick(true); }));
    EXPECT_FALSE(mixed([](frmMain & main) {
        main.chkRotate.tick(true);
        main.collage.quick_active = false;
    }));
}

TEST(went_through, words_every_platform_error_once)
{
    collage_fixture run;
    run.main.trace = "MMM  ";
    EXPECT_TRUE(went_through(run.main, [] {}));
    EXPECT_FALSE(went_through(run.main, [] { throw std::bad_alloc(); }));
    EXPECT_EQ(run.desk.next_message(), "MMM  XX  CAUGHT AN ERROR  7");
    EXPECT_FALSE(went_through(run.main, [] { read_file("/nowhere/at/all"); }));
    EXPECT_EQ(run.desk.next_message(),
              "MMM  XX  CAUGHT AN ERROR  53\nThe file or folder does not exist.\n/nowhere/at/all");
    EXPECT_THROW(went_through(run.main, [] { throw std::logic_error("a fault of our own"); }),
                 std::logic_error);
}
