#include "designs/catalogue/catalogue_lines.h"

#include "support/files/text_file.h"

#include <gtest/gtest.h>

namespace {

text_lines merged(const std::string & catalogue, double number, const std::string & section)
{
    const auto lines = with_section(lines_of_text(catalogue), number, lines_of_text(section));
    return lines.value_or(text_lines{"no number left"});
}

std::string one_line(const text_lines & lines)
{
    std::string text;
    for (const std::string & line : lines)
        text += (text.empty() ? "" : " ") + (line.empty() ? "~" : line);
    return text;
}

const std::string three = "; ours\n[Design601]\nName=a\n\n[Design603]\nName=c\n\n[Design605]\nName=e\n";

}  // namespace

TEST(number_of_header, reads_the_last_four_characters)
{
    EXPECT_EQ(number_of_header("[Design600]"), 600);
    EXPECT_EQ(number_of_header("[Design042]"), 42);
    EXPECT_EQ(number_of_header("[Design600] "), 0);
    EXPECT_EQ(number_of_header("[Design6001"), 6001);
    EXPECT_EQ(number_of_header("[Design6001", 3), 600);
    EXPECT_EQ(number_of_header("[Design"), 0);
    EXPECT_EQ(number_of_header("Name=[Design600]"), std::nullopt);
    EXPECT_EQ(number_of_header("[design600]"), std::nullopt);
}

TEST(holds_name, compares_whole_lines_in_either_case)
{
    const text_lines catalogue = lines_of_text("[Design001]\nName=Big Heart\nname=\xC3\xBC\n");
    EXPECT_TRUE(holds_name(catalogue, "big heart"));
    EXPECT_TRUE(holds_name(catalogue, "\xC3\x9C"));
    EXPECT_FALSE(holds_name(catalogue, "big"));
    EXPECT_FALSE(holds_name(catalogue, "big heart "));
}

TEST(saved_section, lists_what_a_quick_design_and_a_matrix_have)
{
    design_to_save design{.number = 607, .name = "a=b"};
    EXPECT_EQ(one_line(saved_section(design)),
              "~ [Design607] Name=a=b Ratio=2x3 File=saved607 System=No Design=Saved Style=Place Match=Yes "
              "Turn BG=No Background=Portrait");
    design.kind = design_to_save::layout::quick_shape;
    design.background = orientation::landscape;
    design.sample = design.description = design_to_save::part::present;
    EXPECT_EQ(one_line(saved_section(design)),
              "~ [Design607] Name=a=b Ratio=2x3 File=saved607 System=No Design=Saved Style=Place Frames=No "
              "Quick Shape=Yes Match=Yes Turn BG=No Background=Landscape Sample=saved607.jpg "
              "Description=saved607");
    design.kind = design_to_save::layout::matrix;
    EXPECT_NE(one_line(saved_section(design)).find("Style=Matrix Match=Yes"), std::string::npos);
}

TEST(number_of_design, searches_above_499_alone)
{
    const text_lines catalogue =
        lines_of_text("[Design499]\nName=a\n[Design500]\nName=b\n[Design600]\nName=a\nName= \"c d\" \n");
    EXPECT_EQ(number_of_design(catalogue, "a"), 600);
    EXPECT_EQ(number_of_design(catalogue, "b"), 500);
    EXPECT_EQ(number_of_design(catalogue, "c d"), 600);  // as the list shows it
    EXPECT_EQ(number_of_design(catalogue, "B"), std::nullopt);
    EXPECT_EQ(number_of_design(lines_of_text("Name=a\n"), "a"), std::nullopt);
}

TEST(without_design, takes_the_section_up_to_the_next_header)
{
    EXPECT_EQ(one_line(without_design(lines_of_text(three), 603)),
              "; ours [Design601] Name=a ~ [Design605] Name=e");
    EXPECT_EQ(one_line(without_design(lines_of_text(three), 605)),
              "; ours [Design601] Name=a ~ [Design603] Name=c ~");
    EXPECT_EQ(without_design(lines_of_text(three), 604), lines_of_text(three));
}

TEST(files_of_design, are_plain_names_of_this_design_alone)
{
    const text_lines catalogue = lines_of_text(
        "[Design600]\nFile=saved600\nSample=shared.jpg\nDescription=not_yet\nDescription=d\n"
        "[Design601]\nFile=../../precious\nSample=a\\b.jpg\nDescription=\nFile=..\n"
        "[Design602]\nSample=shared.jpg\nDescription=saved600\n");
    EXPECT_EQ(one_line(files_of_design(catalogue, 600)), "designs/saved600 descriptions/d");
    EXPECT_EQ(files_of_design(catalogue, 601), text_lines{});
    EXPECT_TRUE(names_file(catalogue, "samples/shared.jpg"));
    EXPECT_FALSE(names_file(catalogue, "samples/saved600"));
}

TEST(with_section, goes_before_the_first_higher_number)
{
    EXPECT_EQ(one_line(merged(three, 600, "[Design600]\nName=n\n")),
              "; ours [Design600] Name=n [Design601] Name=a ~ [Design603] Name=c ~ [Design605] Name=e");
    EXPECT_EQ(one_line(merged(three, 604, "[Design604]\nName=n\n\n")),
              "; ours [Design601] Name=a ~ [Design603] Name=c ~ [Design604] Name=n ~ [Design605] Name=e");
}

TEST(with_section, takes_the_place_of_the_same_number)
{
    EXPECT_EQ(one_line(merged(three, 603, "[Design603]\nName=n\nCount=3\n")),
              "; ours [Design601] Name=a ~ [Design603] Name=n Count=3 [Design605] Name=e");
    EXPECT_EQ(one_line(merged(three, 605, "[Design605]\nName=n\n")),
              "; ours [Design601] Name=a ~ [Design603] Name=c ~ [Design605] Name=n");
}

TEST(with_section, behind_all_others_gets_the_next_number)
{
    EXPECT_EQ(one_line(merged(three, 700, "[Design700]\nName=n\n")),
              "; ours [Design601] Name=a ~ [Design603] Name=c ~ [Design605] Name=e [Design606] Name=n");
    EXPECT_EQ(one_line(merged("[Design042]\n", 100, "Name=n\n")), "[Design042] [Design601] Name=n");
    EXPECT_EQ(one_line(merged("; nothing\n", 7, "[Design007]\nName=n\n")), "; nothing [Design601] Name=n");
    EXPECT_EQ(one_line(merged("", 7, "Name=n\n")), "[Design601] Name=n");
}

TEST(with_section, has_exactly_one_header)
{
    EXPECT_EQ(one_line(merged(three, 604, "Name=n\n")).substr(47), "~ [Design604] Name=n [Design605] Name=e");
    EXPECT_EQ(one_line(merged("[Design700]\n", 650, "\n[Design001]\nName=n\n[Design002]\nFile=x\n")),
              "~ [Design650] Name=n File=x [Design700]");
    EXPECT_EQ(one_line(merged("[Design700]\n", 650, "Name=n\n[Design001]\n")),
              "[Design650] Name=n [Design700]");
}

TEST(with_section, never_makes_a_number_twice_where_they_are_out_of_order)
{
    const std::string mixed = "[Design600]\n[Design602]\nName=c\n[Design601]\nName=b\n";
    EXPECT_EQ(one_line(merged(mixed, 601, "Name=n\n")), "[Design600] [Design602] Name=c [Design601] Name=n");
    EXPECT_EQ(one_line(merged(mixed, 999, "Name=n\n")),
              "[Design600] [Design602] Name=c [Design601] Name=b [Design603] Name=n");
}

TEST(with_section, takes_the_same_design_of_the_user_s_once)
{
    const std::string mine =
        "[Design001]\nName=h\nFile=f\n[Design600]\nName=h\nFile=g\n[Design602]\nFile=f\nName=h\n"
        "[Design603]\nName=z\nFile=f\n[Design605]\nName=h\nFile=f\nCount=3\n";
    EXPECT_EQ(
        one_line(merged(mine, 999, "[Design999]\nName=h\nFile=f\nCount=5\n")),
        "[Design001] Name=h File=f [Design600] Name=h File=g [Design602] Name=h File=f Count=5 [Design603] "
        "Name=z File=f");
    EXPECT_EQ(one_line(merged(mine, 999, "Name=h\nFile=f\nSample=s\n")).substr(mine.size()),
              "[Design606] Name=h File=f Sample=s");
    EXPECT_EQ(one_line(merged("[Design600]\nName=h\n", 999, "Name=h\n")),
              "[Design600] Name=h [Design601] Name=h");
    EXPECT_EQ(one_line(merged("[Designx600]\nName=h\nFile=f\n", 999, "Name=h\nFile=f\n")),
              "[Designx600] Name=h File=f [Design601] Name=h File=f");
}

TEST(with_section, gives_no_number_above_998)
{
    EXPECT_EQ(merged("[Design998]\n", 999, "Name=n\n"), text_lines{"no number left"});
    EXPECT_EQ(one_line(merged("[Design997]\n", 1e9, "Name=n\n")), "[Design997] [Design998] Name=n");
    EXPECT_EQ(one_line(merged("[Design998]\n", -5, "Name=n\n")), "[Design000] Name=n [Design998]");
    EXPECT_EQ(merged("[Design999]\n", 2000, "Name=n\n"), text_lines{"no number left"});
}
