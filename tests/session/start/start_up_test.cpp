#include "session/start/start_up.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/session/fresh_program.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

struct blocked_path {
    const char * name;
    const char * before;
    const char * behind;
};

class blocked_by_a_file : public testing::TestWithParam<blocked_path> {};

}  // namespace

TEST(is_nt_six, is_true_for_that_one_version_alone)
{
    EXPECT_TRUE(is_nt_six({.platform_id = 2, .major = 6}));
    EXPECT_FALSE(is_nt_six({.platform_id = 2, .major = 5}));
    EXPECT_FALSE(is_nt_six({.platform_id = 2, .major = 10}));
    EXPECT_FALSE(is_nt_six({.platform_id = 1, .major = 6}));
    EXPECT_FALSE(is_nt_six({}));
}

TEST(choose_data_folder, goes_by_the_version_on_that_family_even_when_the_folder_is_writable)
{
    const temporary_folder program;
    EXPECT_TRUE(choose_data_folder({2, 6}, program.path(), "p").use_public_folder);
    EXPECT_FALSE(choose_data_folder({2, 10}, "/nowhere at all", "p").use_public_folder);
}

TEST(choose_data_folder, keeps_the_data_apart_even_where_the_program_folder_can_be_written)
{
    const temporary_folder program;
    const folder_choice choice = choose_data_folder({}, program.path(), "/shared/data");
    EXPECT_TRUE(choice.use_public_folder);
    EXPECT_EQ(choice.public_folder, "/shared/data");
}

TEST(choose_data_folder, keeps_it_with_the_program_where_that_is_portable)
{
    const temporary_folder program;
    program.write("portable", "");
    EXPECT_FALSE(choose_data_folder({}, program.path(), "p").use_public_folder);
    EXPECT_FALSE(choose_data_folder({2, 6}, program.path(), "p").use_public_folder);
}

TEST(start_up, a_first_start_welcomes_once_and_brings_everything_into_being)
{
    fresh_program program;
    program.start();
    EXPECT_EQ(program.desk.next_message(), welcome);
    EXPECT_EQ(program.desk.titles.front(), "T e s s a l o o m   C o n f i g u r a t i o n");
    for (const char * name :
         {"tmp", "designs", "descriptions", "samples", "piclists", "user_images", "frames", "icons"})
        EXPECT_TRUE(folder_exists(joined(program.data, name))) << name;
    EXPECT_EQ(program.text("designs.ini"), "[Design001]\r\nName=supplied\r\n");
    EXPECT_EQ(program.text("icons/icons"), "list");
    EXPECT_EQ(program.text("icons/deep/ball.jpg"), "ball");
    EXPECT_EQ(program.text("frames/colts/captions"), "new");
    EXPECT_EQ(program.text("3_1_install"), "scatter");
    EXPECT_EQ(program.text("4_2_install"), "scatter");
    EXPECT_FALSE(program.has("icons.part"));
    EXPECT_EQ(program.main.data_folder, program.data);
}

TEST(start_up, a_second_start_shows_nothing_and_copies_nothing)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    program.folder.write("program/designs.ini", "another");
    program.folder.write("program/quick_scatter.ini", "another");
    program.folder.write("home/share/tessaloom4/frames/colts/captions", "mine");
    program.start();
    EXPECT_EQ(program.text("designs.ini"), "[Design001]\r\nName=supplied\r\n");
    EXPECT_EQ(program.text("3_1_install"), "scatter");
    EXPECT_EQ(program.text("frames/colts/captions"), "mine");
}

TEST(start_up, a_catalogue_without_the_marker_of_this_release_gives_way_to_the_supplied_one)
{
    fresh_program program;
    program.folder.write("home/share/tessaloom4/designs.ini", "[Design600]\r\nName=mine\r\n");
    program.folder.write("home/share/tessaloom4/designs/saved1", "1:2:3");
    program.start();
    EXPECT_EQ(program.text("designs.ini"), "[Design001]\r\nName=supplied\r\n");
    EXPECT_EQ(program.text("designs/saved1"), "1:2:3");
    EXPECT_TRUE(program.desk.messages.empty());  // the folder was there: no welcome
}

TEST(start_up, a_catalogue_with_the_marker_stays)
{
    fresh_program program;
    const std::string mine = "[Design001]\r\nName=mine\r\n";
    program.folder.write("home/share/tessaloom4/designs.ini", mine);
    program.folder.write("home/share/tessaloom4/3_1_install", "");
    program.start();
    EXPECT_EQ(program.text("designs.ini"), mine);
    EXPECT_FALSE(program.has("4_2_install"));
}

TEST_P(blocked_by_a_file, ends_the_program_with_the_path)
{
    fresh_program program;
    const std::string path =
        program.folder.write("home/share/tessaloom4/" + std::string(GetParam().name), "in the way");
    EXPECT_THROW(program.start(), end_of_program);
    EXPECT_EQ(program.desk.next_message(), GetParam().before + path + GetParam().behind);
    EXPECT_FALSE(program.has("3_1_install"));
}

INSTANTIATE_TEST_SUITE_P(start_up, blocked_by_a_file,
                         testing::Values(blocked_path{"tmp", "Error 22:   ", "   is a file."},
                                         blocked_path{"designs", "Error 23:   ", "   is a file."},
                                         blocked_path{"descriptions", "Error 24:   ", "   is a file."},
                                         blocked_path{"samples", "Error 25:   ", "   is a file."},
                                         blocked_path{"piclists", "Error 26:   ", "   is a file."},
                                         blocked_path{"user_images", "Error 27:   ", "   is a file."},
                                         blocked_path{"frames", "Error 28:   ", "   is a file."},
                                         blocked_path{"icons", "Error 28:    ", "    is a file."}));

TEST(start_up, a_file_in_place_of_the_data_folder_ends_the_program)
{
    fresh_program program;
    program.folder.write("home/share/tessaloom4", "in the way");
    EXPECT_THROW(program.start(), end_of_program);
    EXPECT_EQ(program.desk.next_message(), "Error 21:   " + program.data + "   is a file.");
}

TEST(start_up, a_folder_in_place_of_the_catalogue_ends_the_program_with_the_code_of_the_images)
{
    fresh_program program;
    program.folder.at("home/share/tessaloom4/designs.ini/x");
    EXPECT_THROW(program.start(), end_of_program);
    EXPECT_EQ(program.desk.next_message(),
              "Error 27:    " + joined(program.data, "designs.ini") + "    is a folder.");
}

TEST(start_up, replaces_the_four_named_files_of_a_frame_set_and_no_others)
{
    fresh_program program;
    for (const char * file : {"captions", "design.ini", "lframe00.jpg", "pframe00.jpg", "pframe01.jpg"})
        for (const char * set : {"basketball", "cardinals", "colts", "rams", "soccer", "mine"})
            program.folder.write(std::string("home/share/tessaloom4/frames/") + set + "/" + file, "old");
    program.start();
    EXPECT_EQ(program.text("frames/colts/captions"), "new");
    for (const char * set : {"basketball", "cardinals", "colts", "rams", "soccer"}) {
        const std::string folder = std::string("frames/") + set;
        EXPECT_EQ(program.text(folder + "/pframe01.jpg"), "old");
        for (const char * file : {"/design.ini", "/lframe00.jpg", "/pframe00.jpg"})
            EXPECT_FALSE(program.has(folder + file)) << folder << file;
    }
    EXPECT_EQ(program.text("frames/mine/captions"), "old");
}

TEST(start_up, a_missing_or_damaged_archive_is_passed_over_and_the_markers_are_written)
{
    fresh_program program;
    program.folder.write("program/frames.zip", "no archive");
    program.start();
    program.desk.next_message();
    EXPECT_TRUE(program.has("3_1_install"));
    EXPECT_TRUE(program.has("4_2_install"));
}

TEST(start_up, letters_and_pieces_are_supplied_to_a_folder_apart_and_only_once)
{
    fresh_program program;
    program.folder.write("program/alpha/a.jpg", "a");
    program.start();
    program.desk.next_message();
    supply_package_folders(program.main);
    EXPECT_EQ(program.text("alpha/a.jpg"), "a");
    EXPECT_FALSE(program.has("puzzle"));  // the package has none
    program.folder.write("program/alpha/a.jpg", "changed");
    supply_package_folders(program.main);
    EXPECT_EQ(program.text("alpha/a.jpg"), "a");
}

TEST(start_up, names_the_seed_file_that_is_missing)
{
    fresh_program program;
    fs::remove(joined(program.main.install_folder, "designs.ini"));
    try {
        program.start();
        ADD_FAILURE() << "started without a catalogue";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.number, error_number::file_not_found);
        EXPECT_EQ(error.path, joined(program.main.install_folder, "designs.ini"));
    }
    program.desk.next_message();
}

TEST(start_up, icons_that_could_not_be_copied_whole_are_copied_again)
{
    fresh_program program;
    fs::remove_all(joined(program.main.install_folder, "icons"));
    EXPECT_THROW(program.start(), platform_error);
    program.desk.next_message();
    EXPECT_FALSE(program.has("icons"));
    program.folder.write("program/icons/icons", "list");
    program.start();
    EXPECT_EQ(program.text("icons/icons"), "list");
}

TEST(start_up, names_the_place_that_can_not_be_written)
{
    fresh_program program;
    fs::create_directories(program.data);
    fs::permissions(program.data, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                      fs::perms::others_exec);
    const as_ordinary_user user;
    try {
        program.start();
        ADD_FAILURE() << "started in a folder that can't be written";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.number, error_number::permission_denied);
        EXPECT_EQ(error.path, joined(program.data, "tmp"));
    }
}

// All is there, so nothing has to be made.
TEST(start_up, refuses_a_data_folder_in_which_no_preview_can_be_kept)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    fs::permissions(joined(program.data, "tmp"), fs::perms{0555});
    try {
        const as_ordinary_user user;
        program.start();
        ADD_FAILURE() << "started where no preview can be kept";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.number, error_number::permission_denied);
        EXPECT_EQ(error.path, joined(program.data, "tmp"));
        EXPECT_NE(told_at_start(error).find("Allow it to write in that\nfolder"), std::string::npos);
    }
    fs::permissions(joined(program.data, "tmp"), fs::perms{0777});
    program.start();
    EXPECT_FALSE(program.has("tmp/may_be_written"));
    EXPECT_EQ(told_at_start({error_number::disk_full, "The disk is full.", "/a"}), "The disk is full.\n/a");
}

TEST(start_up, names_the_file_that_did_not_fit_on_a_full_disk)
{
    fresh_program program;
    program.folder.write("program/designs.ini", std::string(10000, 'x'));
    const full_disk disk(4096);
    try {
        program.start();
        ADD_FAILURE() << "started on a full disk";
    } catch (const platform_error & error) {
        EXPECT_EQ(error.number, error_number::disk_full);
        EXPECT_EQ(error.path, joined(program.data, "designs.ini"));
    }
    EXPECT_FALSE(program.has("designs.ini"));
    program.desk.next_message();
}

TEST(clear_matrix_design, deletes_the_work_file_and_forbids_saving)
{
    fresh_program program;
    program.main.data_folder = program.folder.at("data");
    const std::string path = program.folder.write("data/designs/__matrix", "1:2");
    const std::string other = program.folder.write("data/designs/__matrix_", "1:2");
    fs::permissions(path, fs::perms::owner_read);
    clear_matrix_design(program.main);
    EXPECT_FALSE(file_exists(path));
    EXPECT_TRUE(file_exists(other));
    EXPECT_FALSE(program.main.mnuSaveDesign.enabled());
}
