#include "designs/catalogue/catalogue.h"
#include "session/main_window/load.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/session/fresh_program.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

// Whose the data folder is: the user's, one session's at a time, or the program's own; and how others read
// it.

namespace fs = std::filesystem;

namespace {

// What lies in a folder and when it was changed last.
std::map<std::string, fs::file_time_type> stamps_of(const std::string & place)
{
    std::map<std::string, fs::file_time_type> stamps;
    for (const auto & entry : fs::recursive_directory_iterator(place))
        stamps[entry.path().string()] = entry.last_write_time();
    return stamps;
}

}  // namespace

TEST(data_folder, the_program_folder_as_data_folder_gets_its_three_folders_and_the_frame_sets)
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

TEST(data_folder, the_program_folder_as_data_folder_has_the_work_folders_that_a_package_can_not_bring)
{
    fresh_program program;
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = program.data});
    program.desk.next_message();
    for (const char * name : {"tmp", "samples", "piclists", "user_images"})
        EXPECT_TRUE(folder_exists(joined(program.main.install_folder, name))) << name;
}

TEST(data_folder, a_second_session_is_kept_away_from_a_data_folder_as_long_as_the_first_one_lasts)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    const std::string work = program.folder.write("home/share/tessaloom4/tmp/designs.ini", "the first one's");
    {
        windows second{program.desk, listed({})};
        second.main.install_folder = program.main.install_folder;
        try {
            prepare_data_folder(second.main, program.choice());
            ADD_FAILURE() << "two sessions have one data folder";
        } catch (const data_folder_in_use & taken) {
            EXPECT_EQ(taken.data_folder, program.data);
        }
    }
    EXPECT_EQ(read_file(work), "the first one's");
    program.main.data_lock = {};
    windows next{program.desk, listed({})};
    next.main.install_folder = program.main.install_folder;
    prepare_data_folder(next.main, program.choice());
}

TEST(data_folder, moves_nothing_in_a_data_folder_that_another_session_has)
{
    fresh_program program;
    program.start();
    program.desk.next_message();
    program.folder.at("home/share/tessaloom4/designs.new/x");
    windows second{program.desk, listed({})};
    second.main.install_folder = program.main.install_folder;
    EXPECT_THROW(prepare_data_folder(second.main, program.choice()), data_folder_in_use);
    EXPECT_TRUE(folder_exists(joined(program.data, "designs.new")));
    program.main.data_lock = {};
    prepare_data_folder(second.main, program.choice());
    EXPECT_FALSE(folder_exists(joined(program.data, "designs.new")));
}

TEST(data_folder, designs_of_a_newer_program_come_to_a_catalogue_that_the_user_has_added_to)
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

TEST(data_folder, a_portable_program_makes_the_folders_that_its_package_does_not_bring)
{
    fresh_program program;
    prepare_data_folder(program.main, {.use_public_folder = false, .public_folder = {}});
    program.desk.next_message();
    for (const char * name :
         {"tmp", "designs", "descriptions", "samples", "piclists", "user_images", "frames"})
        EXPECT_TRUE(folder_exists(joined(program.main.install_folder, name))) << name;
}

TEST(data_folder, a_portable_program_takes_newer_designs_from_the_second_copy_of_the_supplied_catalogue)
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
    share_data_folder(second.main, program.choice(), program.folder.at("work"));
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

TEST(data_folder, codes_of_the_program_folder_are_30_to_32)
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
