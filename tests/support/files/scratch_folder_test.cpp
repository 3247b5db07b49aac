#include "support/files/scratch_folder.h"

#include "support/files/file_steps.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

// Makes a scratch folder in another process, writes into it and dies in front of its clean-up.
std::string left_by_a_killed_program(const std::string & place)
{
    const pid_t other = ::fork();
    if (other == 0) {
        const scratch_folder scratch(place);
        write_file(joined(scratch.path(), "work"), "x");
        ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(other, nullptr, 0);
    return joined(place, folders_in(place).front());
}

}  // namespace

TEST(scratch_folder, is_the_users_alone_and_goes_with_all_in_it)
{
    const temporary_folder folder;
    const std::string place = folder.at("a/place");
    std::string path;
    {
        const scratch_folder scratch(place);
        path = scratch.path();
        struct stat found {};
        ASSERT_EQ(::stat(place.c_str(), &found), 0);
        EXPECT_EQ(found.st_mode & 0777U, 0700U);
        make_folders(joined(path, "tmp/deep"));
        write_file(joined(path, "tmp/deep/a"), "x");
    }
    EXPECT_FALSE(folder_exists(path));
    EXPECT_TRUE(folders_in(place).empty());
}

TEST(scratch_folder, of_a_killed_program_is_cleared_by_the_next_and_of_a_living_one_is_not)
{
    const temporary_folder folder;
    const std::string place = folder.at("place");
    const std::string left = left_by_a_killed_program(place);
    EXPECT_TRUE(file_exists(joined(left, "work")));
    const scratch_folder living(place);
    EXPECT_FALSE(folder_exists(left));
    const scratch_folder next(place);
    EXPECT_NE(living.path(), next.path());
    EXPECT_TRUE(folder_exists(living.path()));
}

TEST(scratch_folder, goes_when_the_program_is_ended_by_a_signal_and_the_program_ends_by_it)
{
    const temporary_folder folder;
    const std::string place = folder.at("place");
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        const pid_t other = ::fork();
        if (other == 0) {
            clear_away_on_signals();
            const scratch_folder scratch(place);
            write_file(joined(scratch.path(), "work"), "x");
            ::kill(::getpid(), number);
            for (;;)
                ::pause();
        }
        int status = 0;
        ::waitpid(other, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == number) << number;
        EXPECT_TRUE(folders_in(place).empty()) << number;
    }
}

TEST(clear_away_on_signals, takes_what_was_being_written_and_leaves_what_was_to_be_replaced)
{
    const temporary_folder folder;
    const std::string poster = folder.write("poster.jpg", "old");
    const pid_t other = ::fork();
    if (other == 0) {
        clear_away_on_signals();
        const gated_files ended([](file_step step, const std::string &) {
            if (step == file_step::flush)
                ::kill(::getpid(), SIGTERM);
            while (step == file_step::flush)
                ::pause();
            return 0;
        });
        replace_file(poster, "new");
    }
    int status = 0;
    ::waitpid(other, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    EXPECT_EQ(files_in(folder.path()), std::vector<std::string>{"poster.jpg"});
    EXPECT_EQ(read_file(poster), "old");
}

TEST(scratch_folder, many_at_once_keep_out_of_each_others_way)
{
    const temporary_folder folder;
    const std::string place = folder.at("place");
    std::vector<std::thread> programs;
    std::atomic<int> kept = 0;
    for (int i = 0; i < 8; ++i)
        programs.emplace_back([&] {
            for (int round = 0; round < 10; ++round) {
                const scratch_folder scratch(place);
                write_file(joined(scratch.path(), "work"), "x");
                kept += file_exists(joined(scratch.path(), "work")) ? 1 : 0;
            }
        });
    for (std::thread & program : programs)
        program.join();
    EXPECT_EQ(kept, 80);
    EXPECT_TRUE(folders_in(place).empty());
}

TEST(scratch_folder, is_not_made_where_a_link_or_a_file_stands)
{
    const temporary_folder folder;
    folder.at("elsewhere/x");
    std::filesystem::create_directory_symlink(folder.at("elsewhere"), folder.at("link"));
    folder.write("file", "x");
    for (const char * name : {"link", "file"}) {
        try {
            const scratch_folder scratch(folder.at(name));
            ADD_FAILURE() << name;
        } catch (const platform_error & error) {
            EXPECT_EQ(error.number, error_number::permission_denied);
            EXPECT_EQ(error.path, folder.at(name));
        }
    }
}
