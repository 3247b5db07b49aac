#include "support/files/paths.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

TEST(stamp_of, is_the_same_for_a_file_left_alone_and_another_when_it_grew)
{
    const temporary_folder folder;
    const std::string path = folder.write("a.gif", "four");
    const auto before = stamp_of(path);
    ASSERT_TRUE(before);
    EXPECT_EQ(stamp_of(path), before);
    EXPECT_EQ(before->bytes, 4U);
    folder.write("a.gif", "longer");
    EXPECT_NE(stamp_of(path), before);
}

TEST(stamp_of, is_nothing_for_a_missing_file_and_for_a_folder)
{
    const temporary_folder folder;
    EXPECT_FALSE(stamp_of(folder.at("none.gif")));
    EXPECT_FALSE(stamp_of(folder.path()));
}

TEST(stamp_of, is_another_for_a_file_that_took_the_place_of_one_of_the_same_size_and_time)
{
    const temporary_folder folder;
    const std::string path = folder.write("a.gif", "four"), other = folder.write("b.gif", "five");
    const auto before = stamp_of(path);
    std::filesystem::last_write_time(other, std::filesystem::last_write_time(path));
    std::filesystem::rename(other, path);
    EXPECT_EQ(stamp_of(path)->changed, before->changed);
    EXPECT_NE(stamp_of(path), before);
}

TEST(stamp_of, tells_times_apart_to_the_nanosecond)
{
    const temporary_folder folder;
    const std::string path = folder.write("a.gif", "four");
    const auto time = std::filesystem::last_write_time(path);
    const auto before = stamp_of(path);
    std::filesystem::last_write_time(path, time + std::chrono::nanoseconds(1));
    EXPECT_NE(stamp_of(path), before);
}
