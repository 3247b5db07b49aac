#include "support/files/file_steps.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <regex>
#include <thread>

namespace {

using names = std::vector<std::string>;

std::string named(file_step step)
{
    static const char * const words[] = {"make",   "write",       "flush",    "rename",
                                         "remove", "make_folder", "flush_all"};
    return words[static_cast<int>(step)];
}

// What a writer adds to the name of a file under construction to have it for itself is left out.
std::string without_own_part(const std::string & name)
{
    return std::regex_replace(name, std::regex("\\.[0-9a-f]+-[0-9a-f]+\\.part$"), ".part");
}

template <typename Act>
names steps_of(Act act)
{
    names steps;
    const gated_files gate([&](file_step step, const std::string & path) {
        steps.push_back(named(step) + " " + without_own_part(name_of(path)));
        return 0;
    });
    act();
    return steps;
}

// The number raised when every step of that kind is refused, 0 when nothing is.
template <typename Act>
int raised_without(file_step refused, int error, Act act)
{
    const gated_files gate([&](file_step step, const std::string &) { return step == refused ? error : 0; });
    try {
        act();
    } catch (const platform_error & raised) {
        return code(raised);
    }
    return 0;
}

}  // namespace

TEST(file_steps, a_file_is_written_beside_flushed_and_renamed_before_its_folder_is_flushed)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old");
    EXPECT_EQ(steps_of([&] { replace_file(path, "new"); }),
              (names{"make a.part", "write a.part", "flush a.part", "rename a",
                     "flush " + name_of(folder.path())}));
    EXPECT_EQ(steps_of([&] { replace_file(path, std::string(5000, 'x')); }).size(), 6U);
}

TEST(file_steps, each_refused_step_is_raised_and_leaves_the_old_file_alone)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old");
    for (const file_step step : {file_step::make, file_step::write, file_step::flush, file_step::rename}) {
        EXPECT_EQ(raised_without(step, ENOSPC, [&] { replace_file(path, "new"); }), 61) << named(step);
        EXPECT_EQ(read_file(path), "old");
        EXPECT_EQ(files_in(folder.path()), names{"a"}) << named(step);
    }
    EXPECT_EQ(raised_without(file_step::remove, EACCES, [&] { delete_file(path); }), 70);
    EXPECT_EQ(raised_without(file_step::make_folder, EACCES, [&] { make_folder(path + "b"); }), 70);
    EXPECT_EQ(read_file(path), "old");
}

TEST(file_steps, nothing_is_asked_once_the_gate_is_gone)
{
    const temporary_folder folder;
    {
        const gated_files gate([](file_step, const std::string &) { return EACCES; });
        EXPECT_EQ(asked_gate(file_step::write, "x"), EACCES);
    }
    EXPECT_EQ(asked_gate(file_step::write, "x"), 0);
    replace_file(folder.at("a"), "x");
    EXPECT_EQ(read_file(folder.at("a")), "x");
}

TEST(replace_file, writers_of_one_file_never_write_into_each_other)
{
    const temporary_folder folder;
    const std::string path = folder.at("a");
    const auto write_often = [&](char sign) {
        for (int i = 0; i < 50; ++i)
            write_file(path, std::string(20000, sign));
    };
    std::thread other([&] { write_often('x'); });
    write_often('y');
    other.join();
    const std::string held = read_file(path);
    EXPECT_EQ(held, std::string(20000, held.front()));
    EXPECT_EQ(files_in(folder.path()), names{"a"});
}

TEST(replace_file, leaves_a_file_alone_that_is_named_as_one_under_construction)
{
    const temporary_folder folder;
    folder.write("a.part", "the user's own");
    replace_file(folder.at("a"), "new");
    EXPECT_EQ(read_file(folder.at("a.part")), "the user's own");
}

TEST(replace_file, takes_a_name_as_long_as_names_may_be)
{
    const temporary_folder folder;
    const std::string path = folder.at(std::string(255, 'n'));
    replace_file(path, "new");
    EXPECT_EQ(read_file(path), "new");
}

TEST(remove_tree, takes_a_folder_with_all_in_it_and_of_a_link_only_the_link)
{
    const temporary_folder folder;
    folder.write("kept/a", "x");
    folder.write("gone/inner/b", "x");
    std::filesystem::create_directory_symlink(folder.at("kept"), folder.at("gone/link"));
    std::filesystem::create_symlink(folder.at("nowhere"), folder.at("gone/broken"));
    remove_tree(folder.at("gone"));
    EXPECT_EQ(folders_in(folder.path()), names{"kept"});
    EXPECT_EQ(read_file(folder.at("kept/a")), "x");
    remove_tree(folder.at("gone"));  // not there: nothing to do
}

TEST(move_file, takes_the_place_of_a_file)
{
    const temporary_folder folder;
    folder.write("new", "new");
    folder.write("old", "old");
    move_file(folder.at("new"), folder.at("old"));
    EXPECT_EQ(read_file(folder.at("old")), "new");
    EXPECT_EQ(files_in(folder.path()), names{"old"});
    EXPECT_THROW(move_file(folder.at("none"), folder.at("old")), platform_error);
    EXPECT_EQ(read_file(folder.at("old")), "new");
}
