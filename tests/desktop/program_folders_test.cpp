#include "desktop/program_folders.h"

#include "support/files/paths.h"
#include "support/for_now.h"
#include "tests/temporary_folder.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

namespace {

// An environment variable with another value while what it gives lives.
auto changed_variable(const char * name, const QByteArray & value)
{
    const QByteArray before = qgetenv(name);
    qputenv(name, value);
    return afterwards([name, before] { qputenv(name, before); });
}

}  // namespace

TEST(data_folder_choice, lies_under_the_data_home_though_the_program_folder_can_be_written)
{
    const temporary_folder home;
    const auto variable = changed_variable("XDG_DATA_HOME", QByteArray::fromStdString(home.path()));
    ASSERT_TRUE(folder_writable(program_folder()));
    const folder_choice choice = data_folder_choice();
    EXPECT_TRUE(choice.use_public_folder);
    EXPECT_EQ(choice.public_folder, joined(home.path(), "tessaloom4"));
}

TEST(take_home_of_user, asks_the_system_where_the_environment_names_none)
{
    for (const char * value : {"", "home", "."}) {
        const auto variable = changed_variable("HOME", value);
        take_home_of_user();
        EXPECT_EQ(qgetenv("HOME"), QByteArray(::getpwuid(::geteuid())->pw_dir)) << value;
    }
    const auto variable = changed_variable("HOME", "/nowhere/of/mine");
    take_home_of_user();
    EXPECT_EQ(qgetenv("HOME"), "/nowhere/of/mine");
}

TEST(data_folder_choice, takes_a_relative_data_home_for_none)
{
    const temporary_folder home;
    const auto own = changed_variable("HOME", QByteArray::fromStdString(home.path()));
    for (const char * value : {"", "data", "./data", "../data"}) {
        const auto variable = changed_variable("XDG_DATA_HOME", value);
        EXPECT_EQ(data_folder_choice().public_folder, joined(home.path(), ".local/share/tessaloom4"))
            << value;
    }
}
