// What holds for every input, over thousands of random ones.

#include "designs/templates/location_line.h"
#include "quick/block/block_plan.h"
#include "quick/matrix/matrix_plan.h"
#include "quick/scatter/scatter_plan.h"
#include "quick/shapes/shapes_plan.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace {

using dice = std::mt19937;

int drawn(dice & chance, int least, int most)
{
    return std::uniform_int_distribution<int>(least, most)(chance);
}

template <typename Value>
Value one_of(dice & chance, std::initializer_list<Value> values)
{
    return values.begin()[drawn(chance, 0, static_cast<int>(values.size()) - 1)];
}

poster_shape any_poster(dice & chance)
{
    return one_of(chance, {poster_shape::portrait, poster_shape::landscape, poster_shape::square});
}

int high(poster_shape poster)
{
    return poster == poster_shape::square ? 2000 : 3000;
}

// A length of the list of blanks.
int any_blanks(dice & chance)
{
    return one_of(chance, {0, 0, 3, 5, 8, 13, 20, 40});
}

struct place {
    int top, left, height, width, tilt;
    std::string mask;
};

place place_of(const std::string & line)
{
    const std::vector<std::string> fields = split(line, ':', 9);
    EXPECT_EQ(fields.size(), 9U) << line;
    return {std::stoi(fields[0]), std::stoi(fields[1]), std::stoi(fields[2]),
            std::stoi(fields[3]), std::stoi(fields[4]), fields[8]};
}

// Which lines are left out, told by comparing with a plan that has no blanks.
std::vector<bool> holes(const std::vector<std::string> & all, const std::vector<std::string> & left)
{
    std::vector<bool> gone;
    std::size_t next = 0;
    for (const std::string & line : all) {
        const bool is_there = next < left.size() && left[next] == line;
        gone.push_back(!is_there);
        next += is_there ? 1 : 0;
    }
    EXPECT_EQ(next, left.size());
    return gone;
}

// One hole in each run, and no two side by side but at the seam behind the first run.
void expect_blanks_rule(const std::vector<bool> & gone, int length)
{
    for (std::size_t start = 0; start < gone.size(); start += static_cast<std::size_t>(length)) {
        const auto first = gone.begin() + static_cast<std::ptrdiff_t>(start);
        const auto whole_run = static_cast<std::ptrdiff_t>(length) <= gone.end() - first;
        const auto last = whole_run ? first + length : gone.end();
        const auto count = std::count(first, last, true);
        EXPECT_LE(count, 1);
        EXPECT_TRUE(count == 1 || !whole_run);
        if (start > static_cast<std::size_t>(length)) {
            EXPECT_FALSE(gone[start - 1] && gone[start]) << start;
        }
    }
}

// A wall of columns of rectangles, all with even sides; `count` of them.
std::vector<std::string> any_wall(dice & chance, int height)
{
    std::vector<std::string> wall;
    const int columns = drawn(chance, 1, 7);
    const int width = 2000 / columns / 4 * 4;
    for (int column = 0; column < columns; ++column) {
        const int rows = drawn(chance, 1, 9);
        for (int row = 0; row < rows; ++row) {
            const int top = height * row / rows, bottom = height * (row + 1) / rows;
            wall.push_back(std::to_string(top) + ":" + std::to_string(column * width) + ":" +
                           std::to_string(bottom - top) + ":" + std::to_string(width));
        }
    }
    return wall;
}

std::string any_photos(dice & chance, matrix_request & request)
{
    const int photos = drawn(chance, 3, 120), share = drawn(chance, 0, 10);
    for (int i = 0; i < photos; ++i) {
        const bool portrait = drawn(chance, 1, 10) <= share;
        (portrait ? request.portrait : request.landscape) += 1;
        request.shapes += portrait ? "p:" : "l:";
    }
    return request.shapes;
}

matrix_request any_matrix(dice & chance)
{
    matrix_request request;
    request.grid = {.cells = 0,
                    .rows = drawn(chance, 1, 16),
                    .columns = drawn(chance, 2, 12),
                    .row_gap = 4 * drawn(chance, 0, 5),
                    .column_gap = 4 * drawn(chance, 0, 5),
                    .side_margin = drawn(chance, 0, 270),
                    .top_margin = drawn(chance, 0, 200),
                    .bottom_margin = drawn(chance, 0, 200)};
    request.poster = any_poster(chance);
    any_photos(chance, request);
    request.rotate = drawn(chance, 0, 1) == 1;
    request.resize = drawn(chance, 0, 1) == 1;
    request.shuffle = drawn(chance, 0, 1) == 1;
    request.offset = drawn(chance, 0, 23);
    request.inset = one_of(chance, {0, 48, 230});
    return request;
}

}  // namespace

TEST(every_block, stays_in_its_wall_without_a_cell_of_no_size)
{
    dice chance(11);
    for (int turn = 0; turn < 1500; ++turn) {
        block_request request{.poster = any_poster(chance)};
        const int height = high(request.poster);
        request.gap = 10 * drawn(chance, -10, 3);
        const std::vector<std::string> wall = any_wall(chance, height);
        const int size = static_cast<int>(wall.size());
        request.split = drawn(chance, 0, size);
        const auto plan = template_lines(block_plan(wall, request, listed({})));
        ASSERT_EQ(plan.size(), wall.size() + static_cast<std::size_t>(request.split));
        for (const std::string & line : plan) {
            const place cell = place_of(line);
            ASSERT_GT(cell.height, 0) << line;
            ASSERT_GT(cell.width, 0) << line;
            ASSERT_GE(std::min(cell.top, cell.left), request.gap) << line;
            ASSERT_LE(cell.top + cell.height, height - request.gap + 1) << line;
            ASSERT_LE(cell.left + cell.width, 2000 - request.gap + 1) << line;
        }
    }
}

TEST(every_block, covers_as_much_after_its_cuts_as_before)
{
    dice chance(12);
    for (int turn = 0; turn < 1000; ++turn) {
        block_request request{.poster = one_of(chance, {poster_shape::portrait, poster_shape::square})};
        const auto wall = any_wall(chance, high(request.poster));
        const auto area = [&](const block_request & asked) {
            long sum = 0;
            for (const std::string & line : template_lines(block_plan(wall, asked, listed({})))) {
                const place cell = place_of(line);
                sum += static_cast<long>(cell.height) * cell.width;
            }
            return sum;
        };
        const long before = area(request);
        request.split = drawn(chance, 1, static_cast<int>(wall.size()));
        ASSERT_EQ(area(request), before);
    }
}

TEST(every_block, has_one_hole_in_each_run)
{
    dice chance(13);
    for (int turn = 0; turn < 1000; ++turn) {
        const auto wall = any_wall(chance, 3000);
        const int length = std::max(any_blanks(chance), 3);
        const random_source random = seeded_random(chance());
        const auto all = template_lines(block_plan(wall, {}, listed({})));
        const auto left = template_lines(block_plan(wall, {.blanks = start_blanks(length, random)}, random));
        expect_blanks_rule(holes(all, left), length);
    }
}

TEST(every_scatter, keeps_its_cells_and_turns_what_is_asked_for)
{
    dice chance(21);
    for (int turn = 0; turn < 1000; ++turn) {
        std::vector<std::string> cells;
        scatter_request request;
        std::map<bool, int> tall;
        for (int i = drawn(chance, 1, 60); i > 0; --i) {
            const bool upright = drawn(chance, 0, 1) == 1;
            ++tall[upright];
            cells.push_back(std::to_string(i) + ":" + std::to_string(drawn(chance, 0, 2500)) + ":" +
                            std::to_string(drawn(chance, 0, 1500)) + (upright ? ":500:380:" : ":380:500:") +
                            std::to_string(5 * drawn(chance, -7, 7)));
        }
        request.offered = {.along = tall[true], .cross = tall[false]};
        const int moved = drawn(chance, -tall[false], tall[true]);
        request.wanted = {.along = tall[true] - moved, .cross = tall[false] + moved};
        const scatter_layout plan = scatter_plan(cells, request, listed({}));
        ASSERT_EQ(plan.lines.size(), cells.size());
        int along = 0;
        for (const std::string & line : plan.lines)
            along += place_of(line).height > place_of(line).width ? 1 : 0;
        ASSERT_EQ(along, request.wanted.along);
    }
}

TEST(every_scatter, has_one_hole_in_each_run)
{
    dice chance(22);
    for (int turn = 0; turn < 1000; ++turn) {
        std::vector<std::string> cells;
        for (int i = drawn(chance, 1, 60); i > 0; --i)
            cells.push_back("1:" + std::to_string(i) + ":0:500:380:5");
        const int length = std::max(any_blanks(chance), 3);
        const random_source random = seeded_random(chance());
        const auto all = scatter_plan(cells, {}, listed({})).lines;
        const auto left = scatter_plan(cells, {.blanks = start_blanks(length, random)}, random).lines;
        expect_blanks_rule(holes(all, left), length);
    }
}

TEST(every_matrix, has_full_rows)
{
    dice chance(31);
    for (int turn = 0; turn < 1500; ++turn) {
        matrix_request request = any_matrix(chance);
        request.rotate = request.resize = request.shuffle = false;
        const auto plan = template_lines(matrix_plan(request, listed({})));
        std::map<int, int> cells_in_row;
        const int cell = place_of(plan.front()).height;
        ASSERT_GT(cell, 0);
        int single = 32767;
        for (const std::string & line : plan)
            single = std::min(single, place_of(line).width);
        const int gap = request.grid.column_gap;
        const int room = 2000 - 2 * (request.grid.side_margin + request.inset);
        const double own =
            (room - (request.grid.columns - 1) * gap) / static_cast<double>(request.grid.columns);
        for (const std::string & line : plan) {
            const place each = place_of(line);
            ASSERT_GT(each.width, 0);
            ASSERT_EQ(each.height, cell);
            cells_in_row[each.top] += each.width > own * 1.5 ? 2 : 1;
        }
        ASSERT_EQ(static_cast<int>(cells_in_row.size()), request.grid.rows);
        for (const auto & [top, cells] : cells_in_row)
            ASSERT_EQ(cells, request.grid.columns) << top;
    }
}

TEST(every_matrix, begins_neighbouring_rows_with_tilts_to_other_sides)
{
    dice chance(32);
    for (int turn = 0; turn < 1500; ++turn) {
        matrix_request request = any_matrix(chance);
        request.rotate = true;
        request.resize = request.shuffle = false;
        request.grid.rows = drawn(chance, 2, 16);
        std::vector<int> starts;
        int filled = 0;
        const auto upright = [&] {
            matrix_request plain = request;
            plain.rotate = false;
            return template_lines(matrix_plan(plain, listed({})));
        }();
        const auto plan = template_lines(matrix_plan(request, listed({})));
        ASSERT_EQ(plan.size(), upright.size());
        int row_top = -32768;
        for (std::size_t i = 0; i < plan.size(); ++i)
            if (const int top = place_of(upright[i]).top; top != row_top) {
                row_top = top;
                starts.push_back(place_of(plan[i]).tilt);
                ++filled;
            }
        for (int i = 1; i < filled; ++i)
            ASSERT_NE(starts[static_cast<std::size_t>(i)] > 0, starts[static_cast<std::size_t>(i - 1)] > 0);
    }
}

TEST(every_matrix, hangs_over_its_poster_by_no_more_than_its_patterns_move_it)
{
    dice chance(33);
    for (int turn = 0; turn < 1500; ++turn) {
        const matrix_request request = any_matrix(chance);
        const double cell = std::max(2000.0 / request.grid.columns,
                                     high(request.poster) / static_cast<double>(request.grid.rows));
        // Seven fiftieths of the longer side, and half of what a slim cell gains when it is tilted.
        const double over = cell * (0.14 + (request.rotate ? 0.7 : 0.16)) + 2;
        for (const std::string & line : template_lines(matrix_plan(request, listed({})))) {
            const place each = place_of(line);
            ASSERT_GT(std::min(each.height, each.width), 0) << line;
            ASSERT_GE(each.top, -over) << line;
            ASSERT_GE(each.left, -over) << line;
            ASSERT_LE(each.top + each.height, high(request.poster) + over + cell) << line;
            ASSERT_LE(each.left + each.width, 2000 + over + cell) << line;
        }
    }
}

TEST(every_matrix, of_landscape_photos_alone_is_double_cells_in_rows_of_even_length)
{
    dice chance(34);
    for (int turn = 0; turn < 500; ++turn) {
        matrix_request request;
        request.grid = {.rows = drawn(chance, 1, 20), .columns = 2 * drawn(chance, 1, 5)};
        request.landscape = drawn(chance, 1, 120);
        for (int i = 0; i < request.landscape; ++i)
            request.shapes += "l:";
        ASSERT_EQ(static_cast<int>(template_lines(matrix_plan(request, listed({}))).size()),
                  request.grid.rows * request.grid.columns / 2);
    }
}

TEST(every_grid_of_shapes, stays_on_its_poster)
{
    dice chance(41);
    for (int turn = 0; turn < 1500; ++turn) {
        shapes_request request;
        request.poster = any_poster(chance);
        request.shape = one_of(chance, {"Squares", "Circles", "Leaves"});
        request.last_photo = drawn(chance, 0, 300);
        request.row_bias = drawn(chance, -20, 6);
        request.column_bias = drawn(chance, -12, 6);
        request.gap = 10 * drawn(chance, -10, 6);
        request.frame = drawn(chance, 0, 30);
        request.shadow = drawn(chance, 0, 30);
        request.align = one_of(chance, {shapes_align::top, shapes_align::center, shapes_align::bottom});
        const shapes_layout plan = shapes_plan(request, seeded_random(1));
        const std::vector<std::string> written = template_lines(plan.places);
        ASSERT_EQ(written.size(), static_cast<std::size_t>(plan.rows * plan.columns));
        ASSERT_GE(std::min(plan.rows, plan.columns), 1);
        const bool masks = request.shape != "Squares";
        for (const std::string & line : written) {
            const place cell = place_of(line);
            ASSERT_GT(cell.width, 0) << line;
            ASSERT_EQ(cell.height, masks ? 0 : cell.width) << line;
            ASSERT_GE(cell.top, -30) << line;
            ASSERT_LE(cell.top + cell.width, high(request.poster) + 30) << line;
            // The drawing brings masks back by one cell on a square poster.
            const int shift = masks && request.poster == poster_shape::square ? cell.width : 0;
            ASSERT_GE(cell.left - shift, 0) << line;
            ASSERT_LE(cell.left - shift + cell.width, 2000) << line;
        }
    }
}

TEST(every_grid_of_shapes, has_no_two_neighbouring_leaves_alike)
{
    dice chance(42);
    for (int turn = 0; turn < 1000; ++turn) {
        const random_source random = seeded_random(chance());
        shapes_request request{.shape = one_of(chance, {"Leaves", "Puzzle pieces"}),
                               .last_photo = drawn(chance, 3, 200)};
        request.blanks = start_blanks(any_blanks(chance), random);
        const auto plan = template_lines(shapes_plan(request, random).places);
        for (std::size_t i = 1; i < plan.size(); ++i)
            ASSERT_NE(place_of(plan[i]).mask, place_of(plan[i - 1]).mask) << i;
    }
}

TEST(every_grid_of_shapes, has_one_hole_in_each_run)
{
    dice chance(43);
    for (int turn = 0; turn < 1000; ++turn) {
        shapes_request request{.shape = "Circles", .last_photo = drawn(chance, 3, 200)};
        const auto all = template_lines(shapes_plan(request, seeded_random(1)).places);
        const int length = std::max(any_blanks(chance), 3);
        const random_source random = seeded_random(chance());
        request.blanks = start_blanks(length, random);
        expect_blanks_rule(holes(all, template_lines(shapes_plan(request, random).places)), length);
    }
}
