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

TEST(show_help, says_where_the_page_is_when_nothing_opens_it)
{
    const temporary_folder folder;
    const std::string page = folder.write("help/matrix.htm", "page");
    scripted_desktop desk;
    desk.opens_documents = false;
    windows all{desk, listed({})};
    all.main.install_folder = folder.path();
    show_help(all.main, "matrix.htm");
    EXPECT_EQ(desk.next_message(),
              "No program on this computer opens the page\r\n" + page +
                  "\r\n\r\nPlease install a web browser, or open the page on another computer.");
    show_documentation(all.main, "faq.htm");
    EXPECT_NE(desk.next_message().find(documentation_address("/faq.htm")), std::string::npos);
}

TEST(show_documentation, opens_the_page_beside_the_program_else_the_one_of_the_site)
{
    const temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
    all.main.install_folder = folder.path();
    show_documentation(all.main, "tutorials.htm");
    const std::string page = folder.write("help/tutorials.htm", "page");
    show_documentation(all.main, "tutorials.htm");
    EXPECT_EQ(desk.opened_documents,
              (std::vector<std::string>{documentation_address("/tutorials.htm"), page}));
}

TEST(documentation_address, ends_with_the_path)
{
    EXPECT_TRUE(documentation_address("/faq.htm").ends_with("/faq.htm"));
    EXPECT_TRUE(documentation_address("").starts_with("http"));
}
