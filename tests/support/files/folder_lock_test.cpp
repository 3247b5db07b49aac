#include "support/files/folder_lock.h"

#include "support/files/paths.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

TEST(folder_lock, is_held_by_one_at_a_time_and_free_again_when_it_goes)
{
    const temporary_folder folder;
    {
        const auto first = folder_lock::taken(folder.path(), "lock");
        EXPECT_TRUE(first);
        EXPECT_FALSE(folder_lock::taken(folder.path(), "lock"));
        EXPECT_TRUE(folder_lock::taken(folder.path(), "another"));
    }
    EXPECT_TRUE(folder_lock::taken(folder.path(), "lock"));
}

TEST(folder_lock, goes_over_to_whom_it_is_given)
{
    const temporary_folder folder;
    folder_lock held;
    {
        auto first = folder_lock::taken(folder.path(), "lock");
        ASSERT_TRUE(first);
        held = std::move(*first);
    }
    EXPECT_FALSE(folder_lock::taken(folder.path(), "lock"));
    held = {};
    EXPECT_TRUE(folder_lock::taken(folder.path(), "lock"));
}

TEST(folder_lock, of_a_program_that_was_killed_is_free)
{
    const temporary_folder folder;
    int told[2];
    ASSERT_EQ(::pipe(told), 0);
    const pid_t other = ::fork();
    if (other == 0) {
        const auto held = folder_lock::taken(folder.path(), "lock");
        const char sign = held ? 'y' : 'n';
        if (::write(told[1], &sign, 1) == 1)
            ::pause();
        ::_exit(1);
    }
    char sign = 0;
    ASSERT_EQ(::read(told[0], &sign, 1), 1);
    EXPECT_EQ(sign, 'y');
    EXPECT_FALSE(folder_lock::taken(folder.path(), "lock"));
    ::kill(other, SIGKILL);
    ::waitpid(other, nullptr, 0);
    EXPECT_TRUE(folder_lock::taken(folder.path(), "lock"));
    ::close(told[0]);
    ::close(told[1]);
}

TEST(folder_lock, of_a_folder_that_can_not_be_written_is_always_to_be_had)
{
    const temporary_folder folder;
    std::filesystem::permissions(
        folder.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                           std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    const as_ordinary_user user;
    EXPECT_TRUE(folder_lock::taken(folder.path(), "lock"));
    EXPECT_FALSE(file_exists(folder.at("lock")));
}

TEST(folder_lock, names_the_folder_that_is_not_there)
{
    const temporary_folder folder;
    try {
        folder_lock::taken(folder.at("none"), "lock");
        ADD_FAILURE() << "locked a folder that is not there";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.path, joined(folder.at("none"), "lock"));
    }
}
