#include "tools/rotate_table/table_search.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int long_side = 450, short_side = 300;  // of the photo that the numbers are made for

// What has to fit round its upper left corner: frames and shadows. A preview decides it, where the numbers
// are divided by up to 5 and a cell may be three times as long as it is high.
constexpr double reach_before = 65, reach_along = 630, reach_across = 460;

constexpr int play = 6;          // pixels between what has to fit and the edge of the area
constexpr int sizes_tried = 15;  // further pixels that each side of the area may have
constexpr std::size_t finalists = 6000;
constexpr double far_scale = 64;  // shows the error that grows with the photo

struct bounds {
    double left = 0, top = 0, right = 0, bottom = 0;
};

/// Of the turned reach, from the photo's corner, y down.
bounds turned_bounds(lying photo, int rotation)
{
    const double along = photo == lying::landscape ? reach_along : reach_across;
    const double down = photo == lying::landscape ? reach_across : reach_along;
    const double angle = rotation * std::numbers::pi / 180;
    bounds found{.left = 1e9, .top = 1e9, .right = -1e9, .bottom = -1e9};
    for (double x : {-reach_before, along})
        for (double y : {-reach_before, down}) {
            const double turned_x = x * std::cos(angle) - y * std::sin(angle);
            const double turned_y = x * std::sin(angle) + y * std::cos(angle);
            found = {.left = std::min(found.left, turned_x),
                     .top = std::min(found.top, turned_y),
                     .right = std::max(found.right, turned_x),
                     .bottom = std::max(found.bottom, turned_y)};
        }
    return found;
}

rotation_numbers area(const bounds & reach, int left, int top, int right, int bottom)
{
    rotation_numbers made;
    made.grab_left = made.paste_left = static_cast<int>(std::ceil(-reach.left)) + play + left;
    made.grab_top = made.paste_top = static_cast<int>(std::ceil(-reach.top)) + play + top;
    made.grab_width = made.grab_left + static_cast<int>(std::ceil(reach.right)) + play + right;
    made.grab_height = made.grab_top + static_cast<int>(std::ceil(reach.bottom)) + play + bottom;
    return made;
}

/// Where the photo's corner lies in the turned area, from its top.
picture_point put_place(const rotation_numbers & numbers, const tilt_sizes & sizes, int rotation)
{
    const picture_point place =
        turned_point(sizes.grabbed, rotation,
                     {.x = static_cast<double>(numbers.grab_left),
                      .y = static_cast<double>(sizes.grabbed.height - numbers.grab_top)});
    return {.x = place.x, .y = sizes.turned.height - place.y};
}

void copy_from(rotation_numbers & numbers, int left, int top)
{
    numbers.copy_left = left;
    numbers.copy_top = top;
    numbers.copy_right = left + numbers.grab_width;
    numbers.copy_bottom = top + numbers.grab_height;
}

/// The numbers with the photo at that place and the copy that puts its corner right.
rotation_numbers completed(rotation_numbers numbers, const tilt_sizes & sizes, int rotation, int put_left,
                           int put_top)
{
    numbers.put_left = put_left;
    numbers.put_top = put_top;
    copy_from(numbers, 0, 0);
    const picture_point corner = on_canvas(
        numbers, sizes, rotation, {.x = static_cast<double>(put_left), .y = static_cast<double>(put_top)});
    copy_from(numbers, static_cast<int>(std::lround(corner.x)), static_cast<int>(std::lround(corner.y)));
    return numbers;
}

double squared(const picture_point & error)
{
    return error.x * error.x + error.y * error.y;
}

bool within(double low, double value, double high)
{
    return low <= value && value <= high;
}

bool holds_scaled(const rotation_numbers & numbers, lying photo, int rotation, double scale)
{
    const tilt_sizes sizes = tilt_sizes_of(numbers, rotation);
    const double along = scale * (photo == lying::landscape ? reach_along : reach_across);
    const double down = scale * (photo == lying::landscape ? reach_across : reach_along);
    const double before = scale * reach_before;
    if (numbers.copy_left < 0 || numbers.copy_top < 0 || numbers.copy_right > sizes.back.width ||
        numbers.copy_bottom > sizes.back.height)
        return false;
    for (double x : {-before, along})
        for (double y : {-before, down}) {
            const picture_point turned{.x = numbers.put_left + x, .y = numbers.put_top + y};
            const picture_point back = on_canvas(numbers, sizes, rotation, turned);
            if (!within(0, turned.x, sizes.turned.width) || !within(0, turned.y, sizes.turned.height) ||
                !within(0, back.x + numbers.paste_left, numbers.copy_right - numbers.copy_left) ||
                !within(0, back.y + numbers.paste_top, numbers.copy_bottom - numbers.copy_top))
                return false;
        }
    return true;
}

struct rated_numbers {
    double fault = 0;
    rotation_numbers numbers;
};

/// A first judgement of an area: the photo as it is, in the four previews, and how both errors grow.
double quick_fault(const rotation_numbers & numbers, int rotation)
{
    const double corner =
        squared(corner_error(numbers, rotation, {.factor = far_scale})) / (far_scale * far_scale);
    const double ground =
        squared(ground_error(numbers, rotation, {.factor = far_scale})) / (far_scale * far_scale);
    double fault = 6 * corner + 4 * ground;
    for (int divisor = 1; divisor <= 5; ++divisor)
        fault += squared(corner_error(numbers, rotation, {.divisor = divisor}));
    return fault;
}

/// The sum over all scalings, or, once that is reached, something from `limit` up. Large errors count for
/// much more: none should come near three pixels, and half should stay within one.
double full_fault(const rotation_numbers & numbers, int rotation, const std::vector<scaling> & scalings,
                  double limit)
{
    double fault = 0;
    for (const scaling & used : scalings) {
        if (fault >= limit)
            break;
        const double corner = squared(corner_error(numbers, rotation, used));
        const double ground = squared(ground_error(numbers, rotation, used));
        fault +=
            used.weight * (corner + 0.6 * corner * corner * corner + 0.1 * ground + 0.02 * ground * ground);
    }
    return fault;
}

/// The areas that promise most, with the photo's place in each.
std::vector<rated_numbers> promising(lying photo, int rotation)
{
    const bounds reach = turned_bounds(photo, rotation);
    std::vector<rated_numbers> found;
    for (int index = 0; index < sizes_tried * sizes_tried * sizes_tried * sizes_tried; ++index) {
        const int more[4] = {index % sizes_tried, index / sizes_tried % sizes_tried,
                             index / (sizes_tried * sizes_tried) % sizes_tried,
                             index / (sizes_tried * sizes_tried * sizes_tried)};
        const rotation_numbers grabbed = area(reach, more[0], more[1], more[2], more[3]);
        const tilt_sizes sizes = tilt_sizes_of(grabbed, rotation);
        const picture_point place = put_place(grabbed, sizes, rotation);
        const int put_left = static_cast<int>(std::floor(place.x)),
                  put_top = static_cast<int>(std::floor(place.y));
        for (int side = 0; side < 4; ++side) {
            const rotation_numbers numbers =
                completed(grabbed, sizes, rotation, put_left + side % 2, put_top + side / 2);
            if (holds_scaled(numbers, photo, rotation, 1))
                found.push_back({.fault = quick_fault(numbers, rotation), .numbers = numbers});
        }
    }
    const auto better = [](const rated_numbers & one, const rated_numbers & other) {
        return one.fault < other.fault;
    };
    std::ranges::stable_sort(found, better);
    found.resize(std::min(found.size(), finalists));
    return found;
}

}  // namespace

std::vector<scaling> usual_scalings()
{
    std::vector<scaling> found{{.factor = 1, .weight = 12}};
    for (int divisor = 2; divisor <= 5; ++divisor)
        found.push_back({.factor = 1, .divisor = divisor, .weight = 30});
    for (int side = 310; side <= 1020; side += 10)
        found.push_back({.factor = side / static_cast<double>(short_side)});
    for (int side = 460; side <= 1020; side += 10)
        found.push_back({.factor = side / static_cast<double>(long_side)});
    return found;
}

picture_point corner_error(const rotation_numbers & numbers, int rotation, const scaling & used)
{
    const rotation_numbers now = scaled(numbers, used.factor, used.divisor);
    return on_canvas(now, tilt_sizes_of(now, rotation), rotation,
                     {.x = static_cast<double>(now.put_left), .y = static_cast<double>(now.put_top)});
}

picture_point ground_error(const rotation_numbers & numbers, int rotation, const scaling & used)
{
    const rotation_numbers now = scaled(numbers, used.factor, used.divisor);
    const tilt_sizes sizes = tilt_sizes_of(now, rotation);
    const picture_point back = on_canvas(now, sizes, rotation, put_place(now, sizes, rotation));
    return {.x = back.x + now.paste_left - now.grab_left, .y = back.y + now.paste_top - now.grab_top};
}

bool holds_all(const rotation_numbers & numbers, lying photo, int rotation)
{
    return std::ranges::all_of(usual_scalings(), [&](const scaling & used) {
        return holds_scaled(scaled(numbers, used.factor, used.divisor), photo, rotation,
                            used.factor / used.divisor);
    });
}

rotation_numbers searched_numbers(lying photo, int rotation)
{
    const std::vector<scaling> scalings = usual_scalings();
    rated_numbers best{.fault = 1e18, .numbers = {}};
    for (const rated_numbers & start : promising(photo, rotation))
        for (int step = 0; step < 9; ++step) {
            rotation_numbers numbers = start.numbers;
            copy_from(numbers, numbers.copy_left + step % 3 - 1, numbers.copy_top + step / 3 - 1);
            const double fault = full_fault(numbers, rotation, scalings, best.fault);
            if (fault < best.fault && holds_all(numbers, photo, rotation))
                best = {.fault = fault, .numbers = numbers};
        }
    return best.numbers;
}

std::vector<int> table_rotations()
{
    std::vector<int> found;
    for (int rotation = -90; rotation <= 90; rotation += 5)
        if (rotation != 0)
            found.push_back(rotation);
    return found;
}

std::string section_of(lying photo, int rotation)
{
    return rotation_section(photo == lying::landscape ? 2 : 1, photo == lying::landscape ? 1 : 2, rotation);
}
