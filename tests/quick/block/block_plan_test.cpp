#include "quick/block/block_plan.h"

#include "support/platform_error.h"

#include <gtest/gtest.h>

namespace {

using lines = std::vector<std::string>;

lines planned_block(const lines & block, const block_request & request)
{
    return template_lines(block_plan(block, request, listed({})), block_digits);
}

using enum poster_shape;

}  // namespace

TEST(block_plan, writes_each_rectangle_in_its_gap)
{
    EXPECT_EQ(planned_block({"0:0:1500:2000", "1500:0:1500:1000:and:more"}, {.gap = 20}),
              (lines{"20:20:1460:1960:0:-1:-1:0:", "1520:20:1460:960:0:-1:-1:0:"}));
}

TEST(block_plan, a_negative_gap_lets_them_overlap_and_writes_its_sign)
{
    EXPECT_EQ(planned_block({"0:5:300:400"}, {.gap = -100}), (lines{"-100:-95:500:600:0:-1:-1:0:"}));
}

TEST(block_plan, a_gap_that_would_show_nothing_of_a_side_leaves_a_quarter)
{
    EXPECT_EQ(planned_block({"0:0:290:373"}, {.gap = 140}), (lines{"140:140:10:93:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"0:0:289:373"}, {.gap = 140}), (lines{"108:140:73:93:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"0:0:100:8"}, {.gap = 140}), (lines{"37:03:26:02:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"0:0:100:80"}, {.gap = 60, .split = 1}),
              (lines{"37:15:26:10:0:-1:-1:0:", "37:55:26:10:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"5:6:1:1"}, {.gap = 140}), (lines{"05:06:01:01:0:-1:-1:0:"}));
}

TEST(block_plan, small_numbers_have_two_digits)
{
    EXPECT_EQ(planned_block({"1:2:3:4"}, {}), (lines{"01:02:03:04:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"-3:2.5:3.5:4"}, {}), (lines{"-03:02:04:04:0:-1:-1:0:"}));
}

TEST(block_plan, the_first_rectangles_are_doubled_in_height_on_every_poster)
{
    for (const poster_shape poster : {portrait, landscape, square})
        EXPECT_EQ(planned_block({"0:0:100:80", "200:0:100:80"}, {.poster = poster, .gap = 10, .doubled = 1}),
                  (lines{"10:10:180:60:0:-1:-1:0:", "210:10:80:60:0:-1:-1:0:"}));
}

TEST(block_plan, those_behind_the_doubled_ones_are_cut_side_by_side)
{
    EXPECT_EQ(
        planned_block({"0:0:100:80", "200:40:100:80", "400:0:100:80"}, {.gap = 10, .doubled = 1, .split = 1}),
        (lines{"10:10:180:60:0:-1:-1:0:", "210:50:80:20:0:-1:-1:0:", "210:90:80:20:0:-1:-1:0:",
               "410:10:80:60:0:-1:-1:0:"}));
}

TEST(block_plan, a_landscape_poster_is_cut_one_above_the_other)
{
    EXPECT_EQ(planned_block({"200:40:100:80"}, {.poster = landscape, .gap = 10, .split = 1}),
              (lines{"210:50:30:60:0:-1:-1:0:", "260:50:30:60:0:-1:-1:0:"}));
}

TEST(block_plan, an_odd_unit_goes_to_the_right_half)
{
    EXPECT_EQ(planned_block({"0:0:10:41"}, {.split = 1}),
              (lines{"00:00:10:20:0:-1:-1:0:", "00:20:10:21:0:-1:-1:0:"}));
    // The tie is rounded to even, and the odd unit comes on top of it.
    EXPECT_EQ(planned_block({"0:0:10:43"}, {.poster = square, .split = 1}),
              (lines{"00:00:10:22:0:-1:-1:0:", "00:22:10:23:0:-1:-1:0:"}));
}

TEST(block_plan, an_odd_height_is_the_rounded_half_twice_on_a_landscape_poster)
{
    EXPECT_EQ(planned_block({"0:0:41:10"}, {.poster = landscape, .split = 1}),
              (lines{"00:00:20:10:0:-1:-1:0:", "20:00:20:10:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"0:0:43:10"}, {.poster = landscape, .split = 1}),
              (lines{"00:00:22:10:0:-1:-1:0:", "22:00:22:10:0:-1:-1:0:"}));
}

TEST(block_plan, a_blank_line_uses_up_its_cut_and_blanks_both_halves)
{
    const blank_run first_of_three{.length = 3, .left = 3, .blank_at = 0};
    EXPECT_EQ(planned_block({"0:0:10:40", "20:0:10:40"}, {.split = 1, .blanks = first_of_three}),
              (lines{"20:00:10:40:0:-1:-1:0:"}));
    EXPECT_EQ(planned_block({"0:0:10:40", "20:0:10:40"}, {.doubled = 1, .blanks = first_of_three}),
              (lines{"20:00:10:40:0:-1:-1:0:"}));
}

TEST(block_plan, a_comment_takes_a_place_in_the_run_of_blanks)
{
    const blank_run second_of_four{.length = 4, .left = 4, .blank_at = 1};
    EXPECT_EQ(planned_block({"0:0:10:10", "# a comment", "20:0:10:10"}, {.blanks = second_of_four}),
              (lines{"00:00:10:10:0:-1:-1:0:", "20:00:10:10:0:-1:-1:0:"}));
}

TEST(block_plan, faults_of_the_data_are_raised)
{
    const auto raised = [](const char * line, int gap) {
        try {
            planned_block({line}, {.gap = gap});
        } catch (const platform_error & error) {
            return error.number;
        }
        return error_number::invalid_call;
    };
    EXPECT_EQ(raised("1:2:3", 0), error_number::subscript);
    EXPECT_EQ(raised("", 0), error_number::subscript);
    EXPECT_EQ(raised("40000:2:3:4", 0), error_number::overflow);
    EXPECT_EQ(raised("0:32700:300:400", 100), error_number::overflow);
}
