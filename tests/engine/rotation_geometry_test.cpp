#include "tests/engine/tilt_measure.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::vector<int> all_rotations()
{
    std::vector<int> found;
    for (int rotation = -90; rotation <= 90; rotation += 5)
        if (rotation != 0)
            found.push_back(rotation);
    return found;
}

struct sides {
    int longer = 0, shorter = 0;
};

tilted_cell cell_of(const sides & photo, bool wide, int rotation, int frame, int shadow, run_size size)
{
    return {.width = wide ? photo.longer : photo.shorter,
            .height = wide ? photo.shorter : photo.longer,
            .rotation = rotation,
            .frame = frame,
            .shadow = shadow,
            .size = size};
}

/// What a photo's frame should be wide; one pixel more where the turned area draws it.
void expect_whole(const tilted_cell & cell, const tilt_findings & found, int frame)
{
    for (double width : found.frame_widths) {
        EXPECT_GT(width, frame - 0.5) << told(cell);
        EXPECT_LT(width, frame + 1.5) << told(cell);
    }
    EXPECT_NEAR(found.photo_share, 1, 0.02) << told(cell);
    EXPECT_NEAR(found.shadow_share, 1, 0.04) << told(cell);
    EXPECT_EQ(found.touched_outside, 0) << told(cell);
}

/// Measures a cell, adds its four errors and holds the limits of each single photo.
void measure(tilt_stage & stage, const tilted_cell & cell, std::vector<double> & errors)
{
    const tilt_findings found = measured(stage, cell);
    for (std::size_t corner = 0; corner < 4; ++corner) {
        errors.push_back(corner_error(found, corner));
        EXPECT_LE(errors.back(), 3) << told(cell) << ", corner " << corner << ": ("
                                    << found.drawn[corner].x - found.expected[corner].x << ", "
                                    << found.drawn[corner].y - found.expected[corner].y << ")";
    }
    const int frame = cell.size == run_size::full ? cell.frame : cell.frame < 1 ? 0 : cell.frame / 6 + 1;
    expect_whole(cell, found, frame);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

constexpr int frames[] = {0, 1, 10, 60, 4, 14, 7, 30, 18};
constexpr int shadows[] = {0, 50, 10, 20, 5};

}  // namespace

TEST(rotation_geometry, full_size_photos_lie_within_three_pixels_of_their_place_and_half_of_them_within_one)
{
    constexpr sides photos[] = {{150, 150}, {210, 150}, {300, 200}, {260, 160}, {450, 150}, {180, 170},
                                {400, 310}, {240, 230}, {520, 180}, {330, 220}, {200, 190}};
    tilt_stage stage;
    std::vector<double> errors;
    std::size_t turn = 0;
    for (int rotation : all_rotations())
        for (bool wide : {true, false}) {
            if (turn % sweep_stride == 0)
                measure(stage,
                        cell_of(photos[turn % 11], wide, rotation, frames[turn % 9], shadows[turn % 5],
                                run_size::full),
                        errors);
            ++turn;
        }
    for (int rotation : {-75, -10, 20, 45})
        measure(stage, cell_of({900, 640}, rotation > 0, rotation, 26, 30, run_size::full), errors);
    EXPECT_LE(median(errors), 1);
}

TEST(rotation_geometry, previewed_photos_lie_as_near_in_the_previews_own_pixels)
{
    // A cell of 150 to 900 pixels is a seventh of that in a preview.
    constexpr sides photos[] = {{21, 21}, {45, 30},  {60, 57},  {75, 50},  {92, 60},
                                {99, 21}, {120, 62}, {129, 40}, {129, 129}};
    tilt_stage stage;
    std::vector<double> errors;
    std::size_t turn = 0;
    for (int rotation : all_rotations())
        for (bool wide : {true, false})
            for (int i = 0; i < 2; ++i) {
                measure(stage,
                        cell_of(photos[turn % 9], wide, rotation, frames[turn / 9 % 9], shadows[turn % 5],
                                run_size::preview),
                        errors);
                ++turn;
            }
    EXPECT_LE(median(errors), 1);
}
