#include "engine/layout/worn_ornaments.h"

#include "tests/engine/collage_fixture.h"

#include <gtest/gtest.h>

TEST(worn_at, takes_the_frame_from_the_location_and_the_window)
{
    collage_fixture run;
    run.main.cmbFrame.set_text("12");
    const auto size_for = [&](int value) { return worn_at(run.main, {.frame = narrow(value)}, 0).frame; };
    EXPECT_EQ(size_for(-1), 12);
    EXPECT_EQ(size_for(5), 5);
    run.main.cmbFrame.enable(false);
    EXPECT_EQ(size_for(5), 12);
    run.main.frmHideOrnaments.show(false);
    EXPECT_EQ(size_for(5), 5);
    EXPECT_EQ(size_for(-1), 0);
    run.main.frmHideOrnaments.show(true);
    run.main.picFrameColor.tag = "False";
    EXPECT_EQ(size_for(-1), 0);
    run.main.picFrameColor.tag = "True";
    run.main.in_preview = true;
    EXPECT_EQ(size_for(-1), 3);
}

TEST(worn_at, takes_the_shadow_as_the_run_found_the_window)
{
    collage_fixture run;
    run.main.cmbShadow.set_text("14");
    const auto size_for = [&](int value) { return worn_at(run.main, {.shadow = narrow(value)}, 0).shadow; };
    EXPECT_EQ(size_for(5), 0);
    run.main.enabling.shadow_usable = true;
    EXPECT_EQ(size_for(5), 5);
    EXPECT_EQ(size_for(-1), -1);
    run.main.enabling.shadow_fixed = true;
    EXPECT_EQ(size_for(-1), 14);
    EXPECT_EQ(size_for(0), 0);
    run.main.in_preview = true;
    EXPECT_EQ(size_for(-1), 4);
}

TEST(worn_by_boxes, rounds_photos_by_the_boxs_own_flags_and_else_cuts_their_corners_alone)
{
    collage_fixture run;
    const auto corners = [&] { return worn_by_boxes(run.main, 0).corners; };
    EXPECT_EQ(corners(), photo_corners::square);
    run.main.chkRounded.tick(true);
    run.main.frmOrnaments.enable(false);  // as it is during a run
    EXPECT_EQ(corners(), photo_corners::rounded);
    run.main.chkRounded.enable(false);
    EXPECT_EQ(corners(), photo_corners::cut);
    run.main.chkRounded.enable(true);
    run.main.chkRounded.show(false);
    EXPECT_EQ(corners(), photo_corners::cut);
}

TEST(worn_by_boxes, softens_upright_photos_while_the_ornaments_show_and_tilted_ones_always)
{
    collage_fixture run;
    const auto edges = [&](int rotation) { return worn_by_boxes(run.main, rotation).edges; };
    EXPECT_EQ(edges(0), photo_edges::hard);
    run.main.chkSoftEdge.tick(true);
    EXPECT_EQ(edges(0), photo_edges::soft);
    run.main.frmOrnaments.show(false);
    EXPECT_EQ(edges(0), photo_edges::hard);
    EXPECT_EQ(edges(-5), photo_edges::soft);
}

TEST(worn_by_boxes, has_the_colours_and_the_size_of_the_run)
{
    collage_fixture run;
    run.main.run.frame_color = yellow;
    run.main.run.shadow_color = blue;
    EXPECT_EQ(worn_by_boxes(run.main, 0).frame_color, yellow);
    EXPECT_EQ(worn_by_boxes(run.main, 0).shadow_color, blue);
    EXPECT_EQ(worn_by_boxes(run.main, 0).size, run_size::full);
    run.main.in_preview = true;
    EXPECT_EQ(worn_by_boxes(run.main, 0).size, run_size::preview);
}

TEST(worn_in_grid, bounds_the_sizes_of_a_preview_again)
{
    collage_fixture run;
    run.main.in_preview = true;
    run.main.enabling.shadow_usable = run.main.enabling.shadow_fixed = true;
    run.main.cmbFrame.set_text("60");
    run.main.cmbShadow.set_text("50");
    const location cells{.frame = -1, .shadow = -1};
    EXPECT_EQ(worn_at(run.main, cells, 0).frame, 11);   // 60 / 6 + 1
    EXPECT_EQ(worn_at(run.main, cells, 0).shadow, 12);  // 50 / 4
    EXPECT_EQ(worn_in_grid(run.main, cells, 0).frame, 8);
    EXPECT_EQ(worn_in_grid(run.main, cells, 0).shadow, 8);
    run.main.in_preview = false;
    EXPECT_EQ(worn_in_grid(run.main, cells, 0).frame, 60);
    EXPECT_EQ(worn_in_grid(run.main, cells, 0).shadow, 50);
}
