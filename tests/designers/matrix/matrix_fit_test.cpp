#include "designers/matrix/matrix_fit.h"

#include "designers/matrix/matrix_borders.h"

#include <gtest/gtest.h>

namespace {

using enum poster_shape;

}  // namespace

TEST(fit_rows, gives_cells_the_shape_of_upright_photos)
{
    EXPECT_EQ(fitted_rows({.columns = 2}), (count_range{2, 2}));
    EXPECT_EQ(fitted_rows({.columns = 6}), (count_range{7, 7}));
    EXPECT_EQ(fitted_rows({.columns = 10}), (count_range{11, 12}));
    EXPECT_EQ(fitted_rows({.columns = 10, .photos = matrix_photos::both}), (count_range{11, 12}));
}

TEST(fit_rows, gives_cells_the_shape_of_lying_photos)
{
    EXPECT_EQ(fitted_rows({.columns = 4, .photos = matrix_photos::landscape}), (count_range{8, 10}));
}

TEST(fit_columns, is_the_same_with_the_directions_exchanged)
{
    EXPECT_EQ(fitted_columns({.rows = 2}), (count_range{2, 2}));
    EXPECT_EQ(fitted_columns({.rows = 4, .photos = matrix_photos::landscape, .poster = landscape}),
              (count_range{4, 5}));
    // 435 by 309 to 265 in 3000 less 220.
    EXPECT_EQ(fitted_columns({.rows = 4, .poster = landscape}), (count_range{8, 10}));
}

TEST(fit_rows, offers_one_count_at_least_from_one_up)
{
    const poster_borders none{.top = 0, .bottom = 0, .left = 0, .right = 0};
    EXPECT_EQ(fitted_rows({.columns = 1, .borders = none, .photos = matrix_photos::portrait}),
              (count_range{1, 1}));
    // Borders that leave no room, gaps that swallow the cells, cells of no width.
    EXPECT_EQ(fitted_rows({.borders = {.top = 2200, .bottom = 1800}}), (count_range{1, 1}));
    EXPECT_EQ(fitted_rows({.gap_v = -5000}), (count_range{1, 1}));
    EXPECT_EQ(fitted_rows({.columns = 9999}), (count_range{1, 1}));
    EXPECT_LE(fitted_rows({.columns = 500, .gap_v = 1, .gap_h = 0}).high, 999);
}

TEST(fit_borders, cuts_each_border_to_its_limit)
{
    const border_limits upright = border_limits_of(poster_shape::portrait);
    EXPECT_EQ(upright, (border_limits{2200, 1400}));
    EXPECT_EQ(border_limits_of(landscape), (border_limits{1400, 2200}));
    EXPECT_EQ(fitted_borders({.top = 2201, .bottom = 0, .left = 1401, .right = -1}, upright),
              (poster_borders{.top = 2200, .bottom = 0, .left = 1400, .right = 0}));
    EXPECT_EQ(
        fitted_borders({.top = 2201, .bottom = 0, .left = 1401, .right = 9}, border_limits_of(landscape)),
        (poster_borders{.top = 1400, .bottom = 0, .left = 1401, .right = 9}));
}

TEST(fit_borders, of_two_that_are_too_wide_together_the_wider_one_gives_way)
{
    const border_limits upright = border_limits_of(poster_shape::portrait);
    EXPECT_EQ(fitted_borders({.top = 1900, .bottom = 2150, .left = 1400, .right = 1000}, upright),
              (poster_borders{.top = 1900, .bottom = 2100, .left = 1300, .right = 1000}));
    EXPECT_EQ(fitted_borders({.top = 2000, .bottom = 2000, .left = 1000, .right = 1300}, upright),
              (poster_borders{.top = 2000, .bottom = 2000, .left = 1000, .right = 1300}));
}

TEST(equal_borders, go_as_far_as_each_limit_lets_them)
{
    const border_limits upright = border_limits_of(poster_shape::portrait);
    EXPECT_EQ(equal_borders(1500, upright),
              (poster_borders{.top = 1500, .bottom = 1500, .left = 1400, .right = 1400}));
    EXPECT_EQ(equal_borders(-5, upright), (poster_borders{.top = 0, .bottom = 0, .left = 0, .right = 0}));
}
