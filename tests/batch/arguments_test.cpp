#include "batch/arguments.h"

#include "batch/usage.h"
#include "support/files/text_file.h"

#include <gtest/gtest.h>

namespace {

std::string fault_of(const std::vector<std::string> & arguments)
{
    try {
        parse_arguments(arguments);
        return {};
    } catch (const bad_arguments & fault) {
        return fault.what;
    }
}

}  // namespace

TEST(batch_arguments, reads_every_option)
{
    const batch_arguments read = parse_arguments(
        {"--photos", "a.jpg",       "b.jpg", "--design",       "Wall",      "--orientation", "square",
         "--set",    "cmbFrame=20", "--set", "txtCaption=a=b", "--caption", "Summer",        "--size",
         "750",      "--random",    "7",     "--data",         "d",         "--preview",     "--answer",
         "yes",      "--out",       "o.jpg", "--threads",      "3"});
    EXPECT_EQ(read.photos, (std::vector<std::string>{"a.jpg", "b.jpg"}));
    EXPECT_EQ(read.design, "Wall");
    EXPECT_EQ(read.orientation, "square");
    ASSERT_EQ(read.settings.size(), 2U);
    EXPECT_EQ(read.settings[0], (std::pair<std::string, std::string>{"cmbFrame", "20"}));
    EXPECT_EQ(read.settings[1], (std::pair<std::string, std::string>{"txtCaption", "a=b"}));
    EXPECT_EQ(read.caption, "Summer");
    EXPECT_EQ(read.size, 750);
    EXPECT_EQ(read.seed, 7U);
    EXPECT_EQ(read.threads, 3);
    EXPECT_EQ(read.data_folder, "d");
    EXPECT_TRUE(read.preview);
    EXPECT_TRUE(read.answers_yes);
    EXPECT_EQ(read.out, "o.jpg");
}

TEST(batch_arguments, a_quick_style_stands_for_a_design)
{
    for (const char * style : {"block", "scattered", "matrix", "shapes"})
        EXPECT_EQ(parse_arguments({"--photos", "a", "--quick", style, "--out", "o"}).quick, style);
}

TEST(batch_arguments, an_empty_value_of_a_setting_is_a_value)
{
    const auto read =
        parse_arguments({"--photos", "a", "--design", "W", "--out", "o", "--set", "txtCaption="});
    EXPECT_EQ(read.settings.front().second, "");
}

TEST(batch_arguments, questions_are_answered_no_by_default)
{
    EXPECT_FALSE(parse_arguments({"--list"}).answers_yes);
}

TEST(batch_arguments, what_is_missing_or_wrong_is_named)
{
    struct row {
        std::vector<std::string> arguments;
        std::string fault;
    };
    const std::vector<row> rows = {
        {{}, "--design, --quick or --recipe is missing; --list shows the designs"},
        {{"--design", "W"}, "--photos is missing"},
        {{"--quick", "block"}, "--photos is missing"},
        {{"--quick", "block", "--dump"}, "--photos is missing"},
        {{"--design", "W", "--quick", "block"}, "--design and --quick can't both be made"},
        {{"--quick", "round"}, "--quick is block, scattered, matrix or shapes, not \"round\""},
        {{"--design", "W", "--photos", "p"}, "--out is missing"},
        {{"--photos"}, "--photos needs a value"},
        {{"--photos", "--list"}, "--photos needs a folder, a list or files"},
        {{"--colour", "red"}, "\"--colour\" is not known; --help shows what is"},
        {{"stray"}, "\"stray\" is not known; --help shows what is"},
        {{"--set", "cmbFrame"}, "--set takes CONTROL=VALUE, not \"cmbFrame\""},
        {{"--orientation", "round"}, "--orientation is portrait, landscape or square, not \"round\""},
        {{"--size", "12x"}, "--size takes a whole number from 16 to 12000, not \"12x\""},
        {{"--size", "99999"}, "--size takes a whole number from 16 to 12000, not \"99999\""},
        {{"--threads", "0"}, "--threads takes a whole number from 1 to 64, not \"0\""},
        {{"--threads", "65"}, "--threads takes a whole number from 1 to 64, not \"65\""},
        {{"--threads", "all"}, "--threads takes a whole number from 1 to 64, not \"all\""},
        {{"--random", "-1"}, "--random takes a whole number from 0 to 18446744073709551615, not \"-1\""},
        {{"--answer", "maybe"}, "--answer is yes or no, not \"maybe\""},
        {{"--preview=yes"}, "--preview takes no value"},
        {{"-h=1"}, "\"-h=1\" is not known; --help shows what is"},
        {{"--colour=red"}, "\"--colour=red\" is not known; --help shows what is"},
        {{"--design", "W", "--dump", "--out", "-"},
         "--dump prints to standard output, so --out has to name a file"},
        {{"--jobs", "l.tsv", "--out", "o.jpg"}, "--out belongs to each job of the list, not beside --jobs"},
    };
    for (const row & each : rows)
        EXPECT_EQ(fault_of(each.arguments), each.fault);
}

TEST(batch_arguments, a_value_may_be_tied_to_its_option)
{
    const batch_arguments apart =
        parse_arguments({"--photos", "a",        "b",     "--photos",      "c",         "--design", "W",
                         "--frames", "s",        "--set", "x=y=z",         "--caption", "T=1",      "--size",
                         "750",      "--random", "7",     "--orientation", "square",    "--data",   "d",
                         "--answer", "yes",      "--out", "o.jpg",         "--keep",    "k"});
    const batch_arguments tied =
        parse_arguments({"--photos=a", "--photos=b", "--photos=c", "--design=W", "--frames=s", "--set=x=y=z",
                         "--caption=T=1", "--size=750", "--random=7", "--orientation=square", "--data=d",
                         "--answer=yes", "--out=o.jpg", "--keep=k"});
    for (const batch_arguments & read : {apart, tied}) {
        EXPECT_EQ(read.photos, (std::vector<std::string>{"a", "b", "c"}));
        EXPECT_EQ(read.design, "W");
        EXPECT_EQ(read.frames, "s");
        EXPECT_EQ(read.settings.at(0), (std::pair<std::string, std::string>{"x", "y=z"}));
        EXPECT_EQ(read.caption, "T=1");
        EXPECT_EQ(read.size, 750);
        EXPECT_EQ(read.seed, 7U);
        EXPECT_EQ(read.orientation, "square");
        EXPECT_EQ(read.data_folder, "d");
        EXPECT_TRUE(read.answers_yes);
        EXPECT_EQ(read.out, "o.jpg");
        EXPECT_EQ(read.keep, "k");
    }
    EXPECT_EQ(parse_arguments({"--quick=block", "--photos=a", "--out=-"}).quick, "block");
    EXPECT_EQ(parse_arguments({"--jobs=list.tsv"}).jobs, "list.tsv");
}

TEST(batch_arguments, help_has_a_short_name)
{
    EXPECT_EQ(parse_arguments({"-h"}).wanted, batch_arguments::task::help);
    EXPECT_EQ(parse_arguments({"--photos", "a", "-h"}).wanted, batch_arguments::task::help);
}

TEST(batch_arguments, an_empty_value_is_refused_where_it_says_nothing)
{
    for (const char * option : {"--photos", "--design", "--frames", "--data", "--out", "--keep", "--jobs"}) {
        const std::string fault = std::string(option) + " needs a value that isn't empty";
        EXPECT_EQ(fault_of({option, ""}), fault);
        EXPECT_EQ(fault_of({std::string(option) + "="}), fault);
    }
    EXPECT_EQ(fault_of({"--photos", "a", ""}), "--photos needs a value that isn't empty");
    for (const char * option : {"--quick", "--orientation", "--size", "--random", "--answer", "--set"})
        EXPECT_TRUE(fault_of({option, ""}).ends_with(", not \"\"")) << option;
    EXPECT_EQ(parse_arguments({"--photos=a", "--design=W", "--out=o.jpg", "--caption="}).caption, "");
}

TEST(batch_arguments, the_usage_names_every_option)
{
    for (const char * option :
         {"--photos", "--design", "--frames", "--quick",   "--orientation", "--set",      "--caption",
          "--size",   "--random", "--data",   "--preview", "--answer",      "--out",      "--threads",
          "--keep",   "--jobs",   "--again",  "--list",    "--dump",        "-h, --help", "--version"})
        EXPECT_NE(usage().find(option), std::string::npos) << option;
    for (const std::string & line : lines_of_text(usage()))
        EXPECT_LE(line.size(), 120) << line;
}
