#include "desktop/open_window.h"

#include "tests/temporary_folder.h"

#include <QCoreApplication>
#include <QLocalSocket>

#include <filesystem>
#include <future>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// The program that is started second waits, the one that is open answers from its event loop.
window_answer asked_for(const std::string & data_folder, const std::string & flurn = {})
{
    auto asked = std::async(std::launch::async, ask_open_window, data_folder, flurn);
    while (asked.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
        QCoreApplication::processEvents();
    return asked.get();
}

/// What an open window was asked, and what it answers.
struct noted_visits {
    std::vector<std::string> flurns;
    window_answer answer = window_answer::raised;
    open_window::visit visit()
    {
        return [this](const std::string & flurn) {
            flurns.push_back(flurn);
            return answer;
        };
    }
};

}  // namespace

TEST(open_window, is_raised_by_a_second_start_on_the_same_folder)
{
    const temporary_folder folder;
    folder.at("data/x");
    std::filesystem::create_directory_symlink(folder.at("data"), folder.at("link"));
    noted_visits visits;
    const open_window window(folder.at("data"), visits.visit());
    EXPECT_EQ(asked_for(folder.at("data")), window_answer::raised);
    EXPECT_EQ(asked_for(folder.at("link")), window_answer::raised);
    EXPECT_EQ(visits.flurns, (std::vector<std::string>{"", ""}));
}

TEST(open_window, of_another_folder_stays_where_it_is)
{
    const temporary_folder folder;
    folder.at("data/x");
    folder.at("other/x");
    noted_visits visits;
    const open_window window(folder.at("data"), visits.visit());
    EXPECT_EQ(asked_for(folder.at("other")), window_answer::none);
    EXPECT_TRUE(visits.flurns.empty());
}

TEST(open_window, that_has_gone_does_not_answer)
{
    const temporary_folder folder;
    {
        const open_window window(folder.path(), noted_visits().visit());
    }
    EXPECT_EQ(ask_open_window(folder.path(), {}), window_answer::none);
}

TEST(open_window, gets_the_flurn_that_a_second_start_brings_whatever_its_name)
{
    const temporary_folder folder;
    noted_visits visits{.flurns = {}, .answer = window_answer::opens};
    const open_window window(folder.path(), visits.visit());
    const std::vector<std::string> names{"/a b/\xC3\xBC\n\t\xFF.flurn",
                                         "/" + std::string(4000, 'x') + ".flurn"};
    for (const std::string & name : names)
        EXPECT_EQ(asked_for(folder.path(), name), window_answer::opens);
    EXPECT_EQ(visits.flurns, names);
    visits.answer = window_answer::at_work;
    EXPECT_EQ(asked_for(folder.path(), "/a.flurn"), window_answer::at_work);
}

TEST(open_window, is_asked_nothing_by_who_says_half_of_it_or_too_much)
{
    const temporary_folder folder;
    noted_visits visits;
    const open_window window(folder.path(), visits.visit());
    for (const QByteArray & said : {QByteArray("half"), QByteArray(20'000, 'x')}) {
        QLocalSocket visitor;
        visitor.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        visitor.connectToServer(name_of_open_window(folder.path()));
        ASSERT_TRUE(visitor.waitForConnected(1000));
        visitor.write(said);
        visitor.flush();
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        visitor.abort();
        EXPECT_EQ(asked_for(folder.path()), window_answer::raised);
    }
    EXPECT_EQ(visits.flurns.size(), 2U);
}

TEST(open_window, takes_nothing_from_another_user)
{
    const temporary_folder folder;
    noted_visits visits;
    const open_window window(folder.path(), visits.visit(), ::geteuid() + 1);
    EXPECT_EQ(asked_for(folder.path(), "/a.flurn"), window_answer::none);
    EXPECT_TRUE(visits.flurns.empty());
}
