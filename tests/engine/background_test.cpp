#include "engine/background.h"

#include "engine/canvas.h"
#include "session/connect_all.h"
#include "support/files/text_file.h"
#include "tests/engine/collage_fixture.h"
#include "tests/jpeg_files.h"
#include "tests/pictures.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

bitmap background_of(collage_fixture & run, int width, int height, run_size size)
{
    run.use_canvas(width, height);
    lay_background(run.main, size);
    return std::move(run.main.run.canvas);
}

}  // namespace

TEST(lay_background, blends_the_users_picture)
{
    collage_fixture run;
    run.main.optBGimage.select();
    run.main.txtBGimage.set_text(run.picture("sea.jpg", blue, 90, 60));
    run.main.cmbBlend.set_text("4");
    EXPECT_EQ(letter_at(background_of(run, 60, 90, run_size::full), 30, 45), '.');
    run.main.cmbBlend.set_text("96");
    EXPECT_EQ(sampled(background_of(run, 60, 90, run_size::full), 5, 25), "bbb\nbbb\nbbb\nbbb\n");
    run.main.cmbBlend.set_text("50");
    const rgb_triple half = seen(background_of(run, 60, 90, run_size::full), 30, 45);
    EXPECT_NEAR(half.red, (30 + 128) / 2.0, 4);
    EXPECT_NEAR(half.blue, (220 + 128) / 2.0, 4);
}

// Chosen while the picture is selected: nobody clicks "Solid color" in between.
TEST(lay_background, lets_the_colour_that_was_chosen_through_at_any_blend)
{
    collage_fixture run;
    connect_all(run.all);
    run.main.txtBGimage.set_text(run.picture("sea.jpg", blue, 90, 60));
    run.main.optBGimage.select();
    run.desk.will_choose_color(0x28C81E);  // green, red in the low byte
    run.main.cmdBGcolor.click();
    for (int blend = 0; blend < 100; blend += 5) {
        run.main.cmbBlend.set_text(std::to_string(blend));
        run.main.collage_width = 2000;
        run.main.collage_height = 3000;
        allocate_canvas(run.main, run_size::preview);
        lay_background(run.main, run_size::preview);
        const rgb_triple shown = seen(run.main.run.canvas, 100, 100);
        const auto mixed = [blend](int picture, int ground) {
            return (picture * blend + ground * (100 - blend)) / 100.0;
        };
        EXPECT_NEAR(shown.red, mixed(blue.red, green.red), 8) << blend;
        EXPECT_NEAR(shown.green, mixed(blue.green, green.green), 8) << blend;
        EXPECT_NEAR(shown.blue, mixed(blue.blue, green.blue), 8) << blend;
    }
}

TEST(lay_background, leaves_no_strip_beside_the_picture_of_a_preview)
{
    collage_fixture run;
    run.main.optBGimage.select();
    run.main.cmbBlend.set_text("100");
    run.main.txtBGimage.set_text(run.picture("sea.jpg", blue, 60, 90));
    const bitmap canvas = background_of(run, 308, 457, run_size::preview);
    EXPECT_EQ(letter_at(canvas, 307, 456), 'b');
    EXPECT_EQ(letter_at(canvas, 0, 456), 'b');
    EXPECT_EQ(letter_at(canvas, 307, 0), 'b');
}

TEST(lay_background, covers_the_collage_and_not_its_bleed)
{
    collage_fixture run;
    run.main.optBGimage.select();
    run.main.cmbBlend.set_text("100");
    run.main.txtBGimage.set_text(run.picture("sea.jpg", blue, 90, 60));
    run.use_canvas(60, 90);
    run.main.run.canvas = plain(80, 110, grey);
    run.main.run.collage_margin = 10;
    lay_background(run.main, run_size::full);
    EXPECT_EQ(letter_at(run.main.run.canvas, 9, 50), '.');
    EXPECT_EQ(letter_at(run.main.run.canvas, 10, 10), 'b');
    EXPECT_EQ(letter_at(run.main.run.canvas, 69, 99), 'b');
    EXPECT_EQ(letter_at(run.main.run.canvas, 70, 50), '.');
}

TEST(lay_background, cuts_a_picture_for_a_square_poster)
{
    collage_fixture run;
    const std::string path = run.home.at("two.jpg");
    bitmap picture = plain(120, 40, red);
    paste(picture, plain(40, 40, blue), 40, 0, plain_copy);
    save_jpeg(picture, path);
    run.main.optBGimage.select();
    run.main.optSquare.select();
    run.main.cmbBlend.set_text("100");
    run.main.txtBGimage.set_text(path);
    EXPECT_EQ(sampled(background_of(run, 80, 80, run_size::full), 10, 20), "bbbb\nbbbb\nbbbb\nbbbb\n");
}

TEST(lay_background, without_a_picture_the_ground_stays)
{
    collage_fixture run;
    run.main.cmbBlend.set_text("100");
    run.main.txtBGimage.set_text(run.picture("sea.jpg", blue, 90, 60));
    EXPECT_EQ(letter_at(background_of(run, 60, 90, run_size::full), 30, 45), '.')
        << "a plain ground is selected";
    run.main.optBGimage.select();
    run.main.txtBGimage.set_text(run.home.at("gone.jpg"));
    EXPECT_EQ(letter_at(background_of(run, 60, 90, run_size::full), 30, 45), '.');
    run.main.txtBGimage.set_text("");
    EXPECT_EQ(letter_at(background_of(run, 60, 90, run_size::full), 30, 45), '.');
}

TEST(lay_background, a_design_brings_a_small_picture_for_previews_and_a_large_one)
{
    collage_fixture run;
    run.picture("install/images/preview/sea/p_waves.jpg", green, 60, 90);
    run.main.design_record.bg_image = "sea/waves.jpg";
    run.main.txtBGimage.set_text(run.picture("install/images/sea/waves.jpg", blue, 60, 90));
    run.main.collage.bg_from_design = true;
    run.main.cmbBlend.set_text("100");
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), 'g');
    EXPECT_EQ(letter_at(background_of(run, 60, 90, run_size::full), 30, 45), 'b');
}

TEST(lay_background, a_design_picture_without_a_small_one_serves_itself)
{
    collage_fixture run;
    run.main.design_record.bg_image = "sea/waves.jpg";
    run.main.txtBGimage.set_text(run.picture("install/images/sea/waves.jpg", blue, 60, 90));
    run.main.collage.bg_from_design = true;
    run.main.cmbBlend.set_text("100");
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), 'b');
}

TEST(lay_background, the_users_own_design_picture_lies_with_the_data)
{
    collage_fixture run;
    run.picture("data/user_images/waves.jpg", green, 60, 90);
    run.main.design_record.bg_image = "user_images/waves.jpg";
    run.main.collage.bg_from_design = true;
    run.main.cmbBlend.set_text("100");
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), 'g');
}

// Whatever reads it, by rows or whole: the bytes are those of the picture loaded and rescaled.
TEST(lay_background, shows_each_kind_of_picture_as_it_is_loaded_and_rescaled)
{
    collage_fixture run;
    run.main.optBGimage.select();
    run.main.cmbBlend.set_text("100");
    const std::string path = run.home.at("ground.jpg");
    run.main.txtBGimage.set_text(path);
    for (const jpeg_colors colors : {jpeg_colors::ycc, jpeg_colors::grey, jpeg_colors::cmyk})
        for (const picture_size own :
             {picture_size{640, 500}, picture_size{300, 450}, picture_size{70, 40}}) {
            write_file(path, jpeg_of({.colors = colors}, own.width, own.height));
            const bitmap loaded = load_picture(picture_format::jpeg, path);
            EXPECT_TRUE(same(background_of(run, 300, 450, run_size::preview), rescaled(loaded, 300, 450)));
            EXPECT_TRUE(same(background_of(run, 400, 600, run_size::full), rescaled(loaded, 400, 600)));
        }
}

TEST(lay_background, a_picture_that_is_kept_gives_way_to_the_one_that_takes_its_place)
{
    collage_fixture run;
    run.main.optBGimage.select();
    run.main.cmbBlend.set_text("100");
    run.main.txtBGimage.set_text(run.picture("sea.jpg", blue, 60, 90));
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), 'b');
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), 'b');
    run.picture("sea.jpg", green, 60, 90);
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), 'g');
    fs::remove(run.home.at("sea.jpg"));
    EXPECT_EQ(letter_at(background_of(run, 333, 500, run_size::preview), 100, 100), '.');
}
