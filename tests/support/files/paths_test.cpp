#include "support/files/paths.h"

#include "support/files/copies.h"
#include "support/files/text_file.h"
#include "tests/raised_by.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(paths, are_joined_with_one_separator)
{
    EXPECT_EQ(joined("/x", "a"), "/x/a");
    EXPECT_EQ(joined("/x", "/a"), "/x/a");
    EXPECT_EQ(joined("/x", "\\frames\\a"), "/x/frames/a");
    EXPECT_EQ(joined("/x", "images/a.jpg"), "/x/images/a.jpg");
}

TEST(paths, are_cut_at_the_last_separator_of_either_kind)
{
    EXPECT_EQ(folder_of("/x/y/a.jpg"), "/x/y");
    EXPECT_EQ(name_of("/x/y/a.jpg"), "a.jpg");
    EXPECT_EQ(folder_of("D:\\x\\a.jpg"), "D:\\x");
    EXPECT_EQ(name_of("D:\\x/y\\a.jpg"), "a.jpg");
    EXPECT_EQ(folder_of("a.jpg"), "");
    EXPECT_EQ(name_of("a.jpg"), "a.jpg");
    EXPECT_EQ(name_of("/x/"), "");
}

TEST(paths, under_a_folder_need_a_separator_behind_its_name)
{
    EXPECT_TRUE(is_under("images/a.jpg", "images"));
    EXPECT_TRUE(is_under("images\\a.jpg", "images"));
    EXPECT_FALSE(is_under("images", "images"));
    EXPECT_FALSE(is_under("images_a.jpg", "images"));
    EXPECT_FALSE(is_under("Images/a.jpg", "images"));
}

TEST(paths, lower_case_folds_ascii_alone)
{
    EXPECT_EQ(lower_case("A.JPG \xC3\x84"), "a.jpg \xC3\x84");
}

TEST(paths, a_file_is_no_folder_and_a_folder_no_file)
{
    const temporary_folder folder;
    const std::string file = folder.write("a", "");
    EXPECT_TRUE(file_exists(file) && !folder_exists(file));
    EXPECT_TRUE(folder_exists(folder.path()) && !file_exists(folder.path()));
    EXPECT_FALSE(file_exists(folder.at("none")) || folder_exists(folder.at("none")));
    EXPECT_FALSE(file_exists("") || folder_exists(""));
}

TEST(paths, names_of_files_are_listed_without_folders)
{
    const temporary_folder folder;
    folder.write("b", "");
    folder.write("a\xFF", "");
    folder.write("inner/c", "");
    std::vector<std::string> names = files_in(folder.path());
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<std::string>{"a\xFF", "b"}));
    EXPECT_EQ(raised_by([&] { files_in(folder.at("none")); }), 76);
}

TEST(paths, the_folders_in_a_folder_are_named_without_its_files)
{
    const temporary_folder folder;
    folder.write("a/deep/x", "");
    folder.write("b/x", "");
    folder.write("c", "");
    std::vector<std::string> names = folders_in(folder.path());
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(raised_by([&] { folders_in(joined(folder.path(), "none")); }), 76);
}

TEST(paths, only_an_empty_folder_is_removed)
{
    const temporary_folder folder;
    const std::string file = folder.write("a/x", "");
    EXPECT_EQ(raised_by([&] { remove_folder(folder_of(file)); }), 75);
    EXPECT_TRUE(file_exists(file));
    delete_file(file);
    remove_folder(folder_of(file));
    EXPECT_FALSE(folder_exists(folder_of(file)));
    EXPECT_EQ(raised_by([&] { remove_folder(folder_of(file)); }), 76);
}

TEST(paths, a_folder_is_made_once_and_only_in_a_folder_that_is_there)
{
    const temporary_folder folder;
    make_folder(folder.at("a"));
    make_folder(folder.at("a"));
    EXPECT_TRUE(folder_exists(folder.at("a")));
    EXPECT_EQ(raised_by([&] { make_folder(joined(folder.path(), "none/b")); }), 76);
    const as_ordinary_user user;
    EXPECT_EQ(raised_by([&] { make_folder("/tessaloom_test_folder"); }), 70);
}

TEST(paths, deleting_takes_protected_files_and_no_missing_ones)
{
    const temporary_folder folder;
    const std::string file = folder.write("a", "x");
    ::chmod(file.c_str(), 0444);
    delete_file(file);
    delete_file(file);
    EXPECT_FALSE(file_exists(file));
    const std::string closed = folder.write("closed/a", "x");
    ::chmod(folder.at("closed").c_str(), 0555);
    const as_ordinary_user user;
    EXPECT_EQ(raised_by([&] { delete_file(closed); }), 70);
}

TEST(paths, copying_a_file_overwrites)
{
    const temporary_folder folder;
    const std::string from = folder.write("from", "new"), to = folder.write("to", "old");
    copy_file(from, to);
    EXPECT_EQ(read_file(to), "new");
    EXPECT_EQ(raised_by([&] { copy_file(folder.at("none"), to); }), 53);
    EXPECT_EQ(raised_by([&] { copy_file(from, joined(folder.path(), "none/to")); }), 76);
    EXPECT_EQ(read_file(to), "new");
}

TEST(paths, copying_a_folder_takes_all_in_it_and_leaves_what_is_there)
{
    const temporary_folder folder;
    folder.write("from/a", "new");
    folder.write("from/inner/b", "b");
    folder.write("to/a", "old");
    folder.write("to/c", "c");
    copy_folder(folder.at("from"), folder.at("to"));
    EXPECT_EQ(
        read_file(folder.at("to/a")) + read_file(folder.at("to/inner/b")) + read_file(folder.at("to/c")),
        "newbc");
    EXPECT_EQ(raised_by([&] { copy_folder(folder.at("none"), folder.at("other")); }), 53);
}

TEST(paths, a_folder_is_writable_for_who_may_make_files_in_it)
{
    const temporary_folder folder;
    folder.write("closed/a", "");
    ::chmod(folder.at("closed").c_str(), 0555);
    const as_ordinary_user user;
    EXPECT_TRUE(folder_writable(folder.path()));
    EXPECT_FALSE(folder_writable(folder.at("closed")));
    EXPECT_FALSE(folder_writable(joined(folder.path(), "none")));
}

TEST(paths, the_later_file_is_newer_and_one_of_the_same_time_is_not)
{
    namespace fs = std::filesystem;
    const temporary_folder folder;
    const std::string first = folder.write("a", ""), second = folder.write("b", "");
    fs::last_write_time(second, fs::last_write_time(first));
    EXPECT_FALSE(is_newer(first, second) || is_newer(second, first));
    fs::last_write_time(second, fs::last_write_time(first) + std::chrono::milliseconds(20));
    EXPECT_TRUE(is_newer(second, first));
    EXPECT_FALSE(is_newer(first, second));
    EXPECT_EQ(raised_by([&] { is_newer(first, folder.at("none")); }), 53);
}
