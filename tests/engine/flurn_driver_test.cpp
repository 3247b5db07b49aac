#include "engine/flurn_driver.h"

#include "engine/pixels/key_color.h"
#include "photos/thumbnails/thumbnails.h"
#include "quick/quick_template.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

TEST(make_flurn, lays_the_photos_out_on_a_poster_without_the_bleed)
{
    four_photos run;
    const bitmap shown = run.full_run();
    EXPECT_EQ(shown.width(), 2000);
    EXPECT_EQ(shown.height(), 3000);
    EXPECT_EQ(sampled(shown, 250, 500), "rrgg\nrrgg\nrrgg\nbbyy\nbbyy\nbbyy\n");
    EXPECT_EQ(sampled(run.finished(), 250, 500), sampled(shown, 250, 500));
    EXPECT_EQ(run.main.image_to_show, joined(run.main.data_folder, "tmp/finished.jpg"));
    EXPECT_EQ(run.main.run.collage_margin, 430);
    EXPECT_DOUBLE_EQ(run.main.run.collage_scale, 5);
    EXPECT_EQ(run.desk.busy_depth, 0);
    expect_usable(run.main);
}

TEST(make_flurn, photos_stand_edge_to_edge_from_the_first_pixel_to_the_last)
{
    four_photos run;
    const bitmap shown = run.full_run();
    EXPECT_EQ(letter_at(shown, 0, 0), 'r');
    EXPECT_EQ(letter_at(shown, 999, 1499), 'r');
    EXPECT_EQ(letter_at(shown, 1000, 1499), 'g');
    EXPECT_EQ(letter_at(shown, 999, 1500), 'b');
    EXPECT_EQ(letter_at(shown, 1999, 2999), 'y');
}

TEST(make_flurn, the_window_is_shut_while_the_collage_is_made_and_shown)
{
    four_photos run;
    run.main.optPreview.select();
    bool looked = false;
    run.desk.on_pump(1, [&] {
        looked = true;
        EXPECT_TRUE(run.main.run.run_active);
        EXPECT_FALSE(run.main.frmOutput.enabled());
        EXPECT_FALSE(run.main.cmdFlurn.enabled());
        EXPECT_FALSE(run.main.cmdHelp.enabled());
        EXPECT_TRUE(run.main.optSample.selected());
        EXPECT_FALSE(run.main.in_preview);
        EXPECT_EQ(run.main.txtDoing.text(), "Initializing....");
        EXPECT_EQ(run.main.cmdCancel.caption(), "Cancel");
        EXPECT_EQ(run.desk.busy_depth, 1);
    });
    run.desk.on_modal<frmImage>([&](frmImage &) {
        EXPECT_FALSE(run.main.frmOutput.enabled());
        EXPECT_EQ(run.desk.busy_depth, 0);
    });
    make_flurn(run.main, make_quick_template);
    EXPECT_TRUE(looked);
    EXPECT_EQ(run.main.txtDoing.text(), "Finishing touches...");
}

TEST(make_flurn, gives_the_options_back_without_a_preview)
{
    four_photos run;
    run.main.optPreview.select();
    run.main.in_preview = true;
    int previews = 0;
    run.main.optPreview.on_click =
        run.main.optSample.on_click = [&] { previews += run.main.updating_controls ? 0 : 1; };
    run.full_run();
    EXPECT_TRUE(run.main.optPreview.selected());
    EXPECT_TRUE(run.main.in_preview);
    EXPECT_EQ(previews, 0);
}

TEST(make_flurn, works_on_the_photos_and_gives_the_thumbnails_back)
{
    four_photos run;
    run.use_thumbnails();
    const std::string thumbnail = run.main.table[0];
    ASSERT_TRUE(is_thumbnail(thumbnail));
    look_at_start(run, [&] { EXPECT_EQ(run.main.table[0], photo_path(thumbnail)); });
    EXPECT_EQ(run.main.table[0], thumbnail);
}

TEST(make_flurn, a_landscape_poster_of_an_upright_design_is_turned)
{
    four_photos run;
    run.main.optLandscape.select();
    run.main.design_record.background = "Portrait";
    const bitmap shown = run.full_run();
    EXPECT_EQ(shown.width(), 3000);
    EXPECT_EQ(shown.height(), 2000);
    EXPECT_EQ(sampled(shown, 250, 500), "bbbrrr\nbbbrrr\nyyyggg\nyyyggg\n");
}

TEST(make_flurn, a_design_drawn_for_a_lying_poster_stays)
{
    four_photos run;
    run.use_template({"0:0:2000:1500:0:0:0:0:", "0:1500:2000:1500:0:0:0:0:"});
    run.main.optLandscape.select();
    run.main.design_record.background = "Landscape";
    EXPECT_EQ(sampled(run.full_run(), 250, 500), "rrrggg\nrrrggg\nrrrggg\nrrrggg\n");
}

TEST(make_flurn, a_square_poster_is_2000_by_2000)
{
    four_photos run;
    run.use_template({"0:0:2000:1000:0:0:0:0:", "0:1000:2000:1000:0:0:0:0:"});
    run.main.optSquare.select();
    EXPECT_EQ(sampled(run.full_run(), 250, 500), "rrgg\nrrgg\nrrgg\nrrgg\n");
}

TEST(make_flurn, a_border_shows_the_ground_evenly)
{
    four_photos run;
    run.main.optHuge.select();
    const bitmap shown = run.full_run();
    EXPECT_EQ(letter_at(shown, 299, 1400), '.');
    EXPECT_EQ(letter_at(shown, 300, 1400), 'r');
    EXPECT_EQ(letter_at(shown, 1699, 1400), 'g');
    EXPECT_EQ(letter_at(shown, 1700, 1400), '.');
    EXPECT_EQ(letter_at(shown, 600, 299), '.');
    EXPECT_EQ(letter_at(shown, 600, 300), 'r');
    EXPECT_EQ(letter_at(shown, 600, 2699), 'b');
    EXPECT_EQ(letter_at(shown, 600, 2700), '.');
}

TEST(make_flurn, a_grid_fills_the_poster)
{
    four_photos run;
    run.main.design_record.style = "Fill";
    run.use_template({"0:0:0:0:0:-1:-1:0:", "0:0:1000:1000:0:0:0:0:"});
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    EXPECT_EQ(sampled(run.full_run(), 500, 1000), "rg\nyr\nby\n") << "a third column lies in the bleed";
}

TEST(make_flurn, a_random_order_is_drawn_before_the_photos_are_placed)
{
    four_photos run;
    run.main.random = listed({0.99, 0.0, 0.0, 0.0});
    run.main.chkRandom.tick(true);
    EXPECT_EQ(sampled(run.full_run(), 250, 1500), "yr\ngb\n");
}

TEST(make_flurn, matching_is_the_designs_and_the_users_choice)
{
    const auto matched = [](const auto & settings) {
        four_photos run;
        run.main.collage.design_matches = true;
        run.main.chkMatch.tick(true);
        settings(run.main);
        bool active = false;
        look_at_start(run, [&] { active = run.main.run.match_active; });
        return active;
    };
    EXPECT_TRUE(matched([](frmMain &) {}));
    EXPECT_FALSE(matched([](frmMain & main) { main.chkMatch.tick(false); }));
    EXPECT_TRUE(matched([](frmMain & main) {
        main.chkMatch.tick(false);
        main.chkMatch.show(false);
    }));
    EXPECT_FALSE(matched([](frmMain & main) { main.optShapes.select(); }));
    EXPECT_FALSE(matched([](frmMain & main) { main.collage.design_matches = false; }));
}

TEST(make_flurn, the_caption_is_printed_over_the_collage)
{
    four_photos run;
    run.main.txtCaption.set_text("Sea");
    run.main.txtCaption.tag = "60";
    run.main.txtCaption.set_fore_color(0);
    const bitmap shown = run.full_run();
    EXPECT_EQ(run.main.run.caption_height, 80);
    // 168 wide and 50 more, in the middle; the bars begin 75 and 8 rows below the top.
    EXPECT_EQ(letter_at(shown, 891 + 24, 75 + 40), 'k');
    EXPECT_EQ(letter_at(shown, 891 + 52, 75 + 40), 'r') << "between two letters";
    EXPECT_EQ(letter_at(shown, 891 + 24, 75 + 4), 'r');
}

TEST(make_flurn, saving_is_offered_for_quick_styles_and_matrices_that_can_be_read_back)
{
    const auto offered = [](const auto & settings) {
        four_photos run;
        run.home.write("data/designs.ini", "[Design001]\r\nName=Match\r\nStyle=Place\r\n");
        run.home.write("data/designs/__quick", text_of(quarters()));
        run.main.mnuSaveDesign.enable(false);
        settings(run.main);
        look_at_start(run, [] {});
        return run.main.mnuSaveDesign.enabled();
    };
    EXPECT_FALSE(offered([](frmMain &) {}));
    EXPECT_TRUE(offered([](frmMain & main) { main.collage.quick_active = true; }));
    EXPECT_TRUE(offered([](frmMain & main) { main.collage.matrix_session = true; }));
    EXPECT_FALSE(
        offered([](frmMain & main) { main.collage.matrix_session = main.collage.frames_design = true; }));
}

TEST(make_flurn, a_matrix_of_this_session_is_remembered)
{
    four_photos run;
    run.main.collage.matrix_session = true;
    look_at_start(run, [&] { EXPECT_FALSE(run.main.collage.matrix_session); });
    EXPECT_TRUE(run.main.collage.matrix_session);
}

TEST(make_flurn, the_shape_of_the_last_run_is_kept_for_saving)
{
    four_photos run;
    run.main.optLandscape.select();
    look_at_start(run, [] {});
    EXPECT_TRUE(run.main.run_landscape);
    EXPECT_FALSE(run.main.square_background);
    run.main.optSquare.select();
    look_at_start(run, [] {});
    EXPECT_FALSE(run.main.run_landscape);
    EXPECT_TRUE(run.main.square_background);
}

TEST(make_flurn, dark_colours_keep_away_from_the_key)
{
    EXPECT_EQ(away_from_key({}), (rgb_triple{.blue = 7}));
    EXPECT_EQ(away_from_key({.red = 5, .green = 200, .blue = 200}),
              (rgb_triple{.red = 5, .green = 200, .blue = 7}));
    EXPECT_EQ(away_from_key({.red = 6, .green = 6, .blue = 6}),
              (rgb_triple{.red = 6, .green = 6, .blue = 6}));
    four_photos run;
    run.main.picFrameColor.set_back_color(0);
    run.main.picShadowColor.set_back_color(0x0A0B0C);
    look_at_start(run, [] {});
    EXPECT_EQ(run.main.run.frame_color, (rgb_triple{.blue = 7}));
    EXPECT_EQ(run.main.run.shadow_color, (rgb_triple{.red = 12, .green = 11, .blue = 10}));
}

TEST(make_flurn, shows_how_many_images_of_how_many_while_it_goes_on)
{
    four_photos run;
    std::vector<std::string> told;
    for (int pump = 1; pump <= 8; ++pump)
        run.desk.on_pump(pump, [&] {
            const std::string now = run.main.barDoing.visible() ? run.main.barDoing.value() : "";
            if (told.empty() || told.back() != now)
                told.push_back(now);
        });
    run.main.barDoing.show(false);
    run.full_run();
    EXPECT_EQ(told, (std::vector<std::string>{"", "1 of 4", "2 of 4", "3 of 4", "4 of 4"}));
    EXPECT_FALSE(run.main.barDoing.visible());
}

TEST(make_flurn, a_bar_tells_the_cells_of_all_layers)
{
    four_photos run;
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.main.work_style = run.main.design_record.style = "Fill";
    run.use_template(
        {"0:0:2:3:0:0:0:0:", "10:10:400:500:0:0:0:0:", "1500:0:1:2:0:0:0:0:", "10:10:400:500:0:0:0:0:"});
    run.full_run();
    EXPECT_EQ(run.main.run.images_in_all, 8);
    EXPECT_EQ(run.main.run.image_number, 9);
}
