#include "session/start_up.h"

#include "designs/catalogue.h"
#include "session/handlers.h"
#include "session/windows.h"
#include "support/archive.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;

namespace {

// A zip archive with one stored file, written by hand: local header, name, bytes, directory, end.
std::string zip_of(const std::string & name, const std::string & bytes, std::uint32_t checksum)
{
    const auto number = [](std::uint32_t value, int size) {
        std::string text;
        for (int i = 0; i < size; ++i)
            text += static_cast<char>(value >> (8 * i) & 0xFF);
        return text;
    };
    const std::uint32_t length = static_cast<std::uint32_t>(bytes.size());
    const std::string common = number(20, 2) + number(0, 2) + number(0, 2) + number(0, 4) +
                               number(checksum, 4) + number(length, 4) + number(length, 4) +
                               number(static_cast<std::uint32_t>(name.size()), 2) + number(0, 2);
    const std::string local = number(0x04034b50, 4) + common + name + bytes;
    const std::string directory = number(0x02014b50, 4) + number(20, 2) + common + number(0, 2) +
                                  number(0, 2) + number(0, 2) + number(0, 4) + number(0, 4) + name;
    return local + directory + number(0x06054b50, 4) + number(0, 2) + number(0, 2) + number(1, 2) +
           number(1, 2) + number(static_cast<std::uint32_t>(directory.size()), 4) +
           number(static_cast<std::uint32_t>(local.size()), 4) + number(0, 2);
}

constexpr std::uint32_t checksum_of_new = 0x6be34445;  // CRC-32 of "new"

// A program folder with seed data and a session that hasn't settled its data folder yet.
struct fresh_program {
    fresh_program()
    {
        folder.write("program/designs.ini", "[Design001]\r\nName=supplied\r\n");
        folder.write("program/quick_scatter.ini", "scatter");
        folder.write("program/icons/icons", "list");
        folder.write("program/icons/deep/ball.jpg", "ball");
        folder.write("program/frames.zip", zip_of("colts/captions", "new", checksum_of_new));
        main.install_folder = folder.at("program");
    }

    void start() { prepare_data_folder(main, {.use_public_folder = true, .public_folder = data}); }
    void share()
    {
        share_data_folder(main, {.use_public_folder = true, .public_folder = data}, folder.at("work"));
    }
    bool has(const std::string & name) const { return fs::exists(joined(data, name)); }
    std::string text(const std::string & name) const { return read_file(joined(data, name)); }

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
    frmMain & main = all.main;
    std::string data = folder.at("home/share/tessaloom4");
};

// What lies in a folder and when it was changed last.
std::map<std::string, fs::file_time_type> stamps_of(const std::string & place)
{
    std::map<std::string, fs::file_time_type> stamps;
    for (const auto & entry : fs::recursive_directory_iterator(place))
        stamps[entry.path().string()] = entry.last_write_time();
    return stamps;
}

const std::string welcome =
    "\r\nWelcome to Tessaloom\r\n\r\n\r\nThis appears to be the first time you have used this application "
    "and "
    "we\r\nneed to do a final configuration.\r\n\r\nClick the OK and give us a few seconds to get things "
    "ready.";

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

TEST(start_up, the_program_folder_as_data_folder_gets_its_three_folders_and_the_frame_sets)
{
    fresh_program program;
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = program.data});
    EXPECT_EQ(program.desk.next_message(), welcome);
    EXPECT_EQ(program.main.data_folder, program.main.install_folder);
    for (const char * name : {"designs", "descriptions", "frames"})
        EXPECT_TRUE(folder_exists(joined(program.main.install_folder, name))) << name;
    EXPECT_EQ(read_file(joined(program.main.install_folder, "frames/colts/captions")), "new");
    EXPECT_TRUE(file_exists(joined(program.main.install_folder, "3_1_install")));
    EXPECT_FALSE(fs::exists(program.data));
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = program.data});
}

TEST(start_up, the_program_folder_as_data_folder_has_the_work_folders_that_a_package_can_not_bring)
{
    fresh_program program;
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = program.data});
    program.desk.next_message();
    for (const char * name : {"tmp", "samples", "piclists", "user_images"})
        EXPECT_TRUE(folder_exists(joined(program.main.install_folder, name))) << name;
}

TEST(start_up, a_second_session_is_kept_away_from_a_data_folder_as_long_as_the_first_one_lasts)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    const std::string work = program.folder.write("home/share/tessaloom4/tmp/designs.ini", "the first one's");
    {
        windows second{program.desk, listed({})};
        second.main.install_folder = program.main.install_folder;
        try {
            prepare_data_folder(second.main, {.use_public_folder = true, .public_folder = program.data});
            ADD_FAILURE() << "two sessions have one data folder";
        } catch (const data_folder_in_use & taken) {
            EXPECT_EQ(taken.data_folder, program.data);
        }
    }
    EXPECT_EQ(read_file(work), "the first one's");
    program.main.data_lock = {};
    windows next{program.desk, listed({})};
    next.main.install_folder = program.main.install_folder;
    prepare_data_folder(next.main, {.use_public_folder = true, .public_folder = program.data});
}

TEST(start_up, moves_nothing_in_a_data_folder_that_another_session_has)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    program.folder.at("home/share/tessaloom4/designs.new/x");
    windows second{program.desk, listed({})};
    second.main.install_folder = program.main.install_folder;
    EXPECT_THROW(prepare_data_folder(second.main, {.use_public_folder = true, .public_folder = program.data}),
                 data_folder_in_use);
    EXPECT_TRUE(folder_exists(joined(program.data, "designs.new")));
    program.main.data_lock = {};
    prepare_data_folder(second.main, {.use_public_folder = true, .public_folder = program.data});
    EXPECT_FALSE(folder_exists(joined(program.data, "designs.new")));
}

TEST(start_up, designs_of_a_newer_program_come_to_a_catalogue_that_the_user_has_added_to)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    const std::string mine = "\r\n[Design600]\r\nName=mine\r\nSystem=No\r\n";
    program.folder.write("home/share/tessaloom4/designs.ini", program.text("designs.ini") + mine);
    program.folder.write("program/designs.ini",
                         "[Design001]\r\nName=supplied\r\n\r\n[Design002]\r\nName=newer\r\n");
    program.start();
    EXPECT_EQ(program.text("designs.ini"),
              "[Design001]\r\nName=supplied\r\n\r\n[Design002]\r\nName=newer\r\n" + mine);
    EXPECT_EQ(program.text("designs.supplied"),
              read_file(joined(program.main.install_folder, "designs.ini")));
}

TEST(start_up, a_portable_program_makes_the_folders_that_its_package_does_not_bring)
{
    fresh_program program;
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = {}});
    program.desk.next_message();
    for (const char * name :
         {"tmp", "designs", "descriptions", "samples", "piclists", "user_images", "frames"})
        EXPECT_TRUE(folder_exists(joined(program.main.install_folder, name))) << name;
}

TEST(start_up, a_portable_program_takes_newer_designs_from_the_second_copy_of_the_supplied_catalogue)
{
    fresh_program program;
    program.folder.write("program/designs.seed",
                         "[Design001]\r\nName=supplied\r\n\r\n[Design002]\r\nName=newer\r\n");
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = {}});
    program.desk.next_message();
    EXPECT_EQ(read_file(joined(program.main.install_folder, "designs.ini")),
              "[Design001]\r\nName=supplied\r\n\r\n[Design002]\r\nName=newer\r\n");
}

TEST(shared_data, a_missing_data_folder_is_filled_and_a_filled_one_not_touched)
{
    fresh_program program;
    program.share();
    EXPECT_EQ(program.desk.next_message(), welcome);
    EXPECT_EQ(program.text("3_1_install"), "scatter");
    EXPECT_EQ(program.main.data_folder, program.data);
    const auto before = stamps_of(program.data);
    program.folder.write("program/designs.ini", "[Design002]\r\nName=newer\r\n");
    program.share();
    load_main(program.main);
    EXPECT_EQ(stamps_of(program.data), before);
}

TEST(shared_data, is_read_while_another_session_has_it)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    program.folder.write("home/share/tessaloom4/piclists/last_photos.pls", "the first one's");
    windows second{program.desk, listed({})};
    second.main.install_folder = program.main.install_folder;
    share_data_folder(second.main, {.use_public_folder = true, .public_folder = program.data},
                      program.folder.at("work"));
    load_main(second.main);
    EXPECT_EQ(program.text("piclists/last_photos.pls"), "the first one's");
    EXPECT_TRUE(find_design(second.main, "supplied"));
}

TEST(shared_data, keeps_the_catalogue_as_it_was_with_the_designs_of_a_newer_program)
{
    fresh_program program;
    program.share();
    program.desk.next_message();
    program.folder.write("program/designs.ini",
                         "[Design001]\r\nName=supplied\r\n\r\n[Design002]\r\nName=newer\r\n");
    program.share();
    program.folder.write("home/share/tessaloom4/designs.ini", "somebody else's by now");
    EXPECT_TRUE(find_design(program.main, "newer"));
    EXPECT_FALSE(owns_data_folder(program.main));
}

TEST(shared_data, waits_for_the_program_that_is_filling_it)
{
    fresh_program program;
    fs::create_directories(program.data);
    std::optional<folder_lock> filling = folder_lock::taken(program.data, "filling");
    ASSERT_TRUE(filling);
    program.desk.on_pump(3, [&] {
        EXPECT_FALSE(program.has("tmp"));
        filling.reset();
    });
    program.share();
    EXPECT_FALSE(filling);
    EXPECT_TRUE(program.has("tmp"));
}

TEST(shared_data, does_not_wait_for_ever_for_that_program)
{
    fresh_program program;
    program.folder.at("busy/x");
    program.main.data_folder = program.folder.at("busy");
    const auto filling = folder_lock::taken(program.main.data_folder, "filling");
    EXPECT_THROW(filling_lock(program.main, std::chrono::milliseconds(40)), end_of_program);
    EXPECT_EQ(program.desk.next_message(), "Another program is still preparing the data folder\r\n" +
                                               program.main.data_folder +
                                               "\r\nPlease try again when it has finished.");
}

TEST(start_up, codes_of_the_program_folder_are_30_to_32)
{
    struct row {
        const char * name;
        const char * code;
    };
    for (const row & each : {row{"designs", "30"}, row{"descriptions", "31"}, row{"frames", "32"}}) {
        fresh_program program;
        const std::string path = program.folder.write(std::string("program/") + each.name, "in the way");
        program.main.data_folder = program.main.install_folder;
        EXPECT_THROW(check_base_folders(program.main), end_of_program);
        EXPECT_EQ(program.desk.next_message(),
                  std::string("Error ") + each.code + ":   " + path + "   is a file.");
    }
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
