#include "quick/scatter/scatter_plan.h"

#include "quick/scatter/scatter_tables.h"
#include "support/platform_error.h"
#include "tests/sum_by_place.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <ostream>

namespace {

using lines = std::vector<std::string>;

scatter_layout planned_scatter(const lines & scatter, const scatter_request & request)
{
    return scatter_plan(scatter, request, listed({}));
}

struct reach_of_cell {
    double top, bottom, left, right;
};

// How far a cell of these sides, turned by `degrees` clockwise, reaches from where its top left corner was
// moved to, which is on the edge of what it covers.
reach_of_cell geometry(double width, double height, int degrees)
{
    const double angle = degrees * std::numbers::pi / 180, sine = std::sin(angle), cosine = std::cos(angle);
    return {.top = std::min(0.0, width * sine),
            .bottom = std::max(0.0, width * sine) + height * cosine,
            .left = std::min(0.0, -height * sine),
            .right = std::max(0.0, -height * sine) + width * cosine};
}

int degrees_of(std::size_t column)
{
    const int column_of_upright = 6;
    const int from_there = static_cast<int>(column) - column_of_upright;
    return 5 * from_there - (from_there <= 0 ? 5 : 0);
}

long measured(const std::array<double, scatter_tilts> & table)
{
    return sum_by_place(table, [](double number) { return std::lround(number * 100); });
}

}  // namespace

static void PrintTo(const scatter_extremes & reach, std::ostream * out)
{
    *out << reach.min_top << ".." << reach.max_bottom << ", " << reach.min_left << ".." << reach.max_right;
}

TEST(scatter_plan, cells_stay_as_the_file_has_them)
{
    EXPECT_EQ(planned_scatter({"1:0100:200.5:300:400:-5", "# a comment", "2:5:6:7:8:0:rest"}, {}).lines,
              (lines{"0100:200.5:300:400:-5:-1:-1:0:", "5:6:7:8:0:-1:-1:0:"}));
}

TEST(scatter_plan, a_tall_cell_is_turned_wide_about_its_middle)
{
    const scatter_layout plan =
        planned_scatter({"1:1000:500:400:300:10"}, {.wanted = {0, 1}, .offered = {1, 0}});
    EXPECT_EQ(plan.lines, (lines{"1075:425:300:400:10:-1:-1:0:"}));
    // The ninth column: 0.83, -0.13 and 0.98 of 400.
    EXPECT_EQ(plan.reach,
              (scatter_extremes{.min_top = 0, .max_bottom = 1407, .min_left = 0, .max_right = 817}));
}

TEST(scatter_plan, a_wide_cell_is_turned_tall)
{
    const scatter_layout plan =
        planned_scatter({"1:20:10:300:402:-35"}, {.wanted = {1, 0}, .offered = {0, 1}});
    // A quarter of 402 is 100.5: both corners are ties, rounded to even.
    EXPECT_EQ(plan.lines, (lines{"-80:110:402:300:-35:-1:-1:0:"}));
    EXPECT_EQ(plan.reach,
              (scatter_extremes{.min_top = -237, .max_bottom = 246, .min_left = 0, .max_right = 560}));
}

TEST(scatter_plan, as_many_cells_are_turned_as_are_missing_in_the_order_of_the_file)
{
    const lines scatter{"1:500:500:400:300:0", "2:500:500:300:400:0", "3:500:500:400:300:0",
                        "4:500:500:400:300:0"};
    const lines plan = planned_scatter(scatter, {.wanted = {1, 3}, .offered = {3, 1}}).lines;
    EXPECT_EQ(plan, (lines{"575:425:300:400:0:-1:-1:0:", "500:500:300:400:0:-1:-1:0:",
                           "575:425:300:400:0:-1:-1:0:", "500:500:400:300:0:-1:-1:0:"}));
}

TEST(scatter_plan, a_surplus_turns_nothing_by_itself)
{
    const scatter_layout plan =
        planned_scatter({"1:500:500:400:300:0"}, {.wanted = {0, 0}, .offered = {1, 0}});
    EXPECT_EQ(plan.lines, (lines{"500:500:400:300:0:-1:-1:0:"}));
    EXPECT_EQ(plan.reach, scatter_extremes{});
}

TEST(scatter_plan, a_square_cell_is_never_turned)
{
    const scatter_layout plan =
        planned_scatter({"1:500:500:300:300:0", "2:0:0:20:10:0"}, {.wanted = {5, 1}, .offered = {0, 0}});
    EXPECT_EQ(plan.lines, (lines{"500:500:300:300:0:-1:-1:0:", "02:-02:10:20:0:-1:-1:0:"}));
}

TEST(scatter_plan, a_blank_cell_uses_up_its_turn_and_pushes_the_extremes)
{
    const blank_run first_of_nine{.length = 9, .left = 9, .blank_at = 0};
    const scatter_layout plan =
        planned_scatter({"1:2800:0:400:300:35", "2:500:500:400:300:0"},
                        {.wanted = {0, 1}, .offered = {2, 0}, .blanks = first_of_nine});
    EXPECT_EQ(plan.lines, (lines{"500:500:400:300:0:-1:-1:0:"}));
    EXPECT_EQ(plan.reach.max_bottom, 2875 + 448);
    EXPECT_EQ(plan.reach.min_left, -75 - 152);
}

TEST(scatter_plan, a_comment_takes_no_place_in_the_run_of_blanks)
{
    const blank_run second_of_nine{.length = 9, .left = 9, .blank_at = 1};
    const lines scatter{"1:5:6:70:80:0", "# comment", "2:5:6:70:80:5", "3:5:6:70:80:10"};
    EXPECT_EQ(planned_scatter(scatter, {.blanks = second_of_nine}).lines,
              (lines{"5:6:70:80:0:-1:-1:0:", "5:6:70:80:10:-1:-1:0:"}));
}

TEST(scatter_plan, each_tilt_has_its_column_and_upright_shares_that_of_minus_5)
{
    const std::vector<std::pair<int, std::size_t>> columns{{-35, 0}, {-30, 1}, {-10, 5}, {-5, 6},
                                                           {0, 6},   {5, 7},   {20, 10}, {35, 13}};
    for (const auto & [tilt, column] : columns) {
        const scatter_layout plan = planned_scatter({"1:1000:1000:1000:800:" + std::to_string(tilt)},
                                                    {.wanted = {0, 1}, .offered = {}});
        EXPECT_EQ(plan.reach.max_bottom, nearest(1200 + 1000 * turned_wide.bottom[column])) << tilt;
    }
}

TEST(scatter_tables, cells_of_two_by_three_reach_as_far_as_geometry_says)
{
    const double measured_within = 0.023;
    for (const auto & [table, width, height] :
         {std::tuple{turned_wide, 1.0, 2 / 3.0}, std::tuple{turned_tall, 2 / 3.0, 1.0}})
        for (std::size_t i = 0; i < scatter_tilts; ++i) {
            const reach_of_cell wanted = geometry(width, height, degrees_of(i));
            const bool is_meant_otherwise = table.top[i] == -0.90;
            EXPECT_NEAR(table.top[i], is_meant_otherwise ? -0.90 : wanted.top, measured_within) << i;
            EXPECT_NEAR(table.bottom[i], wanted.bottom, measured_within) << i;
            EXPECT_NEAR(table.left[i], wanted.left, measured_within) << i;
            EXPECT_NEAR(table.right[i], wanted.right, measured_within) << i;
        }
}

TEST(scatter_tables, hold_the_numbers_that_were_measured)
{
    EXPECT_DOUBLE_EQ(turned_wide.top[6], -0.90);
    EXPECT_EQ(measured(turned_wide.top), -1288);
    EXPECT_EQ(measured(turned_wide.bottom), 9269);
    EXPECT_EQ(measured(turned_wide.left), -1926);
    EXPECT_EQ(measured(turned_wide.right), 10160);
    EXPECT_EQ(measured(turned_tall.top), -500);
    EXPECT_EQ(measured(turned_tall.bottom), 11533);
    EXPECT_EQ(measured(turned_tall.left), -2820);
    EXPECT_EQ(measured(turned_tall.right), 7174);
}

TEST(scatter_plan, a_tilt_beyond_the_table_is_a_fault)
{
    for (const char * tilt : {"40", "-40"}) {
        try {
            planned_scatter({std::string("1:0:0:300:400:") + tilt}, {});
            FAIL() << tilt;
        } catch (const platform_error & error) {
            EXPECT_EQ(error.number, error_number::subscript);
        }
    }
}

TEST(scatter_plan, a_short_line_is_a_fault)
{
    EXPECT_THROW(planned_scatter({"1:0:0:300:400"}, {}), platform_error);
    EXPECT_THROW(planned_scatter({""}, {}), platform_error);
}

TEST(border_for, grows_with_what_reaches_over_the_edges)
{
    struct row {
        scatter_extremes reach;
        least_border border;
    };
    for (const row & each :
         {row{{-85, 3085, -85, 2085}, least_border::any}, row{{-86, 0, 0, 0}, least_border::small},
          row{{0, 3086, 0, 0}, least_border::small}, row{{0, 0, -86, 0}, least_border::small},
          row{{0, 0, 0, 2086}, least_border::small}, row{{-185, 3185, -185, 2185}, least_border::small},
          row{{-186, 0, 0, 0}, least_border::medium}, row{{0, 0, 0, 2286}, least_border::large},
          row{{0, 3286, 0, 0}, least_border::large}})
        EXPECT_EQ(border_for(each.reach), each.border);
}
