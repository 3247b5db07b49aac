#include "quick/matrix/matrix_plan.h"

#include "quick/matrix/matrix_patterns.h"
#include "support/files/text_file.h"
#include "support/numbers.h"
#include "support/platform_error.h"
#include "tests/sum_by_place.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using lines = std::vector<std::string>;

// A request for photos given as letters, on a grid given as a line.
matrix_request request_for(const char * grid, const std::string & photos)
{
    matrix_request request{.grid = matrix_grid_of(grid)};
    for (const char photo : photos) {
        (photo == 'p' ? request.portrait : request.landscape) += 1;
        request.shapes += std::string(1, photo) + ":";
    }
    return request;
}

lines planned_matrix(const matrix_request & request)
{
    return template_lines(matrix_plan(request, listed({})), matrix_digits);
}

// The cells row by row: "-" a single one, "=" a double one.
std::string cells(const matrix_request & request)
{
    std::string text;
    std::string row;
    for (const std::string & line : planned_matrix(request)) {
        const std::vector<std::string> fields = split(line, ':', 9);
        if (!row.empty() && fields[0] != row)
            text += ' ';
        row = fields[0];
        const int wide = request.grid.columns > 1 ? 2000 / request.grid.columns : 2000;
        text += std::stoi(fields[3]) > wide + 1 ? '=' : '-';
    }
    return text;
}

}  // namespace

TEST(matrix_plan, a_portrait_takes_one_cell_and_a_landscape_photo_two)
{
    EXPECT_EQ(
        planned_matrix(request_for("6:2:3:20:10:100:50:70", "plppp")),
        (lines{"50:100:1430:593:00:-1:-1:0:", "50:703:1430:1196:00:-1:-1:0:", "1500:100:1430:593:00:-1:-1:0:",
               "1500:703:1430:593:00:-1:-1:0:", "1500:1306:1430:593:00:-1:-1:0:"}));
}

TEST(matrix_plan, a_square_poster_is_2000_high)
{
    matrix_request request = request_for("4:2:2:0:0:100:100:100", "pppp");
    request.poster = poster_shape::square;
    EXPECT_EQ(planned_matrix(request),
              (lines{"100:100:900:900:00:-1:-1:0:", "100:1000:900:900:00:-1:-1:0:",
                     "1000:100:900:900:00:-1:-1:0:", "1000:1000:900:900:00:-1:-1:0:"}));
}

TEST(matrix_plan, a_landscape_poster_swaps_the_photos_and_shares_the_margins)
{
    matrix_request request = request_for("6:2:3:20:10:100:50:71", "pll");
    request.poster = poster_shape::landscape;
    request.rotate = true;
    request.offset = 3;
    EXPECT_EQ(planned_matrix(request),
              (lines{"60:100:1430:1196:-15:-1:-1:0:", "60:1306:1430:1001:10:-1:-1:0:",
                     "1510:100:1430:1001:05:-1:-1:0:", "1510:703:1430:1196:-05:-1:-1:0:"}));
}

TEST(matrix_plan, photos_are_used_again_from_the_first_when_cells_are_left)
{
    EXPECT_EQ(cells(request_for("6:2:3:0:0:0:0:0", "lp")), "=- =-");
    EXPECT_EQ(cells(request_for("12:3:4:0:0:0:0:0", "lpp")), "=-- =-- =--");
}

TEST(matrix_plan, a_landscape_photo_that_does_not_fit_waits_and_a_used_one_fills_the_row)
{
    EXPECT_EQ(cells(request_for("6:2:3:0:0:0:0:0", "lll")), "=- =-");
    EXPECT_EQ(cells(request_for("9:3:3:0:0:0:0:0", "plpll")), "-= -= =-");
    EXPECT_EQ(cells(request_for("3:3:1:0:0:0:0:0", "ll")), "- - -");
}

TEST(matrix_plan, large_mixed_grids_have_at_most_two_rows_in_a_run_that_begin_alike)
{
    EXPECT_EQ(cells(request_for("24:6:4:0:0:0:0:0", "pppppllllplppl")), "---- -=- == == --= ----");
}

TEST(matrix_plan, portraits_that_wait_count_as_landscape_photos_once_the_list_begins_anew)
{
    EXPECT_EQ(cells(request_for("27:9:3:0:0:0:0:0", "plplp")), "-= -= =- -= =- =- -= -= -=");
}

TEST(matrix_plan, sixteen_cells_or_photos_mostly_of_one_kind_are_not_balanced)
{
    EXPECT_EQ(cells(request_for("16:4:4:0:0:0:0:0", "ppppppppllll")), "---- ---- == ==");
    EXPECT_EQ(cells(request_for("20:5:4:0:0:0:0:0", "pppppppppppppplll")), "---- ---- ---- --= ==");
}

TEST(matrix_plan, shaken_cells_are_tilted_scaled_and_moved_by_their_patterns)
{
    matrix_request request = request_for("9:3:3:20:20:100:100:130", "plpplpp");
    request.rotate = request.resize = request.shuffle = true;
    request.offset = 5;
    EXPECT_EQ(
        planned_matrix(request),
        (lines{"64:09:910:637:-05:-1:-1:0:", "200:810:778:1021:05:-1:-1:0:", "1153:235:774:542:10:-1:-1:0:",
               "903:612:1092:704:00:-1:-1:0:", "1148:1434:819:573:05:-1:-1:0:",
               "1996:-27:864:1134:-05:-1:-1:0:", "2101:1413:774:542:10:-1:-1:0:"}));
}

TEST(matrix_patterns, hold_the_numbers_that_were_chosen)
{
    for (const shake & each : matrix_patterns) {
        EXPECT_EQ(each.rotation % 5, 0);
        EXPECT_LE(std::abs(each.rotation), 20);
    }
    EXPECT_EQ(sum_by_place(matrix_patterns, [](const shake & each) { return nearest(each.scale * 100); }),
              30945);
    EXPECT_EQ(sum_by_place(matrix_patterns, &shake::rotation), -5);
    EXPECT_EQ(sum_by_place(matrix_patterns, &shake::top), 189);
    EXPECT_EQ(sum_by_place(matrix_patterns, &shake::left), 120);
}

TEST(matrix_plan, each_switch_shakes_in_its_own_way)
{
    matrix_request request = request_for("4:4:1:0:0:0:0:0", "pppp");
    request.shuffle = true;
    EXPECT_EQ(planned_matrix(request),
              (lines{"120:200:750:2000:00:-1:-1:0:", "830:-200:750:2000:00:-1:-1:0:",
                     "1420:80:750:2000:00:-1:-1:0:", "2250:00:750:2000:00:-1:-1:0:"}));
    request.shuffle = false;
    request.resize = true;
    // 0.9, 1.15, 0.85 and 1: what would grow in the only column stays.
    EXPECT_EQ(planned_matrix(request),
              (lines{"38:100:675:1800:00:-1:-1:0:", "750:00:750:2000:00:-1:-1:0:",
                     "1556:150:638:1700:00:-1:-1:0:", "2250:00:750:2000:00:-1:-1:0:"}));
}

TEST(matrix_plan, cells_grow_away_from_the_edges_alone)
{
    matrix_request request = request_for("9:3:3:0:0:100:100:100", "pppppppl");
    request.resize = true;
    const auto rows_below_the_first = [&](int offset) {
        request.offset = offset;
        const lines plan = planned_matrix(request);
        return lines(plan.begin() + 3, plan.end());
    };
    // By 1.3 in the middle, where the lower edge is no limit; a double cell behind 0.85 grows by nothing.
    EXPECT_EQ(rows_below_the_first(1), (lines{"1056:115:886:570:00:-1:-1:0:", "893:610:1213:780:00:-1:-1:0:",
                                              "1080:1330:840:540:00:-1:-1:0:", "1966:100:933:600:00:-1:-1:0:",
                                              "2036:745:753:969:00:-1:-1:0:"}));
    // The 1.3 of the last column and the 1.15 of a double cell that ends there are left out.
    EXPECT_EQ(rows_below_the_first(0), (lines{"1033:100:933:600:00:-1:-1:0:", "1056:715:886:570:00:-1:-1:0:",
                                              "1033:1300:933:600:00:-1:-1:0:", "2012:130:840:540:00:-1:-1:0:",
                                              "1966:700:886:1140:00:-1:-1:0:"}));
}

TEST(matrix_plan, a_row_does_not_begin_with_the_pattern_of_the_row_before)
{
    matrix_request request = request_for("48:2:24:0:0:0:0:0", std::string(48, 'p'));
    request.shuffle = true;
    const lines plan = planned_matrix(request);
    // Twenty-four columns on it would be pattern 1 again; it is 12, and 14 is next.
    EXPECT_EQ(plan[24], "1560:-206:1500:83:00:-1:-1:0:");
    EXPECT_EQ(plan[25], "1470:57:1500:83:00:-1:-1:0:");
}

TEST(matrix_plan, a_shaken_preview_keeps_its_sides_free)
{
    matrix_request request = request_for("4:2:2:0:0:100:100:100", "pppp");
    request.rotate = true;
    request.inset = 48;
    EXPECT_EQ(planned_matrix(request),
              (lines{"160:148:1340:938:10:-1:-1:0:", "160:1000:1340:938:-15:-1:-1:0:",
                     "1500:148:1340:938:-10:-1:-1:0:", "1500:1000:1340:938:15:-1:-1:0:"}));
    EXPECT_EQ(matrix_inset(59), 47);
    EXPECT_EQ(matrix_inset(60), 48);
    EXPECT_EQ(matrix_inset(1000), 230);
    EXPECT_EQ(matrix_inset_down(48), 60);
}

TEST(matrix_plan, the_last_cell_of_a_row_takes_no_place_in_the_run_of_blanks)
{
    matrix_request request = request_for("6:2:3:0:0:0:0:0", "pppppp");
    request.blanks = {.length = 3, .left = 3, .blank_at = 0};
    EXPECT_EQ(template_lines(matrix_plan(request, listed({0.0, 0.5})), matrix_digits),
              (lines{"00:667:1500:667:00:-1:-1:0:", "00:1334:1500:667:00:-1:-1:0:",
                     "1500:00:1500:667:00:-1:-1:0:", "1500:1334:1500:667:00:-1:-1:0:"}));
}

TEST(matrix_plan, a_list_of_no_photos_is_a_grid_of_single_cells)
{
    EXPECT_EQ(cells(request_for("4:2:2:0:0:0:0:0", "")), "-- --");
}

TEST(matrix_plan, a_grid_without_rows_or_columns_is_a_fault)
{
    EXPECT_THROW(planned_matrix(request_for("0:0:3:0:0:0:0:0", "p")), platform_error);
    EXPECT_THROW(planned_matrix(request_for("0:3:0:0:0:0:0:0", "p")), platform_error);
}
