#include "desktop/open_window.h"

#include "tests/temporary_folder.h"

#include <QCoreApplication>

#include <filesystem>
#include <future>
#include <gtest/gtest.h>

namespace {

// The program that is started second waits, the one that is open answers from its event loop.
bool is_raised(const std::string & data_folder)
{
    auto asked = std::async(std::launch::async, raise_open_window, data_folder);
    while (asked.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
        QCoreApplication::processEvents();
    return asked.get();
}

}  // namespace

TEST(open_window, is_raised_by_a_second_start_on_the_same_folder)
{
    const temporary_folder folder;
    folder.at("data/x");
    std::filesystem::create_directory_symlink(folder.at("data"), folder.at("link"));
    int raised = 0;
    const open_window window(folder.at("data"), [&raised] { ++raised; });
    EXPECT_TRUE(is_raised(folder.at("data")));
    EXPECT_EQ(raised, 1);
    EXPECT_TRUE(is_raised(folder.at("link")));
    EXPECT_EQ(raised, 2);
}

TEST(open_window, of_another_folder_stays_where_it_is)
{
    const temporary_folder folder;
    folder.at("data/x");
    folder.at("other/x");
    int raised = 0;
    const open_window window(folder.at("data"), [&raised] { ++raised; });
    EXPECT_FALSE(is_raised(folder.at("other")));
    EXPECT_EQ(raised, 0);
}

TEST(open_window, that_has_gone_does_not_answer)
{
    const temporary_folder folder;
    {
        const open_window window(folder.path(), [] {});
    }
    EXPECT_FALSE(raise_open_window(folder.path()));
}
