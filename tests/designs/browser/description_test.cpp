#include "designs/browser/description.h"

#include <gtest/gtest.h>

namespace {

std::string described(const std::string & list, const std::string & name)
{
    line_source lines = line_source::of_text(list);
    return find_description(lines, name) ? description_text(lines) : "nothing";
}

}  // namespace

TEST(description, takes_the_lines_of_its_section)
{
    const std::string list = "[a]\r\nfirst\r\nsecond\r\n[b]\r\nthird\r\n";
    EXPECT_EQ(described(list, "a"), "first\r\nsecond\r\n");
    EXPECT_EQ(described(list, "b"), "third\r\n");
}

TEST(description, a_line_that_ends_in_an_underscore_runs_on_into_the_next_one)
{
    EXPECT_EQ(described("[a]\r\none _\r\nline\r\nanother_\r\n", "a"), "one line\r\nanother");
}

TEST(description, any_line_that_begins_with_a_bracket_ends_it)
{
    EXPECT_EQ(described("[a]\r\nfirst\r\n[ not a name\r\nsecond\r\n", "a"), "first\r\n");
}

TEST(description, the_name_is_the_whole_line)
{
    EXPECT_EQ(described("[ab]\r\nwrong\r\n [a]\r\nwrong\r\n[a] \r\nwrong\r\n", "a"), "nothing");
}

TEST(description, a_section_without_lines_is_empty)
{
    EXPECT_EQ(described("[a]\r\n[b]\r\ntext\r\n", "a"), "");
    EXPECT_EQ(described("[a]", "a"), "");
}

TEST(description, of_a_text_too_long_to_be_shown_the_beginning_is_taken)
{
    const std::string ellipsis = "\xE2\x80\xA6", letter = "\xC3\xA4";
    const auto described_by = [](const std::string & text) {
        line_source lines = line_source::of_text(text);
        return description_text(lines);
    };
    const std::string whole(longest_description, 'x');
    EXPECT_EQ(described_by(whole), whole + "\r\n");
    EXPECT_EQ(described_by(whole + "y"), whole + ellipsis);
    EXPECT_EQ(described_by(whole + "\ny"), whole + "\r\n" + ellipsis);
    EXPECT_EQ(described_by(whole.substr(1) + letter + "z"), whole.substr(1) + ellipsis);
    std::string many;
    while (many.size() < std::size_t{5} << 20U)
        many += "line_\n" + letter + "\n";
    EXPECT_LT(described_by(many).size(), 2 * longest_description);
    EXPECT_TRUE(described_by(many).ends_with(ellipsis));
}

TEST(description, a_file_of_its_own_has_no_header)
{
    line_source lines = line_source::of_text("one_\r\ntwo\r\n");
    EXPECT_EQ(description_text(lines), "onetwo\r\n");
}
