#include "quick/matrix/matrix_grid.h"

#include "support/platform_error.h"

#include <gtest/gtest.h>

namespace {

using enum poster_shape;

const std::vector<std::string> some_grids{"# grids",           "4:2:2:10:10:1:2:3", "# between",
                                          "6:3:2:10:10:1:2:3", "9:3:3:10:10:1:2:3", "#SQUARE",
                                          "5:1:5:10:10:1:2:3", "16:4:4:10:10:1:2:3"};

matrix_lines search(poster_shape poster, int wanted, const std::vector<std::string> & lines = some_grids)
{
    line_source table = line_source::of_text(text_of(lines));
    return find_matrix(table, poster, wanted);
}

}  // namespace

TEST(matrix_grid, has_eight_numbers)
{
    const matrix_grid grid = matrix_grid_of("15:5:3:20:21:270:100:130");
    EXPECT_EQ(grid.cells, 15);
    EXPECT_EQ(grid.rows, 5);
    EXPECT_EQ(grid.columns, 3);
    EXPECT_EQ(grid.row_gap, 20);
    EXPECT_EQ(grid.column_gap, 21);
    EXPECT_EQ(grid.side_margin, 270);
    EXPECT_EQ(grid.top_margin, 100);
    EXPECT_EQ(grid.bottom_margin, 130);
    EXPECT_THROW(matrix_grid_of("15:5:3:20:21:270:100"), platform_error);
    EXPECT_THROW(matrix_grid_of(""), platform_error);
}

TEST(find_matrix, the_first_grid_of_at_least_the_wanted_size_wins)
{
    EXPECT_EQ(search(portrait, 4).line, "4:2:2:10:10:1:2:3");
    EXPECT_EQ(search(portrait, 5).line, "6:3:2:10:10:1:2:3");
    EXPECT_EQ(search(landscape, 7).line, "9:3:3:10:10:1:2:3");
    EXPECT_EQ(search(square, 4).line, "5:1:5:10:10:1:2:3");
}

TEST(find_matrix, remembers_the_grid_in_front_across_comments)
{
    EXPECT_EQ(search(portrait, 1).previous, "");
    EXPECT_EQ(search(portrait, 6).previous, "4:2:2:10:10:1:2:3");
    EXPECT_EQ(search(portrait, 9).previous, "6:3:2:10:10:1:2:3");
    EXPECT_EQ(search(square, 5).previous, "");
    EXPECT_EQ(search(square, 6).previous, "5:1:5:10:10:1:2:3");
}

TEST(find_matrix, the_search_for_the_other_posters_runs_on_into_the_squares)
{
    EXPECT_EQ(search(portrait, 10).line, "16:4:4:10:10:1:2:3");
}

TEST(find_matrix, without_one_large_enough_the_last_line_stands)
{
    EXPECT_EQ(search(portrait, 99).line, "16:4:4:10:10:1:2:3");
    EXPECT_EQ(search(square, 99).line, "16:4:4:10:10:1:2:3");
}

TEST(find_matrix, a_table_without_squares_is_corrupt)
{
    const matrix_lines found = search(square, 3, {"4:2:2:10:10:1:2:3"});
    EXPECT_TRUE(found.corrupt);
    EXPECT_EQ(found.line, "15:5:3:20:20:270:100:130");
    EXPECT_FALSE(search(portrait, 3, {"4:2:2:10:10:1:2:3"}).corrupt);
}

TEST(find_matrix, an_empty_table_gives_no_grid)
{
    EXPECT_EQ(search(portrait, 3, {}).line, "#");
    EXPECT_THROW(matrix_grid_of("#"), platform_error);
}
