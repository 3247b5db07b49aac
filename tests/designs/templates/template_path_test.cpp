#include "designs/templates/template_path.h"

#include "designs/catalogue/catalogue.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

// A session that shares a data folder with one design of the user's, which it has chosen.
struct sharing_session : testing::Test {
    temporary_folder folder;
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    const std::string catalogue = "[Design600]\r\nName=Mine\r\nSystem=No\r\nFile=saved600\r\n";

    sharing_session()
    {
        folder.write("data/designs.ini", catalogue);
        folder.write("data/designs/saved600", "the layout");
        folder.write("work/designs.ini", catalogue);
        folder.at("work/designs/x");
        main.data_folder = folder.at("data");
        main.work_folder = folder.at("work");
        find_design(main, "Mine");
    }
};

}  // namespace

TEST_F(sharing_session, reads_a_template_of_the_users_where_it_lies_and_its_own_in_the_work_folder)
{
    EXPECT_EQ(template_path(main, "saved600"), joined(main.data_folder, "designs/saved600"));
    EXPECT_EQ(template_path(main, "__quick"), joined(main.work_folder, "designs/__quick"));
}

TEST_F(sharing_session, keeps_the_template_that_it_has_chosen_whatever_becomes_of_it)
{
    EXPECT_TRUE(keep_template(main));
    folder.write("data/designs/saved600", "another layout");
    EXPECT_EQ(read_file(template_path(main, "saved600")), "the layout");
}

TEST_F(sharing_session, tells_when_the_number_has_gone_to_another_design_meanwhile)
{
    folder.write("data/designs.ini", "[Design600]\r\nName=Another\r\nSystem=No\r\nFile=saved600\r\n");
    EXPECT_FALSE(keep_template(main));
    folder.write("data/designs.ini", "");
    EXPECT_FALSE(keep_template(main));
}

// The catalogue parts its sections by an empty line, which the last one gets with the next.
TEST_F(sharing_session, minds_no_design_that_is_added_behind_its_own_meanwhile)
{
    folder.write("data/designs.ini",
                 catalogue + "\r\n[Design601]\r\nName=Another\r\nSystem=No\r\nFile=saved601\r\n");
    EXPECT_TRUE(keep_template(main));
}

TEST_F(sharing_session, has_nothing_to_keep_of_a_supplied_design_or_one_without_its_template)
{
    main.design_record.file = "saved601";
    EXPECT_TRUE(keep_template(main));
    main.design_record.file = "../designs.ini";
    EXPECT_TRUE(keep_template(main));
    main.design_record.system = "Yes";
    EXPECT_TRUE(keep_template(main));
    EXPECT_EQ(files_in(joined(main.work_folder, "designs")).size(), 0U);
}

TEST_F(sharing_session, that_has_the_folder_for_itself_copies_nothing)
{
    main.work_folder.clear();
    EXPECT_TRUE(keep_template(main));
    EXPECT_EQ(template_path(main, "saved600"), joined(main.data_folder, "designs/saved600"));
}
