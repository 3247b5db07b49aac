#include "engine/fill_loop.h"
#include "engine/photo/photo_steps.h"
#include "engine/place_loop.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

// Files of more than 200,000 bytes, which are those that another core reads.
std::string noisy_photo(const collage_fixture & run, const std::string & name, int width, int height)
{
    save_jpeg(noise(width, height), run.home.at(name));
    return run.home.at(name);
}

struct told_run {
    bitmap canvas;
    std::deque<std::string> messages;
    std::size_t questions = 0, images = 0;
};

using loop_of_a_run = void (*)(frmMain &, const sign_of_life &);
using preparation = std::function<void(collage_fixture &)>;

// One loop over five photos, three of them upright; the fourth can't be read.
told_run run_of(bool ahead, const preparation & prepare, loop_of_a_run loop)
{
    collage_fixture run;
    run.main.run.ahead.is_on = ahead;
    run.use_canvas(400, 300);
    run.add_path(noisy_photo(run, "a.jpg", 300, 400));
    run.add_path(noisy_photo(run, "b.jpg", 420, 300));
    run.add_path(noisy_photo(run, "c.jpg", 310, 400));
    run.home.write("d.jpg", "no picture");
    run.add_path(run.home.at("d.jpg"));
    run.add_path(noisy_photo(run, "e.jpg", 320, 400));
    prepare(run);
    loop(run.main, {});
    forget_ahead(run.main);
    return {.canvas = std::move(run.main.run.canvas),
            .messages = run.desk.messages,
            .questions = run.desk.questions.size(),
            .images = static_cast<std::size_t>(run.main.run.image_number)};
}

void expect_same_run(const preparation & prepare, loop_of_a_run loop)
{
    const told_run with = run_of(true, prepare, loop), without = run_of(false, prepare, loop);
    EXPECT_TRUE(same(with.canvas, without.canvas));
    EXPECT_EQ(with.messages, without.messages);
    EXPECT_EQ(with.questions, without.questions);
    EXPECT_EQ(with.images, without.images);
}

void add_places(collage_fixture & run)
{
    for (int i = 0; i < 4; ++i)
        run.add_location({.top = 10, .left = narrow(80 * i + 10), .height = 60, .width = 40});
    run.add_location({.top = 100, .left = 20, .height = 60, .width = 90});
    run.add_location({.top = 100, .left = 120, .height = 60, .width = 60});
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
}

void lay_grid(collage_fixture & run)
{
    // Two rows of three cells of 100 by 80, one more than there are photos.
    run.desk.will_answer(answer::no);
    run.add_location({.top = 10, .left = 10, .height = 2, .width = 3});
    run.add_location({.top = 10, .left = 10, .height = 100, .width = 80});
}

}  // namespace

TEST(read_ahead, gives_the_picture_once)
{
    collage_fixture run;
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    read_ahead(run.main, path);
    ASSERT_TRUE(run.main.run.ahead.image.valid());
    EXPECT_TRUE(same(load_photo(run.main, path), load_picture(picture_format::jpeg, path)));
    EXPECT_FALSE(run.main.run.ahead.image.valid());
    EXPECT_TRUE(same(load_photo(run.main, path), load_picture(picture_format::jpeg, path)));
}

TEST(read_ahead, a_file_that_changed_meanwhile_is_read_again)
{
    collage_fixture run;
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    read_ahead(run.main, path);
    run.main.run.ahead.image.wait();
    save_jpeg(noise(500, 500), path);
    EXPECT_EQ(load_photo(run.main, path).width(), 500);
}

TEST(read_ahead, a_wrong_guess_leaves_the_photo_that_is_asked_for)
{
    collage_fixture run;
    const std::string guessed = noisy_photo(run, "a.jpg", 600, 400);
    const std::string wanted = noisy_photo(run, "b.jpg", 400, 600);
    read_ahead(run.main, guessed);
    EXPECT_EQ(load_photo(run.main, wanted).height(), 600);
    EXPECT_EQ(load_photo(run.main, guessed).height(), 400);
}

TEST(read_ahead, begins_nothing_for_a_thumbnail_or_what_is_gone_or_when_switched_off)
{
    collage_fixture run;
    read_ahead(run.main, run.picture("small.jpg", red, 60, 40));
    read_ahead(run.main, run.home.at("gone.jpg"));
    run.main.run.ahead.is_on = false;
    read_ahead(run.main, noisy_photo(run, "a.jpg", 600, 400));
    EXPECT_FALSE(run.main.run.ahead.image.valid());
}

TEST(read_ahead, keeps_what_it_has_when_the_guess_is_made_again)
{
    collage_fixture run;
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    read_ahead(run.main, path);
    run.main.run.ahead.image.wait();
    read_ahead(run.main, path);
    EXPECT_EQ(run.main.run.ahead.image.wait_for(std::chrono::seconds::zero()), std::future_status::ready);
}

TEST(read_ahead, is_forgotten_when_a_run_has_ended)
{
    collage_fixture run;
    read_ahead(run.main, noisy_photo(run, "a.jpg", 600, 400));
    forget_ahead(run.main);
    EXPECT_FALSE(run.main.run.ahead.image.valid());
}

TEST(read_ahead, leaves_places_in_order_as_they_are_without_it)
{
    expect_same_run(add_places, place_loop);
}

TEST(read_ahead, leaves_painted_shapes_as_they_are_without_it)
{
    expect_same_run(
        [](collage_fixture & run) {
            for (const int16 code : std::initializer_list<int16>{1, 0, 2, 3, 0, 0})
                run.add_location({.top = 20, .left = 20, .width = 60, .spare = code});
        },
        place_loop);
}

TEST(read_ahead, leaves_matched_places_as_they_are_without_it)
{
    expect_same_run(
        [](collage_fixture & run) {
            add_places(run);
            run.main.run.match_active = true;
        },
        place_loop);
}

TEST(read_ahead, leaves_evolving_places_as_they_are_without_it)
{
    expect_same_run(
        [](collage_fixture & run) {
            add_places(run);
            run.main.run.match_active = true;
            run.main.chkEvolve.tick(true);
        },
        place_loop);
}

TEST(read_ahead, leaves_a_grid_as_it_is_without_it)
{
    expect_same_run(lay_grid, fill_loop);
}

TEST(read_ahead, leaves_a_matched_grid_as_it_is_without_it)
{
    expect_same_run(
        [](collage_fixture & run) {
            lay_grid(run);
            run.main.chkMatch.tick(true);
        },
        fill_loop);
}
