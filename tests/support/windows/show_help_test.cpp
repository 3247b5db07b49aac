#include "support/windows/show_help.h"

#include "session/windows.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

TEST(show_help, opens_the_page_beside_the_program)
{
    const temporary_folder folder;
    const std::string page = folder.write("help/matrix.htm", "page");
    scripted_desktop desk;
    windows all{desk, listed({})};
    all.main.install_folder = folder.path();
    show_help(all.main, "matrix.htm");
    EXPECT_EQ(desk.opened_documents, std::vector<std::string>{page});
}

TEST(show_help, goes_to_the_site_with_the_same_topic_when_the_page_is_missing)
{
    const temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
    all.main.install_folder = folder.path();
    show_help(all.main, "matrix.htm");
    EXPECT_EQ(desk.opened_documents, std::vector<std::string>{documentation_address("/help/matrix.htm")});
}

TEST(documentation_address, ends_with_the_path)
{
    EXPECT_TRUE(documentation_address("/faq.htm").ends_with("/faq.htm"));
    EXPECT_TRUE(documentation_address("").starts_with("http"));
}
