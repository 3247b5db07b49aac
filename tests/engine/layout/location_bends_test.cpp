#include "engine/layout/location_bends.h"

#include "tests/engine/layout/measures.h"

#include <gtest/gtest.h>
#include <memory>

namespace {
constexpr auto place_role = location_role::place;
constexpr auto start_role = location_role::grid_start;
constexpr auto cells_role = location_role::grid_cells;
}  // namespace

TEST(location_bends, rows_of_a_grid_come_in_pairs)
{
    EXPECT_EQ(role_of(layout::places, 1), place_role);
    EXPECT_EQ(role_of(layout::grids, 0), start_role);
    EXPECT_EQ(role_of(layout::grids, 1), cells_role);
    EXPECT_EQ(role_of(layout::grids, 4), start_role);
    EXPECT_EQ(role_of(layout::grids, 5), cells_role);
}

TEST(location_bends, a_preview_has_a_seventh_to_even)
{
    EXPECT_EQ(scaled_to_preview(measures(700, 704, 1400, 17), place_role), measures(100, 101, 200, 2));
    EXPECT_EQ(scaled_to_preview(measures(-700, 0, 0, 0), place_role), measures(-100, 0, 0, 0));
}

TEST(location_bends, a_preview_scales_starts_and_gaps_by_7_cells_by_6_6_and_no_counts)
{
    EXPECT_EQ(scaled_to_preview(measures(70, 140, 8, 6), start_role), measures(10, 20, 8, 6));
    EXPECT_EQ(scaled_to_preview(measures(70, 140, 660, 330), cells_role), measures(10, 20, 100, 50));
}

TEST(location_bends, moving_a_grid_moves_its_start_alone)
{
    EXPECT_EQ(moved(measures(1, 2, 3, 4), place_role, 20), measures(21, 22, 3, 4));
    EXPECT_EQ(moved(measures(1, 2, 3, 4), start_role, 8), measures(9, 10, 3, 4));
    EXPECT_EQ(moved(measures(1, 2, 3, 4), cells_role, 8), measures(1, 2, 3, 4));
}

TEST(location_bends, a_frame_inside_takes_its_width_off_each_side)
{
    EXPECT_EQ(framed_inside(measures(100, 200, 300, 400), 10), measures(110, 210, 280, 380));
}

TEST(location_bends, soft_edges_grow_a_place_by_20_or_3_on_each_side)
{
    EXPECT_EQ(softened(measures(100, 100, 200, 200), place_role, run_size::full), measures(80, 80, 240, 240));
    EXPECT_EQ(softened(measures(100, 100, 200, 200), place_role, run_size::preview),
              measures(97, 97, 206, 206));
}

TEST(location_bends, soft_edges_keep_the_step_of_a_grid)
{
    EXPECT_EQ(softened(measures(100, 100, 8, 6), start_role, run_size::full), measures(80, 80, 8, 6));
    const location cells = softened(measures(50, 60, 200, 300), cells_role, run_size::full);
    EXPECT_EQ(cells, measures(10, 20, 240, 340));
    EXPECT_EQ(cells.top + cells.height, 50 + 200);
    EXPECT_EQ(cells.left + cells.width, 60 + 300);
}

TEST(location_bends, everything_else_of_a_location_stays)
{
    const location place{.top = 7,
                         .left = 7,
                         .height = 7,
                         .width = 7,
                         .rotation = 5,
                         .frame = 3,
                         .shadow = 4,
                         .spare = 2,
                         .file = "a"};
    for (const location & changed : {scaled_to_preview(place, place_role), moved(place, place_role, 1),
                                     softened(place, place_role, run_size::full), framed_inside(place, 1)}) {
        EXPECT_EQ(changed.rotation, 5);
        EXPECT_EQ(changed.frame, 3);
        EXPECT_EQ(changed.shadow, 4);
        EXPECT_EQ(changed.spare, 2);
        EXPECT_EQ(changed.file, "a");
    }
}

TEST(location_bends, dropping_a_layer_moves_the_next_one_up)
{
    const auto table = std::make_unique<location_table>();
    for (int16 i = 0; i < 6; ++i)
        table->add({.top = i});
    drop_layer(*table);
    EXPECT_EQ(table->count, 4);
    EXPECT_EQ((*table)[0].top, 2);
    EXPECT_EQ((*table)[3].top, 5);
}
