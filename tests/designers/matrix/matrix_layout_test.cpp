#include "designers/matrix/matrix_layout.h"

#include "designers/poster_area.h"
#include "designs/templates/location_line.h"

#include <gtest/gtest.h>

namespace {

using lines = std::vector<std::string>;

lines written(const matrix_choices & choices, run_size size)
{
    return template_lines(matrix_locations(choices, matrix_layout_of(choices, size)));
}

lines framed(int rows, int columns, poster_shape poster, int captions)
{
    return written({.rows = rows,
                    .columns = columns,
                    .poster = poster,
                    .frames = worn_frames{.set = "club", .captions = captions}},
                   run_size::full);
}

std::string first_of(const lines & all)
{
    return all.empty() ? std::string() : all.front();
}

}  // namespace

TEST(matrix_lines, two_by_two_fills_the_room_inside_the_borders)
{
    const lines grid{"100:100:2:2:0:0:0:0:", "20:20:1390:890:0:-1:-1:0:"};
    EXPECT_EQ(written({}, run_size::full), grid);
    EXPECT_EQ(written({}, run_size::preview), grid);
}

TEST(matrix_lines, cells_and_corner_are_rounded_to_the_nearest_with_ties_to_even)
{
    const matrix_choices choices{.rows = 3,
                                 .columns = 3,
                                 .borders = {.top = 50, .bottom = 75, .left = 60, .right = 85},
                                 .gap_v = 15,
                                 .gap_h = 25};
    // 601.67 and 948.33; the corner would be at 50.5 and 59.5.
    EXPECT_EQ(written(choices, run_size::full), (lines{"50:60:3:3:0:0:0:0:", "15:25:948:602:0:-1:-1:0:"}));
}

TEST(matrix_lines, a_landscape_poster_is_wider_than_high)
{
    EXPECT_EQ(written({.rows = 2, .columns = 3, .poster = poster_shape::landscape}, run_size::full),
              (lines{"100:100:2:3:0:0:0:0:", "20:20:890:920:0:-1:-1:0:"}));
}

TEST(matrix_lines, tell_the_switches_in_the_order_both_rotate_resize)
{
    EXPECT_EQ(first_of(written({.photos = matrix_photos::both}, run_size::full)), "100:100:2:2:1:0:0:0:");
    EXPECT_EQ(first_of(written({.rotate = true}, run_size::full)), "100:100:2:2:0:1:0:0:");
    EXPECT_EQ(first_of(written({.resize = true}, run_size::full)), "100:100:2:2:0:0:1:0:");
}

TEST(matrix_lines, a_shaken_preview_has_room_around_it_and_the_full_size_has_not)
{
    const matrix_choices choices{.rotate = true, .resize = true};
    EXPECT_EQ(written(choices, run_size::preview),
              (lines{"250:250:2:2:0:1:1:0:", "20:20:1240:740:0:-1:-1:0:"}));
    EXPECT_EQ(written(choices, run_size::full), (lines{"100:100:2:2:0:1:1:0:", "20:20:1390:890:0:-1:-1:0:"}));
}

TEST(matrix_lines, the_room_for_shaking_shrinks_with_the_number_of_cells)
{
    struct row {
        int rows, columns;
        bool rotate, resize;
        matrix_photos photos;
        int border;
    };
    constexpr matrix_photos upright = matrix_photos::portrait, both = matrix_photos::both;
    const row rows[] = {{5, 3, true, false, upright, 150}, {4, 4, true, false, upright, 135},
                        {6, 5, true, false, upright, 120}, {6, 6, true, false, upright, 112},
                        {7, 7, true, false, upright, 105}, {2, 2, true, false, both, 200},
                        {2, 2, false, true, both, 100},    {2, 2, true, true, both, 300},
                        {7, 7, true, true, both, 210}};
    for (const row & each : rows) {
        const matrix_choices choices{.rows = each.rows,
                                     .columns = each.columns,
                                     .borders = {.top = 0, .bottom = 0, .left = 0, .right = 0},
                                     .photos = each.photos,
                                     .rotate = each.rotate,
                                     .resize = each.resize};
        const matrix_layout layout = matrix_layout_of(choices, run_size::preview);
        // What division leaves over lies half before the first cell.
        EXPECT_NEAR(layout.top, each.border, 3) << each.border;
        EXPECT_NEAR(layout.left, each.border, 3) << each.border;
    }
}

TEST(matrix_lines, the_smallest_border_says_how_much_all_four_grow)
{
    const matrix_choices choices{.rows = 1,
                                 .columns = 1,
                                 .borders = {.top = 300, .bottom = 130, .left = 140, .right = 160},
                                 .rotate = true};
    EXPECT_EQ(written(choices, run_size::preview),
              (lines{"320:160:1:1:0:1:0:0:", "20:20:2530:1660:0:-1:-1:0:"}));
    matrix_choices wide = choices;
    wide.borders.bottom = wide.borders.left = 150;
    EXPECT_EQ(first_of(written(wide, run_size::preview)), "300:150:1:1:0:1:0:0:");
}

TEST(framed_matrix, each_upright_cell_has_a_frame_and_a_photo_on_it)
{
    EXPECT_EQ(framed(3, 2, poster_shape::portrait, 4),
              (lines{R"(100:100:920:607:0:0:0:0:frames\club\pframe01.jpg)",
                     "137:136:727:540:0:0:0:0:", R"(100:1293:920:607:0:0:0:0:frames\club\pframe02.jpg)",
                     "137:1329:727:540:0:0:0:0:", R"(1040:100:920:607:0:0:0:0:frames\club\pframe03.jpg)",
                     "1077:136:727:540:0:0:0:0:", R"(1040:1293:920:607:0:0:0:0:frames\club\pframe04.jpg)",
                     "1077:1329:727:540:0:0:0:0:", R"(1980:100:920:607:0:0:0:0:frames\club\pframe01.jpg)",
                     "2017:136:727:540:0:0:0:0:", R"(1980:1293:920:607:0:0:0:0:frames\club\pframe02.jpg)",
                     "2017:1329:727:540:0:0:0:0:"}));
}

TEST(framed_matrix, cells_that_lie_wear_the_frames_that_lie)
{
    const lines all = framed(2, 3, poster_shape::landscape, 1);
    ASSERT_EQ(all.size(), 12U);
    EXPECT_EQ(all[0], R"(100:100:607:920:0:0:0:0:frames\club\lframe01.jpg)");
    EXPECT_EQ(all[1], "131:220:455:764:0:0:0:0:");
    EXPECT_EQ(all[10], R"(1293:1980:607:920:0:0:0:0:frames\club\lframe01.jpg)");
    EXPECT_EQ(all[11], "1324:2100:455:764:0:0:0:0:");
}

TEST(framed_matrix, a_set_without_captions_wears_the_frame_of_its_default_caption)
{
    const lines all = framed(1, 2, poster_shape::landscape, 0);
    ASSERT_EQ(all.size(), 4U);
    EXPECT_TRUE(all[0].ends_with("frame00.jpg")) << all[0];
    EXPECT_TRUE(all[2].ends_with("frame00.jpg")) << all[2];
}

TEST(framed_matrix, captions_of_a_photo_list_go_with_its_photos)
{
    const auto numbers = [](const std::string & order, int captions) {
        const matrix_choices choices{
            .rows = 3,
            .columns = 2,
            .frames = worn_frames{.set = "club", .captions = captions, .order = order}};
        std::string text;
        for (const framed_cell & cell : framed_cells(choices, matrix_layout_of(choices, run_size::full)))
            text += cell.file.substr(12, 1) + cell.file.substr(18, 2) + " ";
        return text;
    };
    EXPECT_EQ(numbers("lppl", 4), "p02 p03 p02 p03 p02 p03 ")
        << "upright cells get upright photos, over and over";
    EXPECT_EQ(numbers("lplpp", 4), "p02 p04 p00 p02 p04 p00 ") << "the fifth photo has no caption of its own";
    EXPECT_EQ(numbers("ll", 2), "p01 p02 p01 p02 p01 p02 ") << "in turn where the list has no such photo";
}

TEST(framed_matrix, one_row_or_column_has_no_gap_to_give)
{
    EXPECT_EQ(framed(1, 1, poster_shape::portrait, 1),
              (lines{R"(100:76:2800:1848:0:0:0:0:frames\club\pframe01.jpg)", "212:187:2212:1645:0:0:0:0:"}));
}

TEST(framed_matrix, says_when_the_gap_between_columns_cannot_be_kept)
{
    const matrix_choices choices{.frames = worn_frames{.set = "club", .captions = 1}};
    const matrix_layout layout = matrix_layout_of(choices, run_size::full);
    EXPECT_EQ(layout.complaints, lines{"Should not happen 1 ?"});
    EXPECT_EQ(layout.gap_h, 20);
    EXPECT_EQ(layout.cell_width, 917);
    EXPECT_EQ(layout.left, 73);
}

TEST(framed_matrix, says_when_the_gap_between_rows_cannot_be_kept)
{
    const matrix_choices choices{.poster = poster_shape::landscape,
                                 .frames = worn_frames{.set = "club", .captions = 1}};
    const matrix_layout layout = matrix_layout_of(choices, run_size::full);
    EXPECT_EQ(layout.complaints, lines{"Shouldnothappen 2?"});
    EXPECT_EQ(layout.gap_v, 20);
    EXPECT_EQ(layout.cell_height, 917);
}

void expect_on_poster(const matrix_choices & choices, run_size size)
{
    const poster_area area = whole_poster(choices.poster);
    for (const framed_cell & cell : framed_cells(choices, matrix_layout_of(choices, size)))
        for (const rectangle & each : {cell.area, cell.photo})
            ASSERT_TRUE(each.left >= 0 && each.top >= 0 && each.right() <= area.width &&
                        each.bottom() <= area.height)
                << choices.rows << " by " << choices.columns << ": " << each.left << ", " << each.top
                << " to " << each.right() << ", " << each.bottom();
}

// All counts that the lists offer, frames that stand and frames that lie, with the gaps at the ends of their
// lists. Rows and columns that leave no room at all are refused before.
TEST(framed_matrix, never_leaves_the_poster)
{
    constexpr poster_borders all_borders[] = {{100, 100, 100, 100}, {0, 900, 700, 50}};
    int looked_at = 0;
    for (const poster_shape poster : {poster_shape::portrait, poster_shape::landscape})
        for (const matrix_photos photos : {matrix_photos::portrait, matrix_photos::landscape})
            for (const poster_borders & borders : all_borders)
                for (const int gap : {20, 300})
                    for (int cells = 0; cells < 25 * 25; ++cells) {
                        const matrix_choices choices{.rows = cells / 25 + 1,
                                                     .columns = cells % 25 + 1,
                                                     .borders = borders,
                                                     .gap_v = gap,
                                                     .gap_h = gap,
                                                     .photos = photos,
                                                     .poster = poster,
                                                     .frames = worn_frames{.set = "club", .captions = 1}};
                        if (!matrix_fault(choices).empty())
                            continue;
                        ++looked_at;
                        for (const run_size size : {run_size::full, run_size::preview})
                            ASSERT_NO_FATAL_FAILURE(expect_on_poster(choices, size));
                    }
    EXPECT_GT(looked_at, 4000);
}

TEST(framed_matrix, scaled_to_fit_its_cells_keep_the_shape_of_the_frames_and_its_message)
{
    const matrix_choices choices{
        .rows = 3, .columns = 4, .frames = worn_frames{.set = "club", .captions = 1}};
    const matrix_layout layout = matrix_layout_of(choices, run_size::full);
    EXPECT_EQ(layout.complaints, lines{"Should not happen 1 ?"});
    // 4 by 607 and 3 gaps of 20 are 2488 of 1800.
    EXPECT_EQ(layout.cell_width, 439);
    EXPECT_EQ(layout.cell_height, 665);
    EXPECT_EQ(layout.gap_h, 14);
    EXPECT_EQ(layout.gap_v, 14);
    EXPECT_EQ(layout.left, 101);
    EXPECT_EQ(layout.top, 488);
}

TEST(framed_matrix, rows_that_overlap_stay_so_without_a_word_where_cells_shrink)
{
    const matrix_choices choices{
        .rows = 3, .columns = 2, .gap_h = -700, .frames = worn_frames{.set = "club", .captions = 1}};
    const matrix_layout layout = matrix_layout_of(choices, run_size::full);
    EXPECT_EQ(layout.cell_width, 1250);  // wider than high
    EXPECT_TRUE(layout.complaints.empty());
}

TEST(matrix_fault, there_is_none_for_what_the_lists_offer)
{
    for (const int rows : {1, 2, 12, 25})
        for (const int columns : {1, 2, 8, 25})
            EXPECT_EQ(matrix_fault({.rows = rows, .columns = columns}), "") << rows << "x" << columns;
}

TEST(matrix_fault, counts_below_one_are_told)
{
    const std::string told = "Please choose at least one row and one column.";
    EXPECT_EQ(matrix_fault({.rows = 0}), told);
    EXPECT_EQ(matrix_fault({.columns = -3}), told);
}

TEST(matrix_fault, cells_without_size_are_told)
{
    const std::string told =
        "There is no room for the photos.\r\n\r\nPlease choose smaller borders and gaps, or fewer rows and "
        "columns.";
    EXPECT_EQ(matrix_fault({.rows = 9999}), told);
    EXPECT_EQ(matrix_fault({.columns = 9999}), told);
    EXPECT_EQ(matrix_fault({.borders = {.top = 1600, .bottom = 1600, .left = 0, .right = 0}}), told);
    EXPECT_EQ(matrix_fault({.gap_h = 5000}), told);
    EXPECT_EQ(matrix_fault({.gap_v = -5000}), told) << "all rows in one place";
    // Only the preview's room for shaking is missing.
    EXPECT_EQ(matrix_fault({.rows = 1, .columns = 1, .borders = {.left = 950, .right = 950}, .rotate = true}),
              told);
    EXPECT_EQ(matrix_fault({.rows = 1, .columns = 1, .borders = {.left = 950, .right = 950}}), "");
}

TEST(matrix_fault, a_template_has_lines_for_500_frames)
{
    const worn_frames set{.set = "club", .captions = 1};
    EXPECT_EQ(matrix_fault({.rows = 25, .columns = 20, .frames = set}), "");
    EXPECT_EQ(matrix_fault({.rows = 25, .columns = 21, .frames = set}),
              "A frame set has room for  500  photos.\r\nPlease choose fewer rows or columns.");
    EXPECT_EQ(matrix_fault({.rows = 25, .columns = 21}), "");
}
