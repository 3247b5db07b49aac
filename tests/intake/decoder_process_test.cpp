#include "intake/decoder_process.h"

#include "intake/preparing.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// Decoders that a file has taken over, or that fail for themselves: whatever they do, the photo is refused.
struct decoder_process : testing::Test {
    decoder doing(const std::string & steps, std::chrono::milliseconds patience = 60s)
    {
        const std::string program = folder.write("decoder", "#!/bin/sh\n" + steps + "\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        return {.program = program, .patience = patience, .largest_answer = 1000};
    }
    std::optional<decode_fault> fault_of_decoder(const decoder & used)
    {
        return answer_for(used, photo, picture_kind::png, stop).fault;
    }

    temporary_folder folder;
    const std::string photo = folder.write("a.png", "a photo");
    std::atomic<bool> stop = false;
};

}  // namespace

TEST_F(decoder_process, gets_the_file_and_gives_a_picture)
{
    const decoder_answer answer = answer_for(doing("printf ap; cat"), photo, picture_kind::png, stop);
    EXPECT_FALSE(answer.fault);
    EXPECT_EQ(answer.kept_by, sandbox::all);
    EXPECT_EQ(answer.jpeg, "a photo");
}

TEST_F(decoder_process, that_fails_costs_the_photo_and_no_more)
{
    EXPECT_EQ(fault_of_decoder(doing("printf apicture; exit 1")), decode_fault::broken_down);
    EXPECT_EQ(fault_of_decoder(doing("printf apicture; kill -SEGV $$")), decode_fault::broken_down);
    EXPECT_EQ(fault_of_decoder(doing("printf apicture; kill -XCPU $$")), decode_fault::too_slow);
    EXPECT_EQ(fault_of_decoder(doing("printf xx; cat")), decode_fault::broken_down);
    EXPECT_EQ(fault_of_decoder(doing("exit 0")), decode_fault::broken_down);
    EXPECT_EQ(fault_of_decoder(doing("printf ad")), decode_fault::damaged);
    EXPECT_EQ(fault_of_decoder({.program = folder.at("none")}), decode_fault::no_decoder);
}

TEST_F(decoder_process, that_says_too_much_is_ended)
{
    EXPECT_EQ(fault_of_decoder(doing("printf ap; while :; do echo more; done")), decode_fault::too_large);
}

TEST_F(decoder_process, that_comes_to_no_end_is_ended)
{
    EXPECT_EQ(fault_of_decoder(doing("while :; do :; done", 50ms)), decode_fault::too_slow);
    EXPECT_EQ(fault_of_decoder(doing("exec >&-; while :; do :; done", 50ms)), decode_fault::too_slow)
        << "it closed its end and stayed";
}

TEST_F(decoder_process, is_ended_when_the_user_stops_it)
{
    stop = true;
    EXPECT_EQ(fault_of_decoder(doing("while :; do :; done")), decode_fault::stopped);
    EXPECT_EQ(fault_of_decoder(doing("exec >&-; while :; do :; done")), decode_fault::stopped);
}

TEST_F(decoder_process, raises_for_a_photo_that_can_not_be_opened)
{
    EXPECT_THROW(answer_for(doing("cat"), folder.at("gone.png"), picture_kind::png, stop), platform_error);
}

// Each waits until all have come.
TEST_F(decoder_process, runs_as_many_times_at_once_as_there_are_workers)
{
    constexpr int count = 3;
    const std::string come = folder.at("come/x").substr(0, folder.at("come/x").size() - 2);
    const decoder used =
        doing("echo > " + come + "/$$; while [ $(ls " + come + " | wc -l) -lt 3 ]; do :; done; printf ad");
    std::vector<intake_photo> photos;
    for (int i = 0; i < count; ++i)
        photos.push_back({.path = folder.write(std::to_string(i) + ".png", "a photo"),
                          .kind = picture_kind::png,
                          .need = photo_need::decoding});
    prepared_shelf shelf(folder.path());
    worker_pool workers(count);
    preparing work(photos, shelf, used, workers);
    EXPECT_TRUE(work.is_over_within(1min));
    for (const intake_photo & each : work.photos())
        EXPECT_EQ(each.why, told(decode_fault::damaged));
}
