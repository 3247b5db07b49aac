#include "batch/report.h"

#include "desktop/without_windows.h"
#include "support/cores.h"
#include "tests/batch/batch_program.h"
#include "versions/version.h"

#include <filesystem>

namespace {

std::string how(const std::string & report, const std::string & what)
{
    for (const std::string & line : lines_of_text(report))
        if (line.starts_with(what + ": "))
            return line.substr(what.size() + 2);
    return "NOT TOLD";
}

void keep_of_ones_own(const std::string & data)
{
    line_writer catalogue(joined(data, "designs.ini"), line_writer::mode::append);
    catalogue.write_line("[Design600]");
    catalogue.write_line("Name=Aunt Ada");
    catalogue.close();
    replace_file(joined(data, "piclists/Aunt Ada.pls"), "");
    replace_file(joined(data, "user_images/aunt_ada.jpg"), "");
    make_folders(joined(data, "recipes"));
    replace_file(joined(data, "recipes/Ada.flurn"), "x");
    replace_file(joined(data, "recipes/Ada.jpg"), "x");
}

}  // namespace

TEST_F(batch_program, reports_versions_system_and_fonts)
{
    const std::string told = report(folders);
    EXPECT_TRUE(told.starts_with(version_told("tessaloom-batch", libraries_in_use()))) << told;
    for (const char * what : {"Built with", "System", "Surroundings", "Cores", "Fonts"})
        EXPECT_NE(how(told, what), "NOT TOLD") << what;
    EXPECT_TRUE(how(told, "Fonts").ends_with(", captions begin with " + first_caption_family()));
    EXPECT_EQ(how(told, "Program").substr(0, 18), "its data beside it");
    EXPECT_TRUE(how(told, "Cores").starts_with(std::to_string(usable_cores()))) << "those that it may use";
}

TEST_F(batch_program, reports_what_is_kept_in_numbers_and_without_names)
{
    use_data_of_its_own();
    const std::string before = how(report(folders), "Designs");
    keep_of_ones_own(folders.data.public_folder);
    const std::string told = report(folders);
    EXPECT_EQ(before.substr(before.find(',')), ", 0 of one's own");
    EXPECT_EQ(how(told, "Designs"), before.substr(0, before.find(',')) + ", 1 of one's own");
    EXPECT_EQ(how(told, "Data folder is"), "whole");
    EXPECT_EQ(how(told, "Kept"), "1 photo lists, 5 frame sets, 1 pictures, 1 recipes");
    EXPECT_EQ(told.find("Ada"), std::string::npos);
    EXPECT_EQ(told.find("ada"), std::string::npos);
    EXPECT_EQ(told.find(place.path()), std::string::npos);
}

TEST_F(batch_program, reports_a_data_folder_that_is_not_there_and_leaves_it_so)
{
    folders = folders_of(place.at("nothing/home"));
    EXPECT_EQ(how(report(folders), "Data folder is"), "not there; the first start makes it");
    EXPECT_FALSE(folder_exists(folders.data.public_folder));
}

TEST_F(batch_program, reports_a_file_where_the_data_folder_should_be)
{
    folders = folders_of(place.write("taken", "a file"));
    EXPECT_EQ(how(report(folders), "Data folder is"), "no folder; a file has its name");
}

TEST_F(batch_program, reports_what_is_missing_from_the_data_folder)
{
    use_data_of_its_own();
    const std::string & data = folders.data.public_folder;
    delete_file(joined(data, "designs.ini"));
    std::filesystem::remove_all(joined(data, "piclists"));
    const std::string told = report(folders);
    EXPECT_EQ(how(told, "Data folder is"), "not whole; the next start fills it");
    EXPECT_TRUE(how(told, "Designs").starts_with("can't be read (")) << told;
    EXPECT_TRUE(how(told, "Kept").starts_with("can't be read (")) << told;
    EXPECT_EQ(told.find(place.path()), std::string::npos);
}

TEST_F(batch_program, reports_a_damaged_list_of_designs)
{
    use_data_of_its_own();
    replace_file(joined(folders.data.public_folder, "designs.ini"), "");
    EXPECT_EQ(how(report(folders), "Data folder is"),
              "whole but for its list of designs; the next start of the window mends it");
}

TEST_F(batch_program, reports_a_program_without_its_data)
{
    folders.install_folder = place.path();
    EXPECT_TRUE(how(report(folders), "Program").starts_with("NO data beside it"));
}
