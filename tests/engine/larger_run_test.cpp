#include "engine/flurn_driver.h"
#include "quick/quick_template.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

TEST(larger_run, draws_the_same_layout_with_more_pixels)
{
    four_photos run;
    run.main.run.drawn_at = {.poster = 2, .samples = 1};
    const bitmap shown = run.full_run();
    EXPECT_EQ(shown.width(), 4000);
    EXPECT_EQ(shown.height(), 6000);
    EXPECT_EQ(sampled(shown, 500, 1000), "rrgg\nrrgg\nrrgg\nbbyy\nbbyy\nbbyy\n");
    EXPECT_EQ(sampled(run.finished(), 500, 1000), sampled(shown, 500, 1000));
    EXPECT_EQ(run.main.run.collage_margin, 430);
    expect_usable(run.main);
}

TEST(larger_run, photos_stand_edge_to_edge_from_the_first_pixel_to_the_last)
{
    four_photos run;
    run.main.run.drawn_at = {.poster = 3, .samples = 1};
    const bitmap shown = run.full_run();
    EXPECT_EQ(letter_at(shown, 0, 0), 'r');
    EXPECT_EQ(letter_at(shown, 2999, 4499), 'r');
    EXPECT_EQ(letter_at(shown, 3000, 4499), 'g');
    EXPECT_EQ(letter_at(shown, 2999, 4500), 'b');
    EXPECT_EQ(letter_at(shown, 5999, 8999), 'y');
}

TEST(larger_run, of_several_samples_is_brought_down_to_its_poster)
{
    four_photos run;
    run.main.run.drawn_at = {.poster = 1, .samples = 2};
    const bitmap shown = run.full_run();
    EXPECT_EQ(shown.width(), 2000);
    EXPECT_EQ(shown.height(), 3000);
    EXPECT_EQ(sampled(shown, 250, 500), "rrgg\nrrgg\nrrgg\nbbyy\nbbyy\nbbyy\n");
}

TEST(larger_run, takes_a_photo_that_would_be_too_long_for_a_bitmap_at_that_scale)
{
    collage_fixture run;
    run.use_template({"100:100:1200:900:0:0:0:0:"});
    run.add_photo(red, 3000, 200);  // scaled to cover: 18,000 by 1,200
    run.main.run.drawn_at = {.poster = 2, .samples = 1};
    const bitmap shown = run.full_run();
    EXPECT_EQ(letter_at(shown, 1000, 1000), 'r');
    EXPECT_EQ(letter_at(shown, 199, 1000), '.');
    EXPECT_EQ(letter_at(shown, 200, 1000), 'r');
    EXPECT_EQ(letter_at(shown, 1999, 1000), 'r');
    EXPECT_EQ(letter_at(shown, 2000, 1000), '.');
    EXPECT_TRUE(run.main.left_out.in_this_run.empty());
}

TEST(larger_run, its_caption_has_larger_letters_about_the_same_middle)
{
    const auto columns_of_text = [](int scale) {
        collage_fixture run;
        run.main.txtCaption.set_text("WWWW");
        run.main.txtCaption.tag = "90";
        run.main.txtCaption.set_fore_color(0x0000FF);
        run.add_photo(blue);
        run.main.run.drawn_at = {.poster = scale, .samples = 1};
        const bitmap shown = run.full_run();
        int left = shown.width(), right = 0, top = shown.height(), bottom = 0;
        for (int y = 0; y < shown.height(); y += 1)
            for (int x = 0; x < shown.width(); x += 1)
                if (shown.row(shown.height() - 1 - y)[static_cast<std::size_t>(x)].red > 240) {
                    left = std::min(left, x);
                    right = std::max(right, x + 1);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y + 1);
                }
        return std::array{left, top, right, bottom};
    };
    const std::array own = columns_of_text(1), larger = columns_of_text(2);
    EXPECT_GT(own[2] - own[0], 200);
    for (std::size_t i = 0; i < own.size(); ++i)
        EXPECT_NEAR(larger[i], 2 * own[i], 4) << i;
}
