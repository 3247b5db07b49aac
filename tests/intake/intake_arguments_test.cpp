#include "intake/intake_arguments.h"

#include <gtest/gtest.h>

namespace {

std::string fault_of(const std::vector<std::string> & words)
{
    try {
        parse_intake_arguments(words);
    } catch (const bad_intake_arguments & fault) {
        return fault.what;
    }
    return "";
}

}  // namespace

TEST(intake_arguments, are_read_in_any_order)
{
    const intake_arguments read =
        parse_intake_arguments({"a", "--deep", "--list=x.pls", "b c", "--data", "d", "--limit", "500M"});
    EXPECT_EQ(read.paths, (std::vector<std::string>{"a", "b c"}));
    EXPECT_EQ(read.list, "x.pls");
    EXPECT_EQ(read.data_folder, "d");
    EXPECT_EQ(read.room, 500'000'000U);
    EXPECT_TRUE(read.deep);
}

TEST(intake_arguments, take_names_that_look_like_options_behind_two_dashes)
{
    EXPECT_EQ(parse_intake_arguments({"--", "--deep"}).paths, std::vector<std::string>{"--deep"});
    EXPECT_FALSE(parse_intake_arguments({"--", "--deep"}).deep);
}

TEST(intake_arguments, know_the_letters_of_sizes)
{
    EXPECT_EQ(parse_intake_arguments({"a", "--limit", "0"}).room, 0U);
    EXPECT_EQ(parse_intake_arguments({"a", "--limit", "7k"}).room, 7'000U);
    EXPECT_EQ(parse_intake_arguments({"a", "--limit", "3G"}).room, 3'000'000'000U);
    for (const char * wrong : {"G", "-1", "2T", "1.5G", "99999999999G", "2GB"})
        EXPECT_NE(fault_of({"a", "--limit", wrong}).find(wrong), std::string::npos) << wrong;
}

TEST(intake_arguments, name_what_is_wrong)
{
    EXPECT_EQ(fault_of({}), "no photos are named; --help tells more");
    EXPECT_EQ(fault_of({"--depth", "a"}), "\"--depth\" is not known; --help shows what is");
    EXPECT_EQ(fault_of({"a", "--list"}), "--list needs a value");
    EXPECT_EQ(fault_of({"a", "--list", ""}), "--list needs a value that isn't empty");
    EXPECT_EQ(fault_of({"--help"}), "");
}
