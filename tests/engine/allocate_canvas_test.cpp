#include "engine/canvas.h"
#include "tests/engine/collage_fixture.h"

#include <gtest/gtest.h>

TEST(allocate_canvas, is_the_collage_and_its_bleed_on_each_side)
{
    collage_fixture run;
    run.main.run.collage_margin = 70;
    allocate_canvas(run.main, run_size::full);
    EXPECT_EQ(run.main.run.canvas.width(), 2860);
    EXPECT_EQ(run.main.run.canvas.height(), 3860);
    EXPECT_EQ(letter_at(run.main.run.canvas, 0, 0), '.');
    EXPECT_EQ(letter_at(run.main.run.canvas, 2859, 3859), '.');
}

TEST(allocate_canvas, a_preview_is_a_sixth)
{
    collage_fixture run;
    run.main.run.collage_margin = 70;
    run.main.optLandscape.select();
    allocate_canvas(run.main, run_size::preview);
    EXPECT_EQ(run.main.collage_width, 500);
    EXPECT_EQ(run.main.collage_height, 333);
    EXPECT_EQ(run.main.run.collage_margin, 12);
    EXPECT_EQ(run.main.run.canvas.width(), 524);
}

TEST(allocate_canvas, stays_black_for_a_picture_that_covers_it)
{
    collage_fixture run;
    run.main.bg_color = 0x808080;
    run.main.optBGimage.select();
    run.main.cmbBlend.set_text("100");
    allocate_canvas(run.main, run_size::preview);
    EXPECT_EQ(letter_at(run.main.run.canvas, 0, 0), 'k');
    run.main.collage_width = 2000;
    run.main.collage_height = 3000;
    run.main.cmbBlend.set_text("99");
    allocate_canvas(run.main, run_size::preview);
    EXPECT_EQ(letter_at(run.main.run.canvas, 0, 0), '.') << "the session's colour";
}
