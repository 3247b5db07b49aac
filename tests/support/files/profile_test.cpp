#include "support/files/profile.h"

#include "tests/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

profile of(const std::string & text)
{
    const temporary_folder folder;
    return profile(folder.write("a.ini", text));
}

}  // namespace

TEST(profile, sections_and_keys_have_no_case)
{
    const profile values = of("[Design001]\r\nName=A Name\r\n[other]\r\nname=b\r\n");
    EXPECT_EQ(values.value("design001", "NAME"), "A Name");
    EXPECT_EQ(values.value("OTHER", "Name"), "b");
}

TEST(profile, a_missing_section_or_key_gives_the_fallback)
{
    const profile values = of("[a]\nb=1\nempty=\n");
    EXPECT_EQ(values.value("a", "c"), "");
    EXPECT_EQ(values.value("a", "c", "none"), "none");
    EXPECT_EQ(values.value("c", "b", "none"), "none");
    EXPECT_EQ(values.value("a", "empty", "none"), "");
}

TEST(profile, blanks_around_the_equals_sign_and_one_pair_of_quotes_are_passed_over)
{
    const profile values = of(" [ a ] \n  b  =  x y  \nc=\" z \"\nd='q'\ne=\"open\nf=\"\"g\"\"\nh='\n");
    EXPECT_EQ(values.value("a", "b"), "x y");
    EXPECT_EQ(values.value("a", "c"), " z ");
    EXPECT_EQ(values.value("a", "d"), "q");
    EXPECT_EQ(values.value("a", "e"), "\"open");
    EXPECT_EQ(values.value("a", "f"), "\"g\"");
    EXPECT_EQ(values.value("a", "h"), "'");
}

TEST(profile, a_value_keeps_further_equals_signs_and_semicolons)
{
    const profile values = of("[a]\nb=c=d;e\n;b2=comment\n  ; b3=comment\n");
    EXPECT_EQ(values.value("a", "b"), "c=d;e");
    EXPECT_EQ(values.value("a", ";b2", "none"), "none");
    EXPECT_EQ(values.value("a", "b2", "none"), "none");
    EXPECT_EQ(values.value("a", "b3", "none"), "none");
}

TEST(profile, of_two_sections_or_keys_with_one_name_the_first_counts)
{
    const profile values = of("[a]\nb=1\nB=2\n[c]\nb=3\n[A]\nb=4\nd=5\n");
    EXPECT_EQ(values.value("a", "b"), "1");
    EXPECT_EQ(values.value("a", "d", "none"), "none");
}

TEST(profile, a_value_is_cut_to_one_less_than_the_limit)
{
    const profile values = of("[a]\nb=" + std::string(300, 'x') + "\n");
    EXPECT_EQ(values.value("a", "b"), std::string(254, 'x'));
    EXPECT_EQ(values.value("a", "b", "", 5), "xxxx");
    EXPECT_EQ(values.value("a", "c", "fallback", 5), "fall");
}

TEST(profile, lines_outside_of_sections_and_damaged_headers_do_no_harm)
{
    const profile values = of("b=0\n[\nc=1\n[]\n[d\ne=2\n=\n==\n[f]]\ng=3");
    EXPECT_EQ(values.value("", "b", "none"), "none");
    EXPECT_EQ(values.value("d", "e"), "2");
    EXPECT_EQ(values.value("f", "g"), "3");
}

TEST(profile, a_missing_or_closed_file_has_no_values)
{
    const temporary_folder folder;
    EXPECT_EQ(profile(folder.at("none")).value("a", "b", "none"), "none");
    EXPECT_EQ(profile(folder.path()).value("a", "b", "none"), "none");
    ::chmod(folder.write("closed", "[a]\nb=1\n").c_str(), 0);
    const as_ordinary_user user;
    EXPECT_EQ(profile(folder.at("closed")).value("a", "b", "none"), "none");
}

// ---- values put in

TEST(with_profile_value, begins_a_section_in_an_empty_text)
{
    EXPECT_EQ(with_profile_value("", "Frame Design", "Icon", "sun"), "[Frame Design]\r\nIcon=sun\r\n");
}

TEST(with_profile_value, takes_the_place_of_the_value_that_is_there)
{
    EXPECT_EQ(
        with_profile_value("[A]\r\nkey=0\r\n[b]\n ; KEY=x\n key = old\nKEY=second\n", "B", "Key", "new"),
        "[A]\r\nkey=0\r\n[b]\r\n ; KEY=x\r\nKey=new\r\nKEY=second\r\n");
}

TEST(with_profile_value, adds_a_key_at_the_end_of_its_section)
{
    EXPECT_EQ(with_profile_value("[a]\r\nx=1\r\n\r\n[b]\r\ny=2\r\n", "a", "z", "3"),
              "[a]\r\nx=1\r\nz=3\r\n\r\n[b]\r\ny=2\r\n");
    EXPECT_EQ(with_profile_value("[a]", "b", "z", ""), "[a]\r\n[b]\r\nz=\r\n");
}

TEST(with_profile_value, keeps_a_value_in_one_line)
{
    EXPECT_EQ(with_profile_value("", "a", "b", "c\r\nd"), "[a]\r\nb=c  d\r\n");
}
