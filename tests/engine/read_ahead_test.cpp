#include "engine/fill_loop.h"
#include "engine/photo/look_at_files.h"
#include "engine/photo/photo_steps.h"
#include "engine/pixels/resize_image.h"
#include "engine/place_loop.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

std::string noisy_photo(const collage_fixture & run, const std::string & name, int width, int height)
{
    save_jpeg(noise(width, height), run.home.at(name));
    return run.home.at(name);
}

constexpr picture_size small_place{.width = 90, .height = 70};

picture_size in_small_place(picture_size)
{
    return small_place;
}

struct told_run {
    bitmap canvas;
    std::deque<std::string> messages;
    std::size_t questions = 0, images = 0;
};

using loop_of_a_run = void (*)(frmMain &, const sign_of_life &);
using preparation = std::function<void(collage_fixture &)>;

// One loop over five photos, three of them upright; the fourth can't be read.
told_run run_of(int at_once, const preparation & prepare, loop_of_a_run loop)
{
    collage_fixture run;
    run.main.workers.set_count(at_once);
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
    const told_run without = run_of(0, prepare, loop);
    for (const int at_once : {1, 2, 3, 8}) {
        const told_run with = run_of(at_once, prepare, loop);
        EXPECT_TRUE(same(with.canvas, without.canvas)) << at_once;
        EXPECT_EQ(with.messages, without.messages) << at_once;
        EXPECT_EQ(with.questions, without.questions) << at_once;
        EXPECT_EQ(with.images, without.images) << at_once;
    }
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

TEST(read_ahead, gives_the_photo_once)
{
    collage_fixture run;
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    const bitmap expected = resize_image(load_picture(picture_format::jpeg, path), 90, 70);
    read_ahead(run.main, {{path, small_place}});
    ASSERT_EQ(run.main.run.ahead.begun.size(), 1U);
    for (int i = 0; i < 2; ++i) {
        run_photo photo = load_photo(run.main, path, in_small_place);
        EXPECT_TRUE(run.main.run.ahead.begun.empty());
        EXPECT_TRUE(same(fit_photo(run.main, std::move(photo), 90, 70), expected));
    }
}

TEST(read_ahead, a_file_that_changed_meanwhile_is_read_again)
{
    collage_fixture run;
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    read_ahead(run.main, {{path, small_place}});
    run.main.run.ahead.begun.front().photo.wait();
    save_jpeg(noise(500, 500), path);
    EXPECT_EQ(load_photo(run.main, path, in_small_place).own.width, 500);
}

TEST(read_ahead, a_wrong_guess_leaves_the_photo_that_is_asked_for)
{
    collage_fixture run;
    const std::string guessed = noisy_photo(run, "a.jpg", 600, 400);
    const std::string wanted = noisy_photo(run, "b.jpg", 400, 600);
    read_ahead(run.main, {{guessed, small_place}});
    EXPECT_EQ(load_photo(run.main, wanted, in_small_place).own.height, 600);
    EXPECT_EQ(load_photo(run.main, guessed, in_small_place).own.height, 400);
}

TEST(read_ahead, a_photo_for_another_place_is_read_again)
{
    collage_fixture run;
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    read_ahead(run.main, {{path, small_place}});
    const run_photo photo =
        load_photo(run.main, path, [](picture_size) { return picture_size{.width = 40, .height = 50}; });
    EXPECT_EQ(photo.fitted.width(), 40);
    EXPECT_EQ(run.main.run.ahead.begun.size(), 1U);
    forget_ahead(run.main);
}

TEST(read_ahead, begins_nothing_for_what_is_gone_or_no_photo_or_without_workers)
{
    collage_fixture run;
    read_ahead(run.main, {{run.home.write("text.jpg", "no picture"), small_place},
                          {run.home.at("gone.jpg"), small_place}});
    run.main.workers.set_count(0);
    read_ahead(run.main, {{noisy_photo(run, "a.jpg", 600, 400), small_place}});
    EXPECT_TRUE(run.main.run.ahead.begun.empty());
}

TEST(read_ahead, begins_as_many_as_there_are_cores_and_each_once)
{
    collage_fixture run;
    run.main.workers.set_count(2);
    std::vector<wanted_photo> next;
    for (const char * name : {"a.jpg", "b.jpg", "c.jpg"})
        next.push_back({noisy_photo(run, name, 600, 400), small_place});
    read_ahead(run.main, next);
    read_ahead(run.main, next);
    ASSERT_EQ(run.main.run.ahead.begun.size(), 2U);
    EXPECT_EQ(run.main.run.ahead.begun.front().wanted, next[0]);
    EXPECT_EQ(run.main.run.ahead.begun.back().wanted, next[1]);
    forget_ahead(run.main);
}

TEST(read_ahead, drops_a_guess_that_has_gone_wrong)
{
    collage_fixture run;
    run.main.workers.set_count(1);
    const std::string wrong = noisy_photo(run, "a.jpg", 600, 400),
                      right = noisy_photo(run, "b.jpg", 600, 400);
    read_ahead(run.main, {{wrong, small_place}});
    run.main.run.ahead.begun.front().photo.wait();
    read_ahead(run.main, {{right, small_place}});
    ASSERT_EQ(run.main.run.ahead.begun.size(), 1U);
    EXPECT_EQ(run.main.run.ahead.begun.front().wanted.path, right);
    forget_ahead(run.main);
}

// Keeps every worker busy, and the thread of what is waited for, until it goes.
struct all_busy {
    explicit all_busy(worker_pool & workers)
    {
        const auto wait = [opened = std::shared_future<void>(opening.get_future())] { opened.wait(); };
        for (int i = 0; i < workers.count(); ++i)
            workers.begin(wait);
        workers.begin_at_once(wait);
    }
    ~all_busy() { opening.set_value(); }
    std::promise<void> opening;
};

TEST(read_ahead, is_forgotten_without_waiting_for_busy_workers)
{
    collage_fixture run;
    run.main.workers.set_count(2);
    const std::string path = noisy_photo(run, "a.jpg", 600, 400);
    file_of(run.main, path);
    const all_busy busy(run.main.workers);
    read_ahead(run.main, {{path, small_place}});
    const std::stop_token stop = run.main.run.ahead.begun.front().stop.get_token();
    forget_ahead(run.main);
    EXPECT_TRUE(run.main.run.ahead.begun.empty());
    EXPECT_TRUE(stop.stop_requested());
}

TEST(read_ahead, a_cancel_ends_places_while_their_photo_is_waited_for)
{
    // Without an end at the cancel the loop would wait for ever: the workers are let go behind it.
    for (const bool looked_at : {false, true}) {
        collage_fixture run;
        run.use_canvas(400, 300);
        run.add_path(noisy_photo(run, "a.jpg", 300, 400));
        add_places(run);
        std::optional<all_busy> busy;
        const sign_of_life hold = [&] {
            if (looked_at)
                file_of(run.main, run.main.table[0]);  // which may take its time as well
            run.desk.on_breath = [&] { run.main.run.cancel_requested = true; };
            busy.emplace(run.main.workers);
        };
        place_loop(run.main, hold);
        EXPECT_TRUE(run.main.run.cancel_requested);
        EXPECT_FALSE(run.main.run.ends_at_cancel);
        EXPECT_EQ(run.main.run.image_number, 2);
    }
}

TEST(read_ahead, is_forgotten_when_a_run_has_ended)
{
    collage_fixture run;
    read_ahead(run.main, {{noisy_photo(run, "a.jpg", 600, 400), small_place}});
    forget_ahead(run.main);
    EXPECT_TRUE(run.main.run.ahead.begun.empty());
}

TEST(read_ahead, guesses_right_in_a_run_of_places_and_of_a_shaken_grid)
{
    // What is begun and never asked for stays on the list until it is dropped: at the end of a run that
    // guessed right there is nothing.
    for (const bool grid : {false, true}) {
        collage_fixture run;
        run.main.workers.set_count(3);
        run.use_canvas(400, 300);
        for (int i = 0; i < 6; ++i)
            run.add_path(noisy_photo(run, std::to_string(i) + ".jpg", 300, 400));
        if (grid) {
            lay_grid(run);
            run.main.collage.matrix_resize = run.main.collage.matrix_rotate = true;
            run.main.shake_start = 3;
            fill_loop(run.main, {});
        } else {
            for (int i = 0; i < 6; ++i)
                run.add_location(
                    {.top = 10, .left = narrow(60 * i + 10), .height = narrow(40 + 5 * i), .width = 40});
            run.main.design_locations.count = 6;
            place_loop(run.main, {});
        }
        EXPECT_TRUE(run.main.run.ahead.begun.empty()) << (grid ? "grid" : "places");
    }
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

TEST(read_ahead, leaves_cards_tilts_and_a_shaken_grid_as_they_are_without_it)
{
    expect_same_run(
        [](collage_fixture & run) {
            add_places(run);
            run.main.chkCaption.tick(true);
        },
        place_loop);
    expect_same_run(
        [](collage_fixture & run) {
            lay_grid(run);
            run.main.chkMatch.tick(true);
            run.main.collage.matrix_both = run.main.collage.matrix_resize = true;
            run.main.shake_start = 5;
        },
        fill_loop);
}
