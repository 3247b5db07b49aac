#include "designs/package/package_import.h"

#include "designs/catalogue/catalogue.h"
#include "support/platform_error.h"
#include "tests/designs/package_session.h"

namespace {

// What the catalogue is after a section of that number was merged into it.
std::string catalogue_with(double number, const std::string & name)
{
    package_session session;
    const std::string text = formatted(static_cast<int>(number), 3);
    session.import_manifest("$$$ MSG Hearts\n$$$ designs.ini " + text + "\n[Design" + text +
                            "]\nName=" + name + "\n\n$$$\n");
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(session.read("designs.bbb"),
              "[Design601]\r\nName=a\r\n\r\n[Design603]\r\nName=c\r\n\r\n[Design605]\r\nName=e\r\n");
    EXPECT_FALSE(session.has("designs.new"));
    return session.read("designs.ini");
}

}  // namespace

TEST(import_package, merges_a_section_before_between_after_and_equal)
{
    EXPECT_EQ(catalogue_with(600, "n"),
              "[Design600]\r\nName=n\r\n\r\n[Design601]\r\nName=a\r\n\r\n[Design603]\r\nName=c\r\n\r\n"
              "[Design605]\r\nName=e\r\n");
    EXPECT_EQ(catalogue_with(604, "n"),
              "[Design601]\r\nName=a\r\n\r\n[Design603]\r\nName=c\r\n\r\n[Design604]\r\nName=n\r\n\r\n"
              "[Design605]\r\nName=e\r\n");
    EXPECT_EQ(catalogue_with(700, "n"),
              "[Design601]\r\nName=a\r\n\r\n[Design603]\r\nName=c\r\n\r\n[Design605]\r\nName=e\r\n"
              "[Design606]\r\nName=n\r\n\r\n");
    EXPECT_EQ(catalogue_with(603, "n"),
              "[Design601]\r\nName=a\r\n\r\n[Design603]\r\nName=n\r\n\r\n[Design605]\r\nName=e\r\n");
}

TEST(import_package, asks_for_the_file_and_nothing_happens_after_a_cancel)
{
    package_session session;
    const folder_image before = image_of(session.folder.path());
    session.desk.will_choose_file(std::nullopt);
    session.main.mnuImport.click();
    EXPECT_EQ(image_of(session.folder.path()), before);
}

TEST(import_package, makes_folders_moves_files_and_uses_the_package_up)
{
    package_session session;
    session.folder.write("data/frames/heart/old", "x");
    session.folder.write("data/designs/heart", "old");
    const std::string package = session.import_manifest(
        "$$$ MSG Hearts\r\n$$$ NEW  frames\\heart\r\n$$$ NAME abcdef frames\\heart\\captions\r\n"
        "$$$ NAME ghijkl designs\\heart\r\n",
        {{.name = "abcdef", .bytes = "captions"},
         {.name = "ghijkl", .bytes = "new"},
         {.name = "mnopqr", .bytes = "rest"}});
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(image_of(session.at("frames")),
              (folder_image{{"heart", "folder"}, {"heart/captions", "captions"}}));
    EXPECT_EQ(session.read("designs/heart"), "new");
    EXPECT_FALSE(file_exists(package));
    EXPECT_EQ(session.read("tmp/unzipped/mnopqr"), "rest");  // until the next import
    EXPECT_FALSE(session.has("tmp/unzipped/abcdef"));
}

TEST(import_package, a_second_import_replaces_the_section_and_adds_no_second_icon_line)
{
    package_session session;
    folder_image first;
    for (int i = 0; i < 2; ++i) {
        session.import_manifest(
            "$$$ MSG Hearts\n$$$ NEW  hearts\n$$$ NAME abcdef hearts\\a.jpg\n$$$ icons\nsun sun.bmp\n"
            "$$$ designs.ini 602\n[Design602]\nName=Heart\n$$$\n",
            {{.name = "abcdef", .bytes = "x"}});
        EXPECT_EQ(session.desk.next_message(), hearts_imported);
        EXPECT_EQ(session.read("icons/icons"), "star star.bmp\r\nsun sun.bmp\r\n");
        folder_image now = image_of(session.at(""));
        for (const char * backup : {"designs.bbb", "icons/icons.bbb"})
            now.erase(backup);
        if (i == 0)
            first = now;
        else
            EXPECT_EQ(now, first);
    }
    EXPECT_EQ(session.read("icons/icons.bbb"), "star star.bmp\r\nsun sun.bmp\r\n");
    EXPECT_FALSE(session.has("icons/icons.new"));
}

TEST(import_package, an_icon_line_keeps_the_old_list_as_backup)
{
    package_session session;
    session.import_manifest("$$$ MSG Hearts\n$$$ icons\nsun sun.bmp\n");
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(session.read("icons/icons.bbb"), "star star.bmp\r\n");
}

TEST(import_package, a_missing_icon_line_is_told_and_the_import_still_reports_success)
{
    package_session session;
    session.import_manifest("$$$ MSG Hearts\n$$$ icons\n");
    EXPECT_EQ(session.desk.next_message(), "Missing icon line!");
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
}

TEST(import_package, a_section_may_be_the_last_thing_in_the_manifest)
{
    package_session session;
    session.import_manifest("$$$ MSG Hearts\n$$$ designs.ini 602\n[Design602]\nName=Heart");
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_NE(session.read("designs.ini").find("[Design602]\r\nName=Heart\r\n[Design603]"),
              std::string::npos);
}

TEST(import_package, a_manifest_without_a_command_is_an_unamed_import)
{
    package_session session;
    session.import_manifest("nothing to do\n");
    EXPECT_EQ(session.desk.next_message(), "\r\nUnamed import has been successfully imported.\r\n");
}

TEST(import_package, a_catalogue_without_sections_takes_number_601)
{
    package_session session;
    session.catalogue("; nothing yet\n");
    session.import_manifest("$$$ MSG Hearts\n$$$ designs.ini 42\n[Design042]\nName=Heart\n$$$\n");
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(session.read("designs.ini"), "; nothing yet\r\n[Design601]\r\nName=Heart\r\n");
}

TEST(import_package, no_number_above_998_is_given)
{
    package_session session;
    session.catalogue("[Design998]\nName=x\n");
    session.import_manifest("$$$ designs.ini 999\nName=Heart\n");
    EXPECT_EQ(session.desk.next_message(),
              "You are limited to 400 Designs.\r\nYou will need to remove one before you can save another.");
    EXPECT_EQ(session.read("designs.ini"), "[Design998]\nName=x\n");
}

TEST(import_package, a_missing_file_stops_the_import_and_what_was_done_stays)
{
    package_session session;
    session.import_manifest(
        "$$$ NAME abcdef designs\\heart\n$$$ NAME ghijkl designs\\other\n$$$ icons\nx x.bmp\n",
        {{.name = "abcdef", .bytes = "x"}});
    EXPECT_EQ(session.desk.next_message(),
              "This import package is missing the 'ghijkl' file.\r\n\r\nImport has been stoppped.");
    EXPECT_EQ(session.read("designs/heart"), "x");
    EXPECT_EQ(session.read("icons/icons"), "star star.bmp\r\n");
}

TEST(import_package, a_name_shorter_than_six_characters_is_not_found)
{
    package_session session;
    session.import_manifest("$$$ NAME abc designs\\heart\n", {{.name = "abc", .bytes = "x"}});
    EXPECT_EQ(session.desk.next_message(),
              "This import package is missing the 'abc de' file.\r\n\r\nImport has been stoppped.");
}

TEST(import_package, no_manifest_is_told_and_the_package_is_used_up)
{
    package_session session;
    const std::string package = session.import_entries({{.name = "abcdef", .bytes = "x"}});
    EXPECT_EQ(session.desk.next_message(),
              "This design package is incomplete.\r\nIt is missing the manifest file.\r\n"
              "The new design was not imported.");
    EXPECT_FALSE(file_exists(package));
}

TEST(import_package, something_wrong_with_the_zip_is_told_and_the_file_stays)
{
    package_session session;
    const std::string package = session.folder.write("package.zip", "no archive at all");
    session.desk.will_choose_file(package);
    session.main.mnuImport.click();
    EXPECT_EQ(session.desk.next_message(), "Something is wrong with the zip file");
    EXPECT_TRUE(file_exists(package));
}

TEST(import_package, what_an_earlier_import_left_is_gone)
{
    package_session session;
    session.folder.write("data/tmp/unzipped/abcdef", "old");
    session.import_manifest("$$$ NAME abcdef designs\\heart\n");
    EXPECT_EQ(session.desk.next_message(),
              "This import package is missing the 'abcdef' file.\r\n\r\nImport has been stoppped.");
}

TEST(import_package, an_open_walk_over_the_catalogue_is_closed_before_it_is_replaced)
{
    package_session session;
    read_design(session.main, catalogue_start::first);
    session.import_manifest("$$$ MSG Hearts\n$$$ designs.ini 602\nName=Heart\n");
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_FALSE(session.main.catalogue.catalogue_at_end);
    EXPECT_TRUE(find_design(session.main, "Heart"));
    EXPECT_EQ(session.main.design_record.section, "Design602");
}
