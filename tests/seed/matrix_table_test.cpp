// The grids of the quick matrix: sensible cells for every number of them.
#include "tests/seed/plain_tables.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace plain;

namespace {

struct grid {
    int cells, rows, columns, row_gap, column_gap, side, top, bottom;
    int poster_height;

    double cell_width() const { return (2000.0 - 2 * side - (columns - 1) * column_gap) / columns; }
    double cell_height() const { return (1.0 * poster_height - top - bottom - (rows - 1) * row_gap) / rows; }
};

std::vector<grid> grids(int poster_height)
{
    std::vector<grid> found;
    int height = 3000;
    for (const std::string & line : lines_of("quick_matrix.ini")) {
        if (line.starts_with("#SQUARE"))
            height = 2000;
        if (line.starts_with('#') || height != poster_height)
            continue;
        const std::vector<std::string> fields = split(line);
        EXPECT_EQ(fields.size(), 8u) << line;
        std::vector<int> at;
        std::ranges::transform(fields, std::back_inserter(at), number);
        found.push_back(
            {at.at(0), at.at(1), at.at(2), at.at(3), at.at(4), at.at(5), at.at(6), at.at(7), height});
    }
    return found;
}

}  // namespace

TEST(matrix_table, has_two_sections_no_blank_line_and_a_grid_at_its_end)
{
    const std::vector<std::string> lines = lines_of("quick_matrix.ini");
    EXPECT_EQ(std::ranges::count(lines, "#SQUARE"), 1);
    EXPECT_EQ(std::ranges::count(lines, ""), 0);
    EXPECT_FALSE(lines.back().starts_with('#'));
}

TEST(matrix_table, grids_ascend_and_hold_what_they_say)
{
    for (const int height : {3000, 2000}) {
        int before = 0;
        for (const grid & one : grids(height)) {
            EXPECT_GT(one.cells, before);
            EXPECT_EQ(one.cells, one.rows * one.columns);
            before = one.cells;
        }
    }
}

TEST(matrix_table, every_count_of_499_photos_finds_a_grid_with_few_cells_to_spare)
{
    for (const int height : {3000, 2000}) {
        const std::vector<grid> all = grids(height);
        for (int wanted = 3; wanted <= 2 * 499; ++wanted) {
            const auto found = std::ranges::lower_bound(all, wanted, {}, &grid::cells);
            ASSERT_NE(found, all.end());
            EXPECT_LE(found->cells - wanted, 15) << wanted;
        }
    }
}

TEST(matrix_table, rows_can_be_filled_with_pairs)
{
    for (const int height : {3000, 2000})
        for (const grid & one : grids(height))
            EXPECT_EQ(one.columns % 2, 0) << one.cells;
}

TEST(matrix_table, a_portrait_in_one_cell_and_a_landscape_in_two_are_both_cut_little)
{
    for (const int height : {3000, 2000})
        for (const grid & one : grids(height)) {
            const double single = one.cell_height() / one.cell_width();
            const double pair = (2 * one.cell_width() + one.column_gap) / one.cell_height();
            EXPECT_GE(single, 1.2) << one.cells;
            EXPECT_LE(single, 1.6) << one.cells;
            EXPECT_GE(pair, 1.2) << one.cells;
            EXPECT_LE(pair, 1.701) << one.cells;
        }
}

TEST(matrix_table, margins_leave_half_of_the_poster_to_the_photos)
{
    for (const int height : {3000, 2000})
        for (const grid & one : grids(height)) {
            const double photos = one.cells * one.cell_width() * one.cell_height();
            EXPECT_GE(photos, (one.cells <= 8 ? 0.47 : 0.5) * 2000 * height) << one.cells;
            EXPECT_GE(one.side, 50);
            EXPECT_GE(one.bottom, one.top);
        }
}
