#include "engine/layout/border.h"

#include <gtest/gtest.h>

namespace {

struct row {
    border_size size;
    bool square, scattered;
    int top, left, height, width;
};

// A location of 1000:1000:1000:1000 at full size.
constexpr row expected[] = {
    {border_size::huge, false, false, 1100, 1000, 800, 700},
    {border_size::huge, false, true, 1100, 1000, 800, 800},
    {border_size::huge, true, false, 1000, 1000, 700, 700},
    {border_size::huge, true, true, 900, 1000, 700, 700},
    {border_size::large, false, false, 1082, 1000, 835, 750},
    {border_size::large, false, true, 1082, 1000, 835, 835},
    {border_size::large, true, false, 997, 1000, 750, 750},
    {border_size::large, true, true, 897, 1000, 750, 750},
    {border_size::medium, false, false, 1065, 1000, 870, 800},
    {border_size::medium, false, true, 1065, 1000, 870, 870},
    {border_size::medium, true, false, 995, 1000, 800, 800},
    {border_size::medium, true, true, 995, 1000, 800, 800},
    {border_size::small, false, false, 1045, 1000, 900, 850},
    {border_size::small, false, true, 1045, 1000, 900, 900},
    {border_size::small, true, false, 995, 1000, 850, 850},
    {border_size::small, true, true, 995, 1000, 850, 850},
    {border_size::tiny, false, false, 985, 960, 930, 900},
    {border_size::tiny, false, true, 985, 960, 930, 930},
    {border_size::tiny, true, false, 995, 1000, 900, 900},
    {border_size::tiny, true, true, 995, 1000, 900, 900},
    {border_size::none, false, false, 986, 990, 950, 950},
    {border_size::none, true, true, 986, 990, 950, 950},
};

location bordered(const location & place, location_role role, const border_setting & setting, run_size size)
{
    return bent(place, role, border_bend(setting, size));
}

}  // namespace

TEST(border, every_row_of_the_table_at_full_size)
{
    for (const row & line : expected) {
        const location place =
            bordered({.top = 1000, .left = 1000, .height = 1000, .width = 1000}, location_role::place,
                     {.size = line.size, .square = line.square, .scattered = line.scattered}, run_size::full);
        SCOPED_TRACE(testing::Message() << static_cast<int>(line.size) << line.square << line.scattered);
        EXPECT_EQ(place.top, line.top);
        EXPECT_EQ(place.left, line.left);
        EXPECT_EQ(place.height, line.height);
        EXPECT_EQ(place.width, line.width);
    }
}

TEST(border, offsets_of_a_preview_are_fifteen_hundredths)
{
    const location place = bordered({.top = 100, .left = 100, .height = 100, .width = 100},
                                    location_role::place, {.size = border_size::large}, run_size::preview);
    EXPECT_EQ(place.top, 121);   // 83.5 + 37.05
    EXPECT_EQ(place.left, 112);  // 75 + 37.5, to even
    EXPECT_EQ(place.height, 84);
    EXPECT_EQ(place.width, 75);
}

TEST(border, huge_on_a_square_scatter_takes_six_tenths_of_the_top)
{
    const location place =
        bordered({.top = 500}, location_role::place,
                 {.size = border_size::huge, .square = true, .scattered = true}, run_size::full);
    EXPECT_EQ(place.top, 600);
}

TEST(border, gaps_and_cells_of_a_grid_scale_and_its_counts_stay)
{
    const location start = bordered({.top = 100, .left = 100, .height = 5, .width = 4},
                                    location_role::grid_start, {.size = border_size::huge}, run_size::full);
    EXPECT_EQ(start, (location{.top = 380, .left = 370, .height = 5, .width = 4}));
    const location cells = bordered({.top = 20, .left = 30, .height = 400, .width = 300},
                                    location_role::grid_cells, {.size = border_size::huge}, run_size::full);
    EXPECT_EQ(cells, (location{.top = 16, .left = 21, .height = 320, .width = 210}));
}
