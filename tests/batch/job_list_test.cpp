#include "batch/job_list.h"

#include <gtest/gtest.h>

namespace {

using texts = std::vector<std::string>;

batch_arguments common()
{
    batch_arguments given;
    given.wanted = batch_arguments::task::jobs;
    return given;
}

std::string fault_of(std::string_view text, const batch_arguments & given = common())
{
    try {
        parse_jobs(text, given);
        return {};
    } catch (const bad_arguments & fault) {
        return fault.what;
    }
}

}  // namespace

TEST(job_list, a_line_is_a_job_and_a_column_an_option)
{
    const auto jobs = parse_jobs(
        "out\tdesign\tphotos\tphotos\tset\tset\tcaption\torientation\trandom\tsize\tframes\tanswer\n"
        "a.jpg\tWall\tone\ttwo\tcmbFrame=4\tchkMatch=1\tSummer, 2026\tsquare\t7\t750\tsoccer\tyes\n"
        "b.jpg\tTrip\tone\n",
        common());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].line, 2);
    const batch_arguments & first = jobs[0].arguments;
    EXPECT_EQ(first.wanted, batch_arguments::task::make);
    EXPECT_EQ(first.out, "a.jpg");
    EXPECT_EQ(first.design, "Wall");
    EXPECT_EQ(first.photos, (texts{"one", "two"}));
    ASSERT_EQ(first.settings.size(), 2U);
    EXPECT_EQ(first.settings[1].first, "chkMatch");
    EXPECT_EQ(first.caption, "Summer, 2026");
    EXPECT_EQ(first.orientation, "square");
    EXPECT_EQ(first.seed, 7U);
    EXPECT_EQ(first.size, 750);
    EXPECT_EQ(first.frames, "soccer");
    EXPECT_TRUE(first.answers_yes);
    EXPECT_EQ(jobs[1].line, 3);
    EXPECT_EQ(jobs[1].arguments.photos, (texts{"one"}));
    EXPECT_FALSE(jobs[1].arguments.caption.has_value());
}

TEST(job_list, empty_cells_lines_and_remarks_are_passed_over)
{
    const auto jobs = parse_jobs(
        "\xEF\xBB\xBF# made by hand\r\nout\tphotos\tphotos\tquick\tcaption\r\n\r\n"
        "# the first\r\na.JPEG\t\tp\tblock\t\r\n",
        common());
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].line, 5);
    EXPECT_EQ(jobs[0].arguments.out, "a.JPEG");
    EXPECT_EQ(jobs[0].arguments.photos, (texts{"p"}));
    EXPECT_FALSE(jobs[0].arguments.caption.has_value());
}

TEST(job_list, what_stands_beside_the_list_holds_for_lines_that_say_nothing_else)
{
    batch_arguments beside = common();
    beside.photos = {"all"};
    beside.design = "Wall";
    beside.settings = {{"cmbFrame", "4"}};
    beside.seed = 3;
    beside.preview = true;
    beside.keep = "kept";
    const auto jobs = parse_jobs(
        "out\tphotos\tdesign\tquick\tset\trandom\n"
        "a.jpg\n"
        "b.jpg\tone\tTrip\t\tchkMatch=1\t5\n"
        "c.jpg\t\t\tblock\n",
        beside);
    ASSERT_EQ(jobs.size(), 3U);
    EXPECT_EQ(jobs[0].arguments.photos, (texts{"all"}));
    EXPECT_EQ(jobs[0].arguments.design, "Wall");
    EXPECT_EQ(jobs[0].arguments.seed, 3U);
    EXPECT_TRUE(jobs[0].arguments.preview);
    EXPECT_EQ(jobs[0].arguments.keep, "kept");
    EXPECT_EQ(jobs[1].arguments.photos, (texts{"one"}));
    EXPECT_EQ(jobs[1].arguments.design, "Trip");
    EXPECT_EQ(jobs[1].arguments.settings.size(), 2U);
    EXPECT_EQ(jobs[1].arguments.seed, 5U);
    EXPECT_EQ(jobs[2].arguments.quick, "block");
    EXPECT_EQ(jobs[2].arguments.design, "");
}

TEST(job_list, a_fault_is_told_with_its_line)
{
    const std::string header = "out\tdesign\tphotos\tsize\n";
    const std::string columns =
        "answer, around, bleed, caption, design, dpi, frames, orientation, out, page, photos, quick, random, "
        "recipe, scale, set, size";
    struct row {
        std::string text, fault;
    };
    const std::vector<row> rows = {
        {"", "the job list is empty; its first line names the columns"},
        {"# nothing\n\n", "the job list is empty; its first line names the columns"},
        {"out\tcolour\n",
         "line 1 of the job list: there is no column \"colour\"; the columns are " + columns},
        {"\nout\tdata\n", "line 2 of the job list: there is no column \"data\"; the columns are " + columns},
        {"out\tdesign\tdesign\n", "line 1 of the job list: the column \"design\" stands there twice"},
        {"design\tphotos\n", "line 1 of the job list: there is no column \"out\""},
        {header + "a.jpg\tW\tp\t9\n",
         "line 2 of the job list: --size takes a whole number from 16 to 12000, not \"9\""},
        {header + "a.jpg\tW\tp\n\nb.jpg\tW\n", "line 4 of the job list: --photos is missing"},
        {header + "a.jpg\n",
         "line 2 of the job list: --design, --quick or --recipe is missing; --list shows the designs"},
        {header + "\tW\tp\n", "line 2 of the job list: --out is missing"},
        {header + "-\tW\tp\n", "line 2 of the job list: --out has to name a file"},
        {header + "a.bmp\tW\tp\n",
         "line 2 of the job list: \"a.bmp\" doesn't end in .jpg, .jpeg, .png, .tif, "
         ".tiff or .pdf, which tells the kind of the file"},
        {"out\tdesign\tphotos\tpage\na.pdf\tW\tp\tA4\nb.png\tW\tp\tA4\n",
         "line 3 of the job list: --page, --around and --bleed belong to a PDF, and \"b.png\" isn't one"},
        {header + "a.jpg\tW\tp\t20\tmore\n",
         "line 2 of the job list: it has more cells than the list has columns"},
        {header + "x/a.jpg\tW\tp\nb.jpg\tW\tp\nx/./a.jpg\tW\tp\n",
         "line 4 of the job list: \"x/./a.jpg\" is made by line 2 already"},
    };
    for (const row & each : rows)
        EXPECT_EQ(fault_of(each.text), each.fault);
}

TEST(job_list, a_header_alone_has_no_jobs)
{
    EXPECT_TRUE(parse_jobs("out\tdesign\n", common()).empty());
}
