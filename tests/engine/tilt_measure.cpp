#include "tests/engine/tilt_measure.h"

#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "tests/pictures.h"

#include <cmath>
#include <numbers>

namespace {

constexpr int channel_count = sizeof(pixel);

// Each channel shows one thing, on a black canvas: green the photo, blue photo and frame, red the shadow.
constexpr rgb_triple measured_color{.red = 0, .green = 255, .blue = 255};
constexpr rgb_triple measured_frame{.red = 0, .green = 0, .blue = 255};
constexpr rgb_triple shadow_color{.red = 255, .green = 0, .blue = 0};

enum class channel { blue = 0, green = 1, red = 2 };

constexpr int reach = 5;  // pixels looked at on either side of an edge

/// Pixels round the photo on the canvas: frame and shadow, and the way that the corner of a wide frame moves
/// the photo.
int room_of(const tilted_cell & cell)
{
    return cell.size == run_size::preview ? 40 : cell.frame * 3 + cell.shadow + 20;
}

picture_point turned_by(const picture_point & vector, int clockwise)
{
    const double angle = clockwise * std::numbers::pi / 180;
    return {.x = vector.x * std::cos(angle) - vector.y * std::sin(angle),
            .y = vector.x * std::sin(angle) + vector.y * std::cos(angle)};
}

picture_point sum(const picture_point & one, const picture_point & other)
{
    return {.x = one.x + other.x, .y = one.y + other.y};
}

/// A rectangle that is turned about its corner, grown by so many pixels to each side.
four_corners turned_rectangle(const picture_point & corner, const tilted_cell & cell, double before,
                              double behind)
{
    const auto at = [&](double x, double y) {
        return sum(corner, turned_by({.x = x, .y = y}, cell.rotation));
    };
    return {at(-before, -before), at(cell.width + behind, -before),
            at(cell.width + behind, cell.height + behind), at(-before, cell.height + behind)};
}

int value(const bitmap & image, int x, int y, channel shown)
{
    const int at = x * channel_count + static_cast<int>(shown);
    return channels(image.row(image.height() - 1 - y))[static_cast<std::size_t>(at)];
}

double total(const bitmap & image, channel shown)
{
    double found = 0;
    for (int y = 0; y < image.height(); ++y) {
        const std::span<const std::uint8_t> row = channels(image.row(y));
        for (std::size_t i = static_cast<std::size_t>(shown); i < row.size(); i += channel_count)
            found += row[i];
    }
    return found;
}

/// A straight edge: a x + b y = c, with (a, b) of length 1.
struct edge_line {
    double a = 0, b = 0, c = 0;
};

/// The edge near the line from one corner to the next, with the figure on its right hand. Across a sharp or
/// smoothed edge the sum of the cover tells where it runs, to a part of a pixel; a straight line is laid
/// through many of these.
edge_line found_edge(const bitmap & canvas, channel shown, const picture_point & from,
                     const picture_point & to)
{
    const bool flat = std::fabs(to.x - from.x) >= std::fabs(to.y - from.y);
    const auto turned = [&](const picture_point & point) {
        return flat ? point : picture_point{.x = point.y, .y = point.x};
    };
    const picture_point start = turned(from), end = turned(to);
    const bool inside_behind =
        flat == (end.x > start.x);  // the figure lies where the second coordinate is larger
    const double middle = (start.x + end.x) / 2, half = std::fabs(end.x - start.x) / 4;
    double count = 0, sum_x = 0, sum_y = 0, sum_xx = 0, sum_xy = 0;
    for (int x = static_cast<int>(std::ceil(middle - half)); x + 1 <= middle + half; ++x) {
        const double y = start.y + (x + 0.5 - start.x) * (end.y - start.y) / (end.x - start.x);
        const int low = static_cast<int>(std::floor(y)) - reach, high = low + 2 * reach + 1;
        const int full = flat ? value(canvas, x, inside_behind ? high - 1 : low, shown)
                              : value(canvas, inside_behind ? high - 1 : low, x, shown);
        double cover = 0;
        for (int across = low; across < high; ++across)
            cover += value(canvas, flat ? x : across, flat ? across : x, shown) / std::max(1.0 * full, 1.0);
        const double edge = inside_behind ? high - cover : low + cover;
        count += 1;
        sum_x += x + 0.5;
        sum_y += edge;
        sum_xx += (x + 0.5) * (x + 0.5);
        sum_xy += (x + 0.5) * edge;
    }
    const double slope = (count * sum_xy - sum_x * sum_y) / (count * sum_xx - sum_x * sum_x);
    const double offset = (sum_y - slope * sum_x) / count, length = std::hypot(slope, 1);
    // y = slope x + offset, the coordinates swapped for a steep edge.
    return flat ? edge_line{.a = -slope / length, .b = 1 / length, .c = offset / length}
                : edge_line{.a = 1 / length, .b = -slope / length, .c = offset / length};
}

picture_point crossing(const edge_line & one, const edge_line & other)
{
    const double divisor = one.a * other.b - other.a * one.b;
    return {.x = (one.c * other.b - other.c * one.b) / divisor,
            .y = (one.a * other.c - other.a * one.c) / divisor};
}

double distance(const edge_line & line, const picture_point & point)
{
    return std::fabs(line.a * point.x + line.b * point.y - line.c);
}

picture_point middle_of(const picture_point & one, const picture_point & other)
{
    return {.x = (one.x + other.x) / 2, .y = (one.y + other.y) / 2};
}

/// True when the point lies in the figure, or within so many pixels of it.
bool inside(const four_corners & corners, const picture_point & point, double slack)
{
    for (std::size_t i = 0; i < 4; ++i) {
        const picture_point &from = corners[i], &to = corners[(i + 1) % 4];
        const double side = std::hypot(to.x - from.x, to.y - from.y);
        if (((to.x - from.x) * (point.y - from.y) - (to.y - from.y) * (point.x - from.x)) / side < -slack)
            return false;
    }
    return true;
}

/// The sum of the shadow's colour where it is drawn upright.
double whole_shadow(tilt_stage & stage, const tilted_cell & cell, bool framed_early)
{
    const int room = room_of(cell);
    bitmap ground(cell.width + 2 * room, cell.height + 2 * room);
    ornaments worn = stage.worn(cell.rotation);
    const rectangle photo{.left = room, .top = room, .width = cell.width, .height = cell.height};
    const int border = framed_early ? cell.frame : 0;
    if (framed_early)
        worn.frame = 0;
    draw_frame(ground, photo, worn, cell.rotation);
    draw_shadow(
        ground,
        {.left = room, .top = room, .width = cell.width + 2 * border, .height = cell.height + 2 * border},
        worn);
    return total(ground, channel::red);
}

struct staged_tilt {
    int left = 0, top = 0;
    bitmap canvas;
};

/// A canvas that holds the turned photo with room round it.
staged_tilt staged(const tilted_cell & cell)
{
    const four_corners corners = turned_rectangle({}, cell, 0, 0);
    picture_point low{}, high{};
    for (const picture_point & corner : corners) {
        low = {.x = std::min(low.x, corner.x), .y = std::min(low.y, corner.y)};
        high = {.x = std::max(high.x, corner.x), .y = std::max(high.y, corner.y)};
    }
    const int around = room_of(cell);
    return {.left = around - static_cast<int>(low.x),
            .top = around - static_cast<int>(low.y),
            .canvas = bitmap(static_cast<int>(high.x - low.x) + 2 * around,
                             static_cast<int>(high.y - low.y) + 2 * around)};
}

void draw(tilt_stage & stage, const tilted_cell & cell, staged_tilt & scene)
{
    stage.main.in_preview = cell.size == run_size::preview;
    stage.wear(cell.frame, cell.shadow);
    stage.main.run.frame_color = measured_frame;
    stage.main.run.shadow_color = shadow_color;
    stage.main.run.canvas = std::move(scene.canvas);
    stage.draw(plain(cell.width, cell.height, measured_color),
               {.left = scene.left, .top = scene.top, .width = cell.width, .height = cell.height},
               cell.rotation);
    scene.canvas = std::move(stage.main.run.canvas);
    stage.wear(cell.frame, cell.shadow);
}

/// Stripes that every turn would blur.
void stripe(bitmap & canvas)
{
    for (int y = 0; y < canvas.height(); ++y) {
        int x = y;
        for (std::uint8_t & byte : channels(canvas.row(y)))
            byte = x++ / 5 % 2 == 0 ? 60 : 200;
    }
}

int changed_outside(const bitmap & before, const bitmap & after, const four_corners & figure)
{
    int changed = 0;
    for (int y = 0; y < before.height(); ++y) {
        const std::span<const std::uint8_t> one = channels(before.row(y)), other = channels(after.row(y));
        for (std::size_t i = 0; i < one.size(); ++i) {
            const std::size_t x = i / channel_count;
            if (one[i] != other[i] &&
                !inside(figure, {.x = static_cast<double>(x) + 0.5, .y = before.height() - y - 0.5}, 3.5))
                ++changed;
        }
    }
    return changed;
}

void measure_sides(const bitmap & canvas, const four_corners & outer, tilt_findings & found)
{
    std::array<edge_line, 4> photo, frame;
    for (std::size_t i = 0; i < 4; ++i) {
        photo[i] = found_edge(canvas, channel::green, found.expected[i], found.expected[(i + 1) % 4]);
        frame[i] = found_edge(canvas, channel::blue, outer[i], outer[(i + 1) % 4]);
    }
    for (std::size_t i = 0; i < 4; ++i)
        found.drawn[i] = crossing(photo[(i + 3) % 4], photo[i]);
    for (std::size_t i = 0; i < 4; ++i)
        found.frame_widths[i] = distance(frame[i], middle_of(found.drawn[i], found.drawn[(i + 1) % 4]));
}

}  // namespace

tilt_findings measured(tilt_stage & stage, const tilted_cell & cell)
{
    staged_tilt scene = staged(cell);
    draw(stage, cell, scene);
    const int frame = stage.frame, shadow = stage.shadow;
    // A wide frame is drawn first: then the frame's corner is the one that stays.
    const bool framed_early = frame - (cell.rotation < 10 ? 1 : 0) > 12;
    const double early = framed_early ? cell.frame : 0;
    const picture_point corner = sum({.x = scene.left - early, .y = scene.top - early},
                                     turned_by({.x = early, .y = early}, cell.rotation));
    tilt_findings found{.expected = turned_rectangle(corner, cell, 0, 0), .drawn = {}};
    measure_sides(scene.canvas, turned_rectangle(corner, cell, frame, frame), found);
    const int full =
        value(scene.canvas, static_cast<int>(middle_of(found.expected[0], found.expected[2]).x),
              static_cast<int>(middle_of(found.expected[0], found.expected[2]).y), channel::green);
    found.photo_share = total(scene.canvas, channel::green) / (full * 1.0 * cell.width * cell.height);
    const double shade = whole_shadow(stage, cell, framed_early);
    found.shadow_share = shade > 0 ? total(scene.canvas, channel::red) / shade : 1;
    staged_tilt striped = staged(cell);
    stripe(striped.canvas);
    const bitmap before = copied(striped.canvas, 0, 0, striped.canvas.width(), striped.canvas.height());
    draw(stage, cell, striped);
    found.touched_outside = changed_outside(before, striped.canvas,
                                            turned_rectangle(corner, cell, frame + 1, frame + shadow + 1));
    return found;
}

double corner_error(const tilt_findings & found, std::size_t corner)
{
    return std::hypot(found.drawn[corner].x - found.expected[corner].x,
                      found.drawn[corner].y - found.expected[corner].y);
}

std::string told(const tilted_cell & cell)
{
    return std::to_string(cell.width) + " by " + std::to_string(cell.height) + " at " +
           std::to_string(cell.rotation) + ", frame " + std::to_string(cell.frame) + ", shadow " +
           std::to_string(cell.shadow) + (cell.size == run_size::preview ? ", preview" : "");
}
