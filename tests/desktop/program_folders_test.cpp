#include "desktop/program_folders.h"

#include "support/files/paths.h"
#include "tests/temporary_folder.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace {

// An environment variable with another value while it lives.
class changed_variable {
public:
    changed_variable(const char * variable, const QByteArray & value)
        : name(variable), before(qgetenv(variable))
    {
        qputenv(name, value);
    }
    changed_variable(const changed_variable &) = delete;
    changed_variable & operator=(const changed_variable &) = delete;
    ~changed_variable() { qputenv(name, before); }

private:
    const char * name;
    QByteArray before;
};

}  // namespace

TEST(data_folder_choice, lies_under_the_data_home_though_the_program_folder_can_be_written)
{
    const temporary_folder home;
    const changed_variable variable("XDG_DATA_HOME", QByteArray::fromStdString(home.path()));
    ASSERT_TRUE(folder_writable(program_folder()));
    const folder_choice choice = data_folder_choice();
    EXPECT_TRUE(choice.use_public_folder);
    EXPECT_EQ(choice.public_folder, joined(home.path(), "tessaloom4"));
}

TEST(data_folder_choice, takes_a_relative_data_home_for_none)
{
    const temporary_folder home;
    const changed_variable own("HOME", QByteArray::fromStdString(home.path()));
    for (const char * value : {"", "data", "./data", "../data"}) {
        const changed_variable variable("XDG_DATA_HOME", value);
        EXPECT_EQ(data_folder_choice().public_folder, joined(home.path(), ".local/share/tessaloom4"))
            << value;
    }
}
