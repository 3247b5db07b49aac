#include "engine/preview.h"

#include "engine/layout/run_layout.h"
#include "quick/quick_template.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct two_halves : collage_fixture {
    two_halves()
    {
        use_template({"0:0:3000:1000:0:0:0:0:", "0:1000:3000:1000:0:0:0:0:"});
        add_photo(red);
        add_photo(green);
        use_thumbnails();
    }
    bitmap sample()
    {
        gen_sample(main);
        return finished();
    }
};

std::string size_of(const bitmap & image)
{
    return std::to_string(image.width()) + " by " + std::to_string(image.height());
}

}  // namespace

TEST(gen_sample, is_a_sixth_of_the_poster_with_the_layout_at_a_seventh)
{
    two_halves run;
    const bitmap sample = run.sample();
    EXPECT_EQ(size_of(sample), "333 by 500");
    EXPECT_EQ(letter_at(sample, 5, 100), '.');
    EXPECT_EQ(letter_at(sample, 11, 11), 'r');
    EXPECT_EQ(letter_at(sample, 147, 430), 'r');
    EXPECT_EQ(letter_at(sample, 155, 430), 'g');
    EXPECT_EQ(letter_at(sample, 290, 200), 'g');
    EXPECT_EQ(letter_at(sample, 298, 200), '.');
    EXPECT_EQ(letter_at(sample, 100, 441), '.');
    EXPECT_TRUE(run.main.in_preview);
    EXPECT_FALSE(run.main.run.canvas);
    EXPECT_TRUE(run.main.enabling.last);
    EXPECT_TRUE(run.main.trace.ends_with(" (end sample)"));
    EXPECT_EQ(run.desk.busy_depth, 0);
}

TEST(gen_sample, works_on_thumbnails)
{
    two_halves run;
    const std::string other = run.picture("photos/sample_thumbs/0.jpg", blue, 150, 200);
    std::filesystem::last_write_time(other, std::filesystem::last_write_time(run.home.at("photos/0.jpg")));
    EXPECT_EQ(letter_at(run.sample(), 50, 100), 'b');
}

TEST(gen_sample, a_landscape_or_square_output_has_its_own_size)
{
    two_halves landscape, square;
    landscape.main.optLandscape.select();
    square.main.optSquare.select();
    EXPECT_EQ(size_of(landscape.sample()), "500 by 333");
    EXPECT_EQ(size_of(square.sample()), "333 by 333");
}

TEST(gen_sample, turns_an_upright_design_for_a_landscape_output)
{
    two_halves run;
    run.main.optLandscape.select();
    run.main.design_record.background = "Portrait";
    const bitmap sample = run.sample();
    EXPECT_EQ(letter_at(sample, 100, 80), 'r');
    EXPECT_EQ(letter_at(sample, 400, 80), 'r');
    EXPECT_EQ(letter_at(sample, 100, 220), 'g');
}

TEST(gen_sample, turns_a_saved_landscape_design_once)
{
    two_halves run;
    run.main.optLandscape.select();
    run.main.design_record.background = "Portrait";
    run.main.design_record.design = "Saved";
    const bitmap sample = run.sample();
    EXPECT_EQ(run.main.collage.landscape_turn, saved_landscape_turn);
    EXPECT_EQ(letter_at(sample, 400, 80), 'r');
    EXPECT_EQ(letter_at(sample, 400, 220), 'g');
}

TEST(gen_sample, layers_of_a_grid_are_scaled_alike)
{
    collage_fixture run;
    run.main.design_record.style = "Fill";
    run.use_template({"0:0:1:2:0:-1:-1:0:", "70:70:660:660:0:0:0:0:", "1400:700:1:1:0:-1:-1:0:",
                      "70:70:660:660:0:0:0:0:"});
    for (const rgb_triple color : {red, green, blue})
        run.add_photo(color);
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    gen_sample(run.main);
    const bitmap sample = run.finished();
    EXPECT_EQ(letter_at(sample, 11, 11), 'r');
    EXPECT_EQ(letter_at(sample, 104, 104), 'r');
    EXPECT_EQ(letter_at(sample, 113, 60), '.');
    EXPECT_EQ(letter_at(sample, 122, 60), 'g');
    EXPECT_EQ(letter_at(sample, 112, 212), 'b');
    EXPECT_EQ(letter_at(sample, 204, 304), 'b');
}

TEST(gen_sample, a_border_is_fifteen_hundredths_of_the_offset_and_the_factor)
{
    two_halves run;
    run.main.optHuge.select();
    const bitmap sample = run.sample();
    // 8 and 45 from the left; 286 x 0.7 wide
    EXPECT_EQ(letter_at(sample, 50, 200), '.');
    EXPECT_EQ(letter_at(sample, 57, 200), 'r');
    EXPECT_EQ(letter_at(sample, 248, 200), 'g');
    EXPECT_EQ(letter_at(sample, 258, 200), '.');
}

TEST(gen_sample, a_wide_frame_of_a_tilted_photo_has_the_width_of_its_location)
{
    // A photo of 120 by 60 pixels on its side: its frame lies left and right of 60.
    const auto width_seen = [](const std::string & listed_width) {
        collage_fixture run;
        run.home.write("install/rotate.ini", read_file(SEED_FOLDER "/rotate.ini"));
        save_jpeg(plain(700, 700, {255, 255, 255}), run.home.at("install/images/white.jpg"));
        run.use_template({"1050:1400:420:840:90:90:0:0:"});
        run.add_photo(red, 120, 60);
        run.main.cmbFrame.set_text(listed_width);
        run.main.cmbFrame.enable(true);
        run.main.picFrameColor.set_back_color(0x28DCE6);  // yellow
        gen_sample(run.main);
        const bitmap sample = run.finished();
        std::string row;
        for (int x = 0; x < sample.width(); ++x)
            row += letter_at(sample, x, 210);
        const std::size_t left = row.find('y'), right = row.rfind('y');
        EXPECT_EQ(row.find_first_not_of('y', left) - left, right - row.find_last_not_of('y', right));
        return row.find_first_not_of('y', left) - left;
    };
    for (const char * of_list : {"0", "16", "60"})
        EXPECT_EQ(width_seen(of_list), 16U) << of_list;  // 90 / 6 + 1
}

TEST(gen_sample, a_matrix_that_was_laid_out_smaller_is_drawn_nearer_in_the_posters_proportions)
{
    two_halves run;
    run.main.collage.quick_active = true;
    run.main.optMatrix.select();
    run.main.quick.preview_inset = 20;
    const bitmap sample = run.sample();
    EXPECT_EQ(size_of(sample), "333 by 500");
    // 13 and 320, 20 and 480 of the collage: the halves meet at 151 and end at 294, the layout ends at 437.
    EXPECT_EQ(letter_at(sample, 0, 0), 'r');
    EXPECT_EQ(letter_at(sample, 145, 200), 'r');
    EXPECT_EQ(letter_at(sample, 154, 200), 'g');
    EXPECT_EQ(letter_at(sample, 302, 200), 'g');
    EXPECT_EQ(letter_at(sample, 308, 200), '.');
    EXPECT_EQ(letter_at(sample, 100, 450), 'r');
    EXPECT_EQ(letter_at(sample, 100, 456), '.');
}

TEST(gen_sample, a_large_caption_at_the_bottom_draws_the_picture_nearer)
{
    two_halves small, large;
    for (two_halves * run : {&small, &large}) {
        run->main.txtCaption.set_text("Sea");
        run->main.optBottom.select();
    }
    small.main.txtCaption.tag = "66";  // 11 points, 15 pixels
    large.main.txtCaption.tag = "90";  // 15 points, 20 pixels
    EXPECT_EQ(size_of(small.sample()), "333 by 500");
    EXPECT_EQ(small.main.run.caption_height, 15);
    const bitmap sample = large.sample();
    EXPECT_EQ(size_of(sample), "343 by 510");
    EXPECT_EQ(large.main.run.caption_height, 20);
    // 20 to 327 and 20 to 480 of the collage: the halves meet at 151, the layout ends at 437.
    EXPECT_EQ(letter_at(sample, 143, 100), 'r');
    EXPECT_EQ(letter_at(sample, 149, 100), 'g');
    EXPECT_EQ(letter_at(sample, 20, 460), 'r');
    EXPECT_EQ(letter_at(sample, 20, 466), '.');
}

TEST(gen_sample, a_large_caption_at_the_top_stays_whole)
{
    two_halves run;
    run.main.txtCaption.set_text("I");
    run.main.txtCaption.tag = "180";  // 30 points: 78 by 40, the letter 24 by 32, 4 rows from its top
    run.main.txtCaption.set_fore_color(0);
    const bitmap sample = run.sample();
    ASSERT_EQ(size_of(sample), "333 by 500");
    // In the middle and 10 to the right, 10 from the top.
    EXPECT_EQ(letter_at(sample, 138 + 12, 14 + 2), 'k');
    EXPECT_EQ(letter_at(sample, 138 + 12, 14 + 29), 'k');
    EXPECT_NE(letter_at(sample, 138 + 12, 14 - 4), 'k');
    EXPECT_NE(letter_at(sample, 138 + 12, 14 + 35), 'k');
}

TEST(gen_sample, a_template_that_is_gone_draws_nothing_of_the_run_before)
{
    two_halves run;
    run.sample();
    run.main.design_record.file = "gone";
    EXPECT_EQ(letter_at(run.sample(), 50, 100), '.');
    EXPECT_NE(run.desk.next_message().find("CAUGHT AN ERROR 53"), std::string::npos);
}

TEST(gen_sample, an_error_shows_its_box_and_ends_the_preview)
{
    two_halves run;
    run.use_template({"0:0:21000:1000:60:0:0:0:"});
    run.main.optLandscape.select();
    run.main.design_record.background = "Portrait";
    run.main.picSample.show(true);
    run.main.collage.quick_active = true;
    gen_sample(run.main);
    EXPECT_EQ(run.desk.next_message(), "MMM  HHH  CCC  AAA  XX  CAUGHT AN ERROR  6");
    EXPECT_FALSE(run.main.in_preview);
    EXPECT_TRUE(run.main.optLandscape.selected());
    EXPECT_TRUE(run.main.collage.quick_active);
    EXPECT_TRUE(run.main.picSample.visible());
    EXPECT_TRUE(run.main.enabling.last);
    EXPECT_FALSE(run.main.run.run_active);
    EXPECT_EQ(run.desk.busy_depth, 0);
}

TEST(gen_sample, a_cancel_keeps_the_old_picture)
{
    two_halves run;
    run.sample();
    const std::string before = read_file(joined(run.main.data_folder, "tmp/finished.jpg"));
    run.main.picBGcolor.set_back_color(0);
    run.desk.on_pump(2, [&] { run.main.run.cancel_requested = true; });
    gen_sample(run.main);
    EXPECT_EQ(run.desk.next_message(), "Flurning has been canceled.");
    EXPECT_EQ(read_file(joined(run.main.data_folder, "tmp/finished.jpg")), before);
    EXPECT_FALSE(run.main.run.run_active);
}

TEST(gen_sample, two_previews_with_the_same_settings_are_the_same)
{
    two_halves run;
    const bitmap first = run.sample();
    EXPECT_TRUE(same(first, run.sample()));
}

TEST(make_preview, shows_the_new_picture)
{
    two_halves run;
    run.main.optPreview.select();
    run.main.picSample.show(false);
    make_preview(run.main, make_quick_template);
    EXPECT_EQ(run.main.picSample.file(), joined(run.main.data_folder, "tmp/finished.jpg"));
    EXPECT_EQ(run.main.picSample.load_count(), 1);
    EXPECT_TRUE(run.main.picSample.visible());
    EXPECT_TRUE(run.main.enabling.last);
    EXPECT_EQ(run.desk.busy_depth, 0);
    make_preview(run.main, make_quick_template);
    EXPECT_EQ(run.main.picSample.load_count(), 2);
}

// What lies there is the last picture of another collage.
TEST(make_preview, that_fails_shows_no_picture_where_none_was_on_show)
{
    two_halves run;
    run.main.optPreview.select();
    make_preview(run.main, make_quick_template);
    run.use_template({"0:0:21000:1000:60:0:0:0:"});
    run.main.optLandscape.select();
    run.main.optPreview.select();
    run.main.picSample.show(false);
    run.main.design_record.background = "Portrait";
    make_preview(run.main, make_quick_template);
    EXPECT_NE(run.desk.next_message().find("CAUGHT AN ERROR  6"), std::string::npos);
    EXPECT_FALSE(run.main.picSample.visible());
    EXPECT_TRUE(run.main.enabling.last);
}

TEST(make_preview, does_nothing_without_a_design_or_with_the_preview_off)
{
    two_halves run;
    run.main.optSample.select();
    make_preview(run.main, make_quick_template);
    run.main.optPreview.select();
    run.main.design_record = {};
    make_preview(run.main, make_quick_template);
    EXPECT_EQ(run.main.picSample.load_count(), 0);
    EXPECT_EQ(run.desk.pumps, 0);
}

TEST(make_preview, shows_the_stored_sample_of_a_quick_style_while_it_is_off)
{
    collage_fixture run;
    run.main.collage.quick_active = true;
    run.main.optSample.select();
    for (const char * name : {"p_nb", "p_sb", "p_lb", "l_sb", "p_s", "p_o", "p_r", "l_ro", "p_so", "p_srr"})
        run.picture("install/images/preview/" + std::string(name) + ".jpg", red, 4, 4);
    const auto shown = [&] {
        make_preview(run.main, make_quick_template);
        return name_of(run.main.picSample.file());
    };
    run.main.optBlock.select();
    run.main.cmbSpace.set_text("9");
    EXPECT_EQ(shown(), "p_nb.jpg");
    run.main.cmbSpace.set_text("10");
    EXPECT_EQ(shown(), "p_sb.jpg");
    run.main.cmbSpace.set_text("30");
    EXPECT_EQ(shown(), "p_lb.jpg");
    run.main.cmbSpace.set_text("20");
    run.main.optLandscape.select();
    EXPECT_EQ(shown(), "l_sb.jpg");
    run.main.optPortrait.select();
    run.main.optScatter.select();
    EXPECT_EQ(shown(), "p_s.jpg");
    run.main.optMatrix.select();
    EXPECT_EQ(shown(), "p_o.jpg");
    run.main.chkShuffle.tick(true);
    EXPECT_EQ(shown(), "p_so.jpg");
    run.main.chkRotate.tick(true);
    run.main.chkResize.tick(true);
    EXPECT_EQ(shown(), "p_srr.jpg");
}
