// Where a tilted photo comes to lie at a larger scale, measured in the picture.

#include "engine/photo/rotation_table.h"
#include "engine/pixels/brought_down.h"
#include "engine/pixels/rotation_numbers.h"
#include "tests/engine/tilt_stage.h"
#include "tests/pictures.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

constexpr rectangle wide{.left = 260, .top = 250, .width = 240, .height = 150},
    high{.left = 300, .top = 280, .width = 90, .height = 170};
constexpr int canvas_side = 800;

struct found_photo {
    picture_point middle;  ///< from the top left corner
    double degrees = 0;    ///< of its longer side, clockwise, from -90 to 90
    double area = 0;
};

/// The photo as a sheet of white on black: its middle, its slope and its area follow from where the white is.
found_photo found(const bitmap & canvas)
{
    double mass = 0, x = 0, y = 0, xx = 0, xy = 0, yy = 0;
    for (int row = 0; row < canvas.height(); ++row) {
        int column = 0;
        for (const pixel & each : canvas.row(canvas.height() - 1 - row)) {
            const double level = each.green / 254.0, right = column + 0.5, down = row + 0.5;
            mass += level;
            x += level * right;
            y += level * down;
            xx += level * right * right;
            xy += level * right * down;
            yy += level * down * down;
            ++column;
        }
    }
    const picture_point middle{.x = x / mass, .y = y / mass};
    const double spread_x = xx / mass - middle.x * middle.x, spread_y = yy / mass - middle.y * middle.y,
                 together = xy / mass - middle.x * middle.y;
    return {.middle = middle,
            .degrees = std::atan2(2 * together, spread_x - spread_y) / 2 * 180 / std::numbers::pi,
            .area = mass};
}

bitmap drawn(tilt_stage & stage, const rectangle & area, int rotation, int scale)
{
    stage.main.run.drawn_at = {.poster = scale, .samples = 1};
    stage.main.run.canvas = bitmap(canvas_side * scale, canvas_side * scale);
    stage.draw(plain(area.width * scale, area.height * scale, {255, 255, 255}), area, rotation);
    return std::move(stage.main.run.canvas);
}

/// The four corners of a photo whose sides are known.
std::array<picture_point, 4> corners_of(const found_photo & photo, const rectangle & area, double scale)
{
    const double along = std::max(area.width, area.height) * scale / 2,
                 across = std::min(area.width, area.height) * scale / 2;
    const double angle = photo.degrees * std::numbers::pi / 180;
    std::array<picture_point, 4> corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const double x = i % 2 == 0 ? along : -along, y = i < 2 ? across : -across;
        corners.at(i) = {.x = photo.middle.x + x * std::cos(angle) - y * std::sin(angle),
                         .y = photo.middle.y + x * std::sin(angle) + y * std::cos(angle)};
    }
    return corners;
}

double distance(const picture_point & one, const picture_point & other)
{
    return std::hypot(one.x - other.x, one.y - other.y);
}

/// The middle that the numbers of the rotation table give the photo.
picture_point middle_by_table(tilt_stage & stage, const rectangle & area, int rotation)
{
    const rotation_numbers numbers =
        scaled(numbers_of_section(stage.main, rotation_section(area.width, area.height, rotation)),
               reference_factor(area.width, area.height), 1);
    const picture_point middle =
        on_canvas(numbers, tilt_sizes_of(numbers, rotation), rotation,
                  {.x = numbers.put_left + area.width / 2.0, .y = numbers.put_top + area.height / 2.0});
    return {.x = area.left + middle.x, .y = area.top + middle.y};
}

}  // namespace

TEST(lay_tilted_larger, corners_lie_within_a_pixel_of_the_turn_about_the_same_middle)
{
    tilt_stage stage;
    stage.wear(0, 0);
    for (const rectangle & area : {wide, high})
        for (const int rotation : {-75, -30, -5, 5, 20, 45, 80})
            for (const int scale : {2, 3}) {
                const found_photo larger = found(drawn(stage, area, rotation, scale));
                const picture_point middle = middle_by_table(stage, area, rotation);
                const double slope = area.width > area.height ? rotation
                                     : rotation > 0           ? rotation - 90
                                                              : rotation + 90;
                const found_photo expected{.middle = {.x = middle.x * scale, .y = middle.y * scale},
                                           .degrees = slope};
                const auto corners = corners_of(larger, area, scale),
                           expected_corners = corners_of(expected, area, scale);
                for (std::size_t i = 0; i < corners.size(); ++i)
                    EXPECT_LT(distance(corners.at(i), expected_corners.at(i)), 1)
                        << rotation << " at scale " << scale << ", corner " << i;
                EXPECT_NEAR(larger.area / (area.width * area.height * scale * scale), 1, 0.005) << rotation;
            }
}

TEST(lay_tilted_larger, corners_lie_within_a_pixel_of_those_at_the_scale_of_the_layout)
{
    tilt_stage stage;
    stage.wear(0, 0);
    for (const rectangle & area : {wide, high})
        for (const int rotation : {-85, -45, -20, -5, 10, 30, 60}) {
            const auto own = corners_of(found(drawn(stage, area, rotation, 1)), area, 1),
                       larger = corners_of(found(drawn(stage, area, rotation, 2)), area, 2);
            for (std::size_t i = 0; i < own.size(); ++i)
                EXPECT_LT(distance({.x = larger.at(i).x / 2, .y = larger.at(i).y / 2}, own.at(i)), 1)
                    << rotation << ", corner " << i;
        }
}

TEST(lay_tilted_larger, frame_and_shadow_cover_as_much)
{
    struct worn_sizes {
        int frame, shadow;
    };
    for (const worn_sizes & worn :
         {worn_sizes{6, 0}, worn_sizes{6, 20}, worn_sizes{30, 0}, worn_sizes{30, 20}, worn_sizes{0, 12}}) {
        tilt_stage stage;
        const auto sums = [&](int rotation, int scale) {
            stage.wear(worn.frame, worn.shadow);
            stage.main.run.frame_color = {255, 0, 0};
            stage.main.run.shadow_color = {0, 0, 255};
            const bitmap canvas = drawn(stage, wide, rotation, scale);
            std::array<double, 2> sum{};
            for (int y = 0; y < canvas.height(); ++y)
                for (const pixel & each : canvas.row(y)) {
                    sum[0] += each.red;
                    sum[1] += each.blue - each.green;
                }
            return std::array{sum[0] / (scale * scale), sum[1] / (scale * scale)};
        };
        for (const int rotation : {-25, 5, 10, 40}) {
            const std::array own = sums(rotation, 1), larger = sums(rotation, 2);
            // At the layout's own scale the shadow lies on a line of the frame, on two sides.
            const bool is_on_frame = rotation >= 10 && worn.frame == 6 && worn.shadow > 0;
            const double line = is_on_frame ? (wide.width + wide.height) * 255.0 * 200 / 256 : 0;
            EXPECT_NEAR((larger[0] - line) / own[0], 1, 0.01) << worn.frame << ", " << rotation;
            EXPECT_NEAR(larger[1] + line, own[1], std::max(own[1] * 0.03, wide.width * 255 * 0.5))
                << worn.shadow << ", " << rotation;
        }
    }
}

TEST(lay_tilted_larger, soft_photos_fade_as_they_did)
{
    tilt_stage stage;
    stage.wear(0, 0);
    stage.main.chkSoftEdge.tick(true);
    for (const int rotation : {-35, 15}) {
        const found_photo own = found(drawn(stage, wide, rotation, 1)),
                          larger = found(drawn(stage, wide, rotation, 3));
        EXPECT_NEAR(larger.area / 9 / own.area, 1, 0.01);
        EXPECT_LT(distance({.x = larger.middle.x / 3, .y = larger.middle.y / 3}, own.middle), 1);
    }
}

TEST(lay_tilted_larger, a_rotation_without_numbers_draws_nothing)
{
    tilt_stage stage;
    stage.wear(5, 5);
    EXPECT_TRUE(same(drawn(stage, wide, 7, 2), bitmap(2 * canvas_side, 2 * canvas_side)));
}
