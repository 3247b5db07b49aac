#include "designers/puzzle/puzzle_plan.h"

#include "designs/templates/location_line.h"

#include <gtest/gtest.h>

namespace {

using lines = std::vector<std::string>;

using enum poster_shape;

lines whole_puzzle(const puzzle_choices & choices)
{
    return template_lines(puzzle_plan(choices, listed({})));
}

std::string piece_line(const char * corner, int piece, const char * name)
{
    return std::string(corner) + ":0:" + std::to_string(piece) + ":0:-1:-1:0:puzzle/puz_" + name + ".gif";
}

std::string names_of(const lines & all)
{
    std::string names;
    for (const std::string & line : all)
        names += line.substr(line.size() - 6, 2) + " ";
    return names;
}

}  // namespace

TEST(puzzle_plan, two_by_two_pieces_interlock)
{
    EXPECT_EQ(whole_puzzle({.rows = 2, .columns = 2}),
              (lines{piece_line("536:58", 1129, "11"), piece_line("536:778", 1129, "12"),
                     piece_line("1236:58", 1129, "21"), piece_line("1236:778", 1129, "22")}));
}

TEST(puzzle_plan, straight_edges_have_pieces_and_steps_of_their_own)
{
    EXPECT_EQ(whole_puzzle({.rows = 3, .columns = 3, .edges = true}),
              (lines{piece_line("608:120", 752, "tl"), piece_line("608:600", 752, "t2"),
                     piece_line("608:1075", 752, "tr"), piece_line("1074:120", 752, "2l"),
                     piece_line("1074:600", 752, "22"), piece_line("1074:1075", 752, "2r"),
                     piece_line("1540:120", 752, "bl"), piece_line("1540:600", 752, "b2"),
                     piece_line("1540:1075", 752, "br")}));
}

TEST(puzzle_plan, a_landscape_poster_moves_pieces_right_by_their_own_size)
{
    // Pieces of 906 by 1188 are held inside 2900 by 1900: 861 and 1129.
    const lines all = whole_puzzle({.rows = 2, .columns = 4, .shape = landscape});
    ASSERT_EQ(all.size(), 8U);
    EXPECT_EQ(all[0], piece_line("252:1065", 861, "11"));
    EXPECT_EQ(all[1], piece_line("252:1614", 861, "12"));
    EXPECT_EQ(all[2], piece_line("252:2230", 861, "11"));
    EXPECT_EQ(all[4], piece_line("786:1065", 861, "21"));
}

TEST(puzzle_plan, even_and_odd_rows_follow_by_different_steps)
{
    // 475 * 1.25 = 593.75, 725 * 1.25 = 906.25: pieces of 594 pixels.
    const lines all = whole_puzzle({.rows = 4, .columns = 4});
    ASSERT_EQ(all.size(), 16U);
    EXPECT_EQ(names_of(all), "11 12 11 12 21 22 21 22 11 12 11 12 21 22 21 22 ");
    EXPECT_EQ(all[0], piece_line("601:106", 594, "11"));
    EXPECT_EQ(all[1], piece_line("601:485", 594, "12"));
    EXPECT_EQ(all[2], piece_line("601:910", 594, "11"));
    EXPECT_EQ(all[4], piece_line("969:106", 594, "21"));
    EXPECT_EQ(all[8], piece_line("1373:106", 594, "11"));
}

TEST(puzzle_plan, four_pieces_a_photo_are_all_alike)
{
    const auto four = [](const char * corner) {
        return std::string(corner) + ":0:792:0:-1:-1:0:/puzzle/puzzle4.gif";
    };
    const lines expected{four("127:280"),  four("127:929"),  four("745:280"),  four("745:929"),
                         four("1363:280"), four("1363:929"), four("1981:280"), four("1981:929")};
    EXPECT_EQ(whole_puzzle({.rows = 4, .columns = 2, .pieces = puzzle_pieces::four}), expected);
    EXPECT_EQ(whole_puzzle({.rows = 4, .columns = 2, .edges = true, .pieces = puzzle_pieces::four}), expected)
        << "straight edges are for single pieces";
}

TEST(puzzle_plan, a_single_row_or_column_is_the_first_and_not_the_last)
{
    EXPECT_EQ(names_of(whole_puzzle({.rows = 1, .columns = 3, .edges = true})), "tl t2 tr ");
    EXPECT_EQ(names_of(whole_puzzle({.rows = 2, .columns = 1, .edges = true})), "tl bl ");
}

TEST(piece_size, of_many_pieces_is_larger)
{
    EXPECT_EQ(piece_size({.rows = 8, .columns = 8}), 297);   // 237.5 * 1.25
    EXPECT_EQ(piece_size({.rows = 12, .columns = 8}), 356);  // 237.5 * 1.5
    EXPECT_EQ(piece_size({.rows = 1, .columns = 1}), 1900);  // the area's width
    EXPECT_EQ(piece_size({.rows = 12, .columns = 8, .pieces = puzzle_pieces::four}), 273);
}

TEST(puzzle_plan, without_missing_pieces_none_is_left_out)
{
    EXPECT_EQ(whole_puzzle({.rows = 4, .columns = 6, .missing = 0}).size(), 24U);
}

TEST(puzzle_plan, up_to_nine_missing_pieces_are_spread_one_for_each_run)
{
    const puzzle_choices choices{.rows = 4, .columns = 6, .missing = 2};
    const lines all = whole_puzzle({.rows = 4, .columns = 6});
    lines expected = all;
    expected.erase(expected.begin() + 18);  // the 7th of the second twelve
    expected.erase(expected.begin());
    EXPECT_EQ(template_lines(puzzle_plan(choices, listed({0.0, 0.5}))), expected);
}

TEST(puzzle_plan, a_run_has_three_pieces_at_least)
{
    // 9 of 4 pieces: one of the first three, and one of the next, which is beyond the end.
    EXPECT_EQ(puzzle_plan({.rows = 2, .columns = 2, .missing = 9}, listed({0.5, 0.9})).size(), 3U);
}

TEST(puzzle_plan, for_more_than_nine_each_piece_is_left_out_by_chance)
{
    const lines all = whole_puzzle({.rows = 4, .columns = 6});
    const puzzle_choices choices{.rows = 4, .columns = 6, .missing = 12};  // one of two
    const lines left = template_lines(
        puzzle_plan(choices, listed({0.4, 0.5, 0.6, 0.9, 0.49, 0.0, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7,
                                     0.7, 0.7, 0.7, 0.7, 0.7,  0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7})));
    EXPECT_EQ(left.size(), 21U);
    EXPECT_EQ(left[0], all[1]);
    EXPECT_EQ(left[3], all[6]);
}

TEST(puzzle_plan, more_missing_pieces_than_half_of_them_leave_none)
{
    for (const int missing : {13, 24, 1000}) {
        const puzzle_choices choices{.rows = 4, .columns = 6, .missing = missing};
        EXPECT_TRUE(puzzle_plan(choices, seeded_random(7)).empty()) << missing;
    }
}

TEST(puzzle_fault, counts_that_make_no_pieces_are_told)
{
    const std::string none = "Please choose at least one row and one column.";
    const std::string many =
        "There is no room for so many pieces.\r\n\r\nPlease choose fewer rows and columns.";
    EXPECT_EQ(puzzle_fault({.rows = 0}), none);
    EXPECT_EQ(puzzle_fault({.columns = -1}), none);
    EXPECT_EQ(puzzle_fault({.rows = 9999, .columns = 9999}), many);
    EXPECT_EQ(puzzle_fault({.rows = 40, .columns = 30}), many);
    EXPECT_EQ(puzzle_fault({.rows = 500, .columns = 1}), many);
    EXPECT_EQ(puzzle_fault({.rows = 30, .columns = 30}), "");
}

TEST(fit_grid, the_columns_lead_the_rows_by_the_shape_of_the_poster)
{
    const auto led = [](int columns, poster_shape shape) {
        return fit_grid({.rows = 1, .columns = columns, .shape = shape}, grid_lead::columns).rows;
    };
    EXPECT_EQ(led(4, poster_shape::portrait), 6);
    EXPECT_EQ(led(3, poster_shape::portrait), 4);  // 4.5, to the even one
    EXPECT_EQ(led(6, landscape), 4);
    EXPECT_EQ(led(4, landscape), 3);
}

TEST(fit_grid, the_rows_lead_the_columns_likewise)
{
    const auto led = [](int rows, poster_shape shape) {
        return fit_grid({.rows = rows, .columns = 1, .shape = shape}, grid_lead::rows).columns;
    };
    EXPECT_EQ(led(6, poster_shape::portrait), 4);
    EXPECT_EQ(led(1, poster_shape::portrait), 1);
    EXPECT_EQ(led(4, landscape), 6);
}

TEST(fit_grid, rows_that_go_with_the_columns_stay)
{
    const auto led = [](puzzle_choices choices) { return fit_grid(choices, grid_lead::columns).rows; };
    EXPECT_EQ(led({.rows = 5, .columns = 3}), 5);
    EXPECT_EQ(led({.rows = 7, .columns = 5}), 7);
    EXPECT_EQ(led({.rows = 11, .columns = 7}), 11);
    EXPECT_EQ(led({.rows = 5, .columns = 3, .edges = true}), 4);
    EXPECT_EQ(led({.rows = 5, .columns = 8, .shape = landscape}), 5);
    for (int rows = 1; rows <= 30; ++rows)
        for (const poster_shape shape : {poster_shape::portrait, landscape}) {
            const puzzle_grid chosen =
                fit_grid({.rows = rows, .columns = 1, .shape = shape}, grid_lead::rows);
            EXPECT_EQ(led({.rows = chosen.rows, .columns = chosen.columns, .shape = shape}), rows);
        }
}

TEST(fit_grid, rows_come_in_fours_for_four_pieces_and_in_twos_with_edges)
{
    const auto rows = [](int columns, bool edges, puzzle_pieces pieces) {
        return fit_grid({.rows = 9, .columns = columns, .edges = edges, .pieces = pieces}, grid_lead::columns)
            .rows;
    };
    EXPECT_EQ(rows(5, false, puzzle_pieces::one), 8);   // 7.5
    EXPECT_EQ(rows(6, true, puzzle_pieces::one), 8);    // 9
    EXPECT_EQ(rows(1, true, puzzle_pieces::one), 4);    // 2
    EXPECT_EQ(rows(7, false, puzzle_pieces::four), 8);  // 10
    EXPECT_EQ(rows(1, true, puzzle_pieces::four), 4);
    EXPECT_EQ(fit_grid({.rows = 9, .columns = 1, .pieces = puzzle_pieces::four}, grid_lead::rows),
              (puzzle_grid{.rows = 8, .columns = 6}));
}
