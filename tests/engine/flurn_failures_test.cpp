#include "engine/flurn_driver.h"
#include "engine/run_steps.h"
#include "photos/thumbnails/thumbnails.h"
#include "quick/quick_template.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/engine/collage_fixture.h"

#include <filesystem>
#include <gtest/gtest.h>

// How a run ends that doesn't come to its picture, or not to all of it.

TEST(make_flurn, a_missing_template_leaves_the_plain_ground)
{
    collage_fixture run;
    run.main.design_record.system = "Yes";
    run.home.write("install/design_list", "[other]\r\n");
    EXPECT_EQ(sampled(run.full_run(), 500, 1000), "..\n..\n..\n");
}

TEST(make_flurn, a_photo_that_vanished_is_left_out_and_named)
{
    four_photos run;
    const std::string gone = run.main.table[2];
    std::filesystem::remove(gone);
    run.desk.will_answer(answer::no);  // one of the three others is used twice
    EXPECT_EQ(sampled(run.full_run(), 500, 1000), "rg\nyr\nyr\n");
    EXPECT_EQ(run.desk.next_message(),
              "This photo was left out:\r\n" + gone +
                  ": it isn't there any more\r\n\r\nPut what is missing back in its place.\r\n"
                  "Then choose your photos again.");
    expect_usable(run.main);
}

TEST(make_flurn, a_cancel_while_it_gets_ready_ends_it)
{
    four_photos run;
    run.use_thumbnails();
    run.main.collage.quick_active = true;
    run.home.write("data/designs.ini", "[Design001]\r\nName=Match\r\nStyle=Place\r\n");
    run.home.write("data/designs/__quick", text_of(quarters()));
    run.desk.on_pump(1, [&] { run.main.run.cancel_requested = true; });
    make_flurn(run.main, make_quick_template);
    EXPECT_EQ(run.desk.next_message(), "Flurning has been canceled.");
    EXPECT_FALSE(run.main.collage.quick_active);
    EXPECT_TRUE(run.main.optPreview.selected());
    EXPECT_TRUE(is_thumbnail(run.main.table[0]));
    EXPECT_FALSE(file_exists(joined(run.main.data_folder, "tmp/finished.jpg")));
    EXPECT_EQ(run.desk.busy_depth, 0);
    expect_usable(run.main);
}

TEST(make_flurn, a_cancel_between_two_photos_ends_it_without_a_picture)
{
    four_photos run;
    run.main.optPreview.select();
    run.desk.on_pump(3, [&] {
        run.main.optPreview.select(false);
        run.main.run.cancel_requested = true;
    });
    make_flurn(run.main, make_quick_template);
    EXPECT_EQ(run.desk.next_message(), "Flurning has been canceled.");
    EXPECT_TRUE(run.main.optPreview.selected());
    EXPECT_FALSE(file_exists(joined(run.main.data_folder, "tmp/finished.jpg")));
    expect_usable(run.main);
}

TEST(make_flurn, a_cancel_in_a_grid_lets_it_run_to_its_end)
{
    four_photos run;
    run.main.design_record.style = "Fill";
    run.use_template({"0:0:2:2:0:-1:-1:0:", "0:0:1500:1000:0:0:0:0:"});
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.desk.on_pump(3, [&] { run.main.run.cancel_requested = true; });
    EXPECT_EQ(sampled(run.full_run(), 500, 1000), "rg\nby\nby\n");
    expect_usable(run.main);
}

TEST(make_flurn, an_error_in_the_run_shows_how_far_it_came_and_its_number)
{
    four_photos run;
    run.use_thumbnails();
    run.use_template({"0:0:3000:1000:60:0:0:0:"});
    run.main.optLandscape.select();
    run.main.design_record.background = "Portrait";
    run.main.optPreview.select();
    run.main.collage.quick_active = false;
    run.main.collage.matrix_session = true;
    make_flurn(run.main, make_quick_template);
    EXPECT_EQ(run.desk.next_message(), "MMM  HHH  CCC  AAA  XX  CAUGHT AN ERROR  6");
    EXPECT_FALSE(run.main.collage.matrix_session);
    EXPECT_FALSE(run.main.collage.quick_active);
    EXPECT_TRUE(run.main.optPortrait.selected());
    EXPECT_TRUE(run.main.optPreview.selected());
    EXPECT_FALSE(run.main.picSample.visible());
    EXPECT_TRUE(is_thumbnail(run.main.table[0]));
    EXPECT_EQ(run.desk.busy_depth, 0);
    expect_usable(run.main);
}

TEST(make_flurn, an_error_before_the_run_began_leaves_the_window_usable)
{
    four_photos run;
    run.use_template({"0:0:300:100:182:0:0:0:"});
    run.main.collage.design_mirrored = true;
    run.main.optPreview.select();
    EXPECT_THROW(make_flurn(run.main, make_quick_template), platform_error);
    EXPECT_TRUE(run.main.optPreview.selected());
    expect_usable(run.main);
}

TEST(make_flurn, a_full_disk_is_told_with_its_file_and_leaves_the_old_picture)
{
    four_photos run;
    const std::string path = run.home.write("data/tmp/finished.jpg", "old");
    {
        const full_disk limit(1000);
        make_flurn(run.main, make_quick_template);
    }
    const std::string message = run.desk.next_message();
    EXPECT_EQ(message, run.main.trace +
                           "XX  CAUGHT AN ERROR  61\nThe disk is full. Make room on it and try again.\n" +
                           path);
    EXPECT_EQ(read_file(path), "old");
    expect_usable(run.main);
    EXPECT_EQ(sampled(run.full_run(), 500, 1000), "rg\nby\nby\n") << "the next run goes through";
}

TEST(make_flurn, a_missing_work_folder_is_told_with_its_file)
{
    four_photos run;
    std::filesystem::remove_all(joined(run.main.data_folder, "tmp"));
    make_flurn(run.main, make_quick_template);
    const std::string message = run.desk.next_message();
    EXPECT_NE(message.find("XX  CAUGHT AN ERROR  "), std::string::npos);
    EXPECT_NE(message.find("finished.jpg"), std::string::npos);
    expect_usable(run.main);
}

TEST(report_cancel, tells_and_opens_the_window)
{
    collage_fixture run;
    run.main.run.run_active = run.main.run.cancel_requested = true;
    report_cancel(run.main);
    EXPECT_EQ(run.desk.next_message(), "Flurning has been canceled.");
    expect_usable(run.main);
}
