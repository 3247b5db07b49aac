#include "quick/quick_template.h"

#include "tests/engine/collage_fixture.h"
#include "tests/quick/quick_session.h"

#include <gtest/gtest.h>

namespace {

// Tables for the quick styles, and what a search of a scatter has found in them.
void make_ready_for_quick(collage_fixture & run)
{
    write_quick_tables(run.home);
    run.home.at("data/designs/x");
    run.main.quick.quick_along = run.main.quick.quick_cross = 2;
    run.main.quick.photos_portrait = run.main.quick.photos_landscape = 2;
    run.main.quick.photo_shapes = "p:p:l:l:";
    run.main.quick.scatter_line = "04:02:02:four";
}

}  // namespace

TEST(make_quick_template, reads_the_record_of_the_style_and_points_it_at_the_quick_file)
{
    collage_fixture run;
    make_ready_for_quick(run);
    run.home.write("data/designs.ini",
                   "[Design001]\r\nName=Match\r\nFile=__match\r\nStyle=Place\r\n"
                   "[Design002]\r\nName=Quick matrix\r\nFile=__quick\r\nDesign=Block\r\n");
    run.main.collage.quick_active = true;
    run.main.optBlock.select();
    make_quick_template(run.main, run_size::full);
    EXPECT_EQ(run.main.design_record.name, "Match");
    EXPECT_EQ(run.main.design_record.file, "__quick");
    run.main.optMatrix.select();
    make_quick_template(run.main, run_size::full);
    EXPECT_EQ(run.main.design_record.name, "Quick matrix");
}

TEST(make_quick_template, says_when_a_record_is_missing_and_goes_on)
{
    collage_fixture run;
    make_ready_for_quick(run);
    run.home.write("data/designs.ini", "[Design001]\r\nName=Other\r\n");
    run.main.collage.quick_active = true;
    run.main.optScatter.select();
    make_quick_template(run.main, run_size::full);
    EXPECT_EQ(run.desk.next_message(), "should not happen 2 ?");
    run.main.optMatrix.select();
    make_quick_template(run.main, run_size::full);
    EXPECT_EQ(run.desk.next_message(), "WHY CHECK FOR THIS??\r\nShould not happen: 101 ");
    make_quick_template(run.main, run_size::preview);
    EXPECT_EQ(run.desk.next_message(), "Should not happen: 101 \r\nWHY CHECK FOR THIS??");
}

TEST(make_quick_template, leaves_a_chosen_design_alone)
{
    collage_fixture run;
    make_quick_template(run.main, run_size::full);
    EXPECT_EQ(run.main.design_record.file, "test");
}
