// What is drawn for a larger scale, brought down again, against what the scale of the layout draws.

#include "engine/pixels/brought_down.h"
#include "engine/pixels/card.h"
#include "engine/pixels/corners.h"
#include "engine/pixels/covering_plan.h"
#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_photo.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/soft_edge_paste.h"
#include "tests/pictures.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr rgb_triple poster_ground{230, 220, 210}, frame_ink{20, 30, 60};

/// Each pixel as a square of so many.
bitmap in_squares(const bitmap & image, int scale)
{
    return colored(image.width() * scale, image.height() * scale,
                   [&](int x, int y) { return seen(image, x / scale, y / scale); });
}

bitmap down(const bitmap & image, int scale)
{
    return brought_down(image, {.left = 0, .top = 0, .width = image.width(), .height = image.height()},
                        scale);
}

int largest_difference(const bitmap & one, const bitmap & other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto left = channels(one.row(y)), right = channels(other.row(y));
        for (std::size_t i = 0; i < left.size(); ++i)
            largest = std::max(largest, std::abs(left[i] - right[i]));
    }
    return largest;
}

/// Pixels, of the size given, that a drawing changes; and that of the drawing in squares.
template <typename Draw>
bitmap drawn_at(int scale, picture_size size, Draw draw)
{
    bitmap target = plain(size.width * scale, size.height * scale, poster_ground);
    draw(target, scale);
    return target;
}

long count_of(const bitmap & image, rgb_triple color)
{
    long count = 0;
    for (int y = 0; y < image.height(); ++y)
        count += std::ranges::count_if(image.row(y), [&](pixel each) { return rgb_triple(each) == color; });
    return count;
}

class larger_scale : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(larger_scale, a_frame_is_the_same_bands_in_more_pixels)
{
    for (const int rotation : {0, 10}) {
        const auto draw = [&](bitmap & target, int scale) {
            draw_frame(target, {.left = 9, .top = 7, .width = 20, .height = 12},
                       {.frame = 4, .frame_color = frame_ink, .scale = scale}, rotation);
        };
        const picture_size size{40, 30};
        EXPECT_TRUE(same(drawn_at(GetParam(), size, draw), in_squares(drawn_at(1, size, draw), GetParam())));
    }
}

TEST_P(larger_scale, a_shadow_fades_over_the_same_width)
{
    for (const int shadow : {3, 9, 20, 35}) {
        const auto draw = [&](bitmap & target, int scale) {
            draw_shadow(target, {.left = 5, .top = 5, .width = 80, .height = 60},
                        {.frame = 2, .shadow = shadow, .shadow_color = frame_ink, .scale = scale});
        };
        const picture_size size{130, 110};
        const bitmap own = drawn_at(1, size, draw), larger = drawn_at(GetParam(), size, draw);
        EXPECT_FALSE(same(own, plain(130, 110, poster_ground)));
        // Half a line at the corners, where the ends of the lines slope.
        EXPECT_LE(largest_difference(down(larger, GetParam()), own), 80) << shadow;
        // Within the bands there are no steps: each drawn line has a strength of its own.
        const int row = 40 * GetParam(), first = (5 + 80 + 2) * GetParam();
        int steps = 0;
        for (int x = first + 1; x < first + shadow * GetParam(); ++x)
            steps += seen(larger, x, row) != seen(larger, x - 1, row);
        EXPECT_GE(steps, std::min(shadow * GetParam(), 160) * 2 / 3 - 1) << shadow;
    }
}

TEST_P(larger_scale, soft_edges_fade_over_the_same_ring)
{
    const picture_size size{260, 240};
    const auto draw = [&](bitmap & target, int scale) {
        const bitmap photo = plain(220 * scale, 200 * scale, frame_ink);
        soft_edge_paste(target, photo, {.left = 20, .top = 20, .width = 220, .height = 200}, scale);
    };
    const bitmap own = drawn_at(1, size, draw), larger = drawn_at(GetParam(), size, draw);
    EXPECT_LE(largest_difference(down(larger, GetParam()), own), 4);
    EXPECT_EQ(seen(larger, 130 * GetParam(), 120 * GetParam()), frame_ink);
    EXPECT_EQ(seen(larger, 19 * GetParam(), 120 * GetParam()), poster_ground);
}

TEST_P(larger_scale, round_corners_cut_the_same_curve_in_finer_steps)
{
    const int scale = GetParam();
    for (const int side : {40, 100, 150, 250, 350, 500, 640}) {
        const auto cut = [&](int by) {
            bitmap photo = plain(side * by, side * by, frame_ink);
            const bitmap canvas = plain((side + 10) * by, (side + 10) * by, poster_ground);
            cut_corners(photo, canvas, {.left = 5, .top = 5, .width = side, .height = side}, by);
            return photo;
        };
        const bitmap own = cut(1), larger = cut(scale);
        const double cut_of_own = static_cast<double>(count_of(own, poster_ground)),
                     cut_of_larger = static_cast<double>(count_of(larger, poster_ground)) / (scale * scale);
        EXPECT_GT(cut_of_own, 0) << side;
        // The curve may pass half a pixel beside the steps of the table.
        EXPECT_NEAR(cut_of_larger, cut_of_own, side / 2.0) << side;
        // Whole squares alone would be no finer than the table.
        EXPECT_FALSE(same(larger, in_squares(own, scale))) << side;
    }
}

TEST_P(larger_scale, a_card_keeps_its_measures)
{
    const int scale = GetParam();
    const rectangle place = photo_on_card(90, 120);
    const bitmap photo = graded(place.width, place.height);
    const bitmap own = captioned_card({90, 120}, photo, poster_ground);
    EXPECT_TRUE(same(captioned_card({90, 120}, in_squares(photo, scale), poster_ground, scale),
                     in_squares(own, scale)));
}

TEST_P(larger_scale, a_photo_and_its_ornaments_stand_where_they_stood)
{
    const int scale = GetParam();
    const rectangle place{.left = 12, .top = 8, .width = 30, .height = 20};
    const bitmap photo = graded(30, 20);
    bitmap own = plain(60, 50, poster_ground), larger = plain(60 * scale, 50 * scale, poster_ground);
    draw_photo(own, in_squares(photo, 1), place, {.frame = 3, .frame_color = frame_ink});
    draw_photo(larger, in_squares(photo, scale), place,
               {.frame = 3, .frame_color = frame_ink, .scale = scale});
    EXPECT_TRUE(same(larger, in_squares(own, scale)));
}

TEST_P(larger_scale, a_shape_stands_where_it_stood)
{
    const int scale = GetParam();
    const bitmap mask = colored(20, 20, [](int x, int y) {
        return x > 4 && x < 15 && y > 2 && y < 17 ? rgb_triple{} : rgb_triple{255, 255, 255};
    });
    const auto painted = [&](int by) {
        bitmap canvas = plain(60 * by, 50 * by, poster_ground);
        const bitmap own_mask = in_squares(mask, by);
        draw_shape(canvas, {}, {.left = 12, .top = 8, .width = 20, .height = 20}, {.scale = by},
                   {.mask = &own_mask, .fill = frame_ink, .column = 30});
        return canvas;
    };
    EXPECT_TRUE(same(painted(scale), in_squares(painted(1), scale)));
    EXPECT_EQ(seen(painted(scale), 40 * scale, 20 * scale), frame_ink);
}

TEST_P(larger_scale, a_photo_shows_the_same_part_of_itself)
{
    // Long enough that the whole photo, at the larger scale, would have more pixels than a bitmap may.
    const scaling_plan plan = covering_plan({.width = 9000, .height = 900}, 900, 1200);
    const scaling_plan larger = enlarged(plan, GetParam() * 2);
    EXPECT_EQ(larger.wanted, enlarged(plan.wanted, GetParam() * 2));
    EXPECT_EQ(larger.scaled.width, plan.scaled.width * GetParam() * 2);
    EXPECT_TRUE(is_possible(larger));
}

INSTANTIATE_TEST_SUITE_P(scales, larger_scale, testing::ValuesIn(swept<int>({2, 3, 4})));
