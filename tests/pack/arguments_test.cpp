#include "pack/arguments.h"

#include <gtest/gtest.h>

namespace {

std::string fault_of(const std::vector<std::string> & words)
{
    try {
        parse_pack_arguments(words);
    } catch (const bad_pack_arguments & fault) {
        return fault.what;
    }
    return "none";
}

}  // namespace

TEST(pack_arguments, take_several_names_behind_an_option)
{
    const pack_arguments read =
        parse_pack_arguments({"--data", "d", "--design", "One", "Two", "--frame", "Set", "--icon", "sun",
                              "--design", "Three", "--title", "All of it", "--out", "o.zip"});
    EXPECT_EQ(read.wanted, pack_arguments::task::make);
    EXPECT_EQ(read.request.data_folder, "d");
    EXPECT_EQ(read.request.designs, (std::vector<std::string>{"One", "Two", "Three"}));
    EXPECT_EQ(read.request.frames, std::vector<std::string>{"Set"});
    EXPECT_EQ(read.request.icons, std::vector<std::string>{"sun"});
    EXPECT_EQ(read.request.title, "All of it");
    EXPECT_EQ(read.file, "o.zip");
}

TEST(pack_arguments, check_needs_a_file_alone)
{
    const pack_arguments read = parse_pack_arguments({"--check", "p.zip"});
    EXPECT_EQ(read.wanted, pack_arguments::task::check);
    EXPECT_EQ(read.file, "p.zip");
    EXPECT_EQ(parse_pack_arguments({"--help"}).wanted, pack_arguments::task::help);
    EXPECT_EQ(parse_pack_arguments({"--version"}).wanted, pack_arguments::task::version);
}

TEST(pack_arguments, faults_are_told_in_one_line)
{
    EXPECT_EQ(fault_of({"x"}), "\"x\" belongs to no option");
    EXPECT_EQ(fault_of({"--pack", "x"}), "there is no option --pack");
    EXPECT_EQ(fault_of({"--data"}), "--data takes one value");
    EXPECT_EQ(fault_of({"--out", "a", "b"}), "--out takes one value");
    EXPECT_EQ(fault_of({"--design", "--out", "a"}), "--design needs a name");
    EXPECT_EQ(fault_of({"--data", "d", "--design", "x"}), "--data and --out are needed; --help tells more");
    EXPECT_EQ(fault_of({"--data", "d", "--out", "o"}), "nothing to pack: give --design, --frame or --icon");
    EXPECT_EQ(fault_of({"--data", "d", "--out", "o", "--icon", "i", "--title", "a\nb"}),
              "the title has to be one line");
    EXPECT_EQ(fault_of({}), "--data and --out are needed; --help tells more");
}
