#include "session/start/filling_work.h"
#include "support/files/file_steps.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/designs/crash_scene.h"
#include "tests/session/fresh_program.h"
#include "tests/sweep_stride.h"

#include <chrono>
#include <future>
#include <gtest/gtest.h>

// The filling of a data folder: what it costs, what a power cut leaves, and its sign of life.

namespace {

int flushes_of_start(fresh_program & program)
{
    int flushes = 0;
    {
        const gated_files counted([&](file_step step, const std::string &) {
            flushes += step == file_step::flush || step == file_step::flush_all ? 1 : 0;
            return 0;
        });
        program.start();
    }
    program.desk.next_message();
    return flushes;
}

void add_icons(const fresh_program & program, int count)
{
    for (int i = 0; i < count; ++i)
        program.folder.write("program/icons/more_" + std::to_string(i) + ".bmp", "an icon");
}

// What was under construction goes when it is a minute old, and nobody reads the second marker.
folder_image whole_files(const std::string & folder)
{
    folder_image image = image_of(folder);
    std::erase_if(image, [](const auto & each) {
        return each.first.ends_with(part_ending) || each.first == "4_2_install";
    });
    return image;
}

}  // namespace

TEST(first_start, waits_for_the_disk_no_oftener_for_more_files)
{
    fresh_program few, many;
    add_icons(few, 1);
    add_icons(many, 100);
    EXPECT_EQ(flushes_of_start(many), flushes_of_start(few));
}

TEST(first_start, that_a_power_cut_broke_off_at_any_step_is_made_whole_by_the_next)
{
    const memory_place in_memory;
    fresh_program whole;
    whole.start();
    whole.desk.next_message();
    const folder_image made = whole_files(whole.data);
    int step = 0;
    for (int ended = broken_off; ended != went_through && step < 500; step += sweep_stride) {
        SCOPED_TRACE(step);
        fresh_program program;
        program.desk.keeps_messages = true;
        ended = ended_at(step, mishap::power_cut, [&] { program.start(); });
        program.start();
        EXPECT_EQ(whole_files(program.data), made);
    }
    EXPECT_GT(step, 40);
    EXPECT_LT(step, 500);
}

TEST(fill_by, shows_a_sign_of_life_where_it_takes_its_time)
{
    fresh_program program;
    std::promise<void> seen;
    std::string told;
    program.desk.on_breath = [&] {
        if (!program.all.filling.loaded() || !told.empty())
            return;
        told = program.all.filling.lblFilling.caption();
        seen.set_value();
    };
    fill_by(program.main, 7, [&](std::atomic<int> & done) {
        done = 3;
        seen.get_future().wait_for(std::chrono::seconds(30));
    });
    EXPECT_EQ(told, "Getting things ready: 3 of 7 files");
    EXPECT_EQ(program.desk.shown_windows, std::vector<std::string>{"frmFilling"});
    EXPECT_FALSE(program.all.filling.loaded());
}

TEST(fill_by, raises_what_goes_wrong_and_needs_no_window_for_a_moment)
{
    fresh_program program;
    EXPECT_THROW(
        fill_by(program.main, 1,
                [](std::atomic<int> &) { throw platform_error(error_number::disk_full, "Disk full", "/a"); }),
        platform_error);
    EXPECT_FALSE(program.all.filling.loaded());
}
