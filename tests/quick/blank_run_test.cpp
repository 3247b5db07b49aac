#include "quick/blank_run.h"

#include <gtest/gtest.h>
#include <string>

namespace {

// The lines that are drawn as "#", the holes as ".".
std::string drawn_lines(int length, int lines, const random_source & random)
{
    std::string text;
    blank_run run = start_blanks(length, random);
    for (int i = 0; i < lines; ++i) {
        text += is_blank(run) ? '.' : '#';
        next_line(run, random);
    }
    return text;
}

}  // namespace

TEST(blank_run, leaves_out_one_line_of_each_run)
{
    const random_source random = listed({0.5, 0.0, 0.99, 0.3});
    EXPECT_EQ(drawn_lines(4, 12, random),
              "##.#"
              ".###"
              "###.");
}

TEST(blank_run, the_last_line_of_a_run_and_the_first_of_the_next_are_never_both_blank)
{
    const random_source random = listed({0.0, 0.9, 0.0, 0.0});  // of 4 lines: the 1st, the 4th, the 1st
    EXPECT_EQ(drawn_lines(4, 12, random),
              ".###"
              "###."
              "#.##");
}

TEST(blank_run, the_step_from_the_first_run_to_the_second_is_not_protected)
{
    const random_source random = listed({0.9, 0.0, 0.5});
    EXPECT_EQ(drawn_lines(3, 6, random),
              "##."
              ".##");
}

TEST(blank_run, without_blanks_nothing_is_drawn_from_chance)
{
    EXPECT_EQ(drawn_lines(0, 300, listed({})), std::string(300, '#'));
    EXPECT_EQ(drawn_lines(-5, 300, listed({})), std::string(300, '#'));
}
