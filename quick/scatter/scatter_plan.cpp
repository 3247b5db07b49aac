#include "quick/scatter/scatter_plan.h"

#include "quick/scatter/scatter_tables.h"
#include "quick/template_text.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

constexpr int steepest = 35, tilt_step = 5;  // degrees
constexpr int last_left = 6;                 // of the tilts; upright shares it

struct cell {
    int top = 0, left = 0, height = 0, width = 0;
    std::size_t tilt = 0;  ///< index of the reach tables
};

std::size_t tilt_index(int degrees)
{
    int index = nearest((degrees + steepest) / static_cast<double>(tilt_step));
    if (index > last_left)
        --index;
    if (index < 0 || index >= scatter_tilts)
        throw platform_error(error_number::subscript, "A cell of a scatter is tilted too far.");
    return static_cast<std::size_t>(index);
}

cell cell_of(const std::vector<std::string> & fields)
{
    return {.top = number_at(fields, 1),
            .left = number_at(fields, 2),
            .height = number_at(fields, 3),
            .width = number_at(fields, 4),
            .tilt = tilt_index(number_at(fields, 5))};
}

// What is still to be turned.
struct turns {
    int tall, wide;  ///< cells that become so
};

enum class turn { none, to_wide, to_tall };

turn next_turn(const cell & place, turns & left)
{
    if (place.width < place.height && left.wide > 0) {
        --left.wide;
        return turn::to_wide;
    }
    if (place.width > place.height && left.tall > 0) {
        --left.tall;
        return turn::to_tall;
    }
    return turn::none;
}

// The corner of a turned cell, so that its middle stays about where it was.
cell turned(cell place, turn how)
{
    const double quarter = (how == turn::to_wide ? 1 : -1) * place.width / 4.0;
    place.top = nearest16(place.top + quarter);
    place.left = nearest16(place.left - quarter);
    return place;
}

// `place` has its new corner and its old sides.
void widen(scatter_extremes & reach, const cell & place, turn how)
{
    const scatter_reach & table = how == turn::to_wide ? turned_wide : turned_tall;
    const int side = how == turn::to_wide ? place.height : place.width;
    reach.min_top = std::min<int>(reach.min_top, nearest16(place.top + side * table.top[place.tilt]));
    reach.max_bottom =
        std::max<int>(reach.max_bottom, nearest16(place.top + side * table.bottom[place.tilt]));
    reach.min_left = std::min<int>(reach.min_left, nearest16(place.left + side * table.left[place.tilt]));
    reach.max_right = std::max<int>(reach.max_right, nearest16(place.left + side * table.right[place.tilt]));
}

std::string corner_text(const cell & place)
{
    return formatted(place.top, 2) + ":" + formatted(place.left, 2);
}

// The sides and the tilt stay as the file has them, a cell that isn't turned altogether.
std::string line_of(const std::vector<std::string> & fields, const cell & place, turn how)
{
    const std::string tail = ":" + fields[5] + ":-1:-1:0:";
    if (how == turn::none)
        return fields[1] + ":" + fields[2] + ":" + fields[3] + ":" + fields[4] + tail;
    return corner_text(place) + ":" + fields[4] + ":" + fields[3] + tail;
}

bool leaves(const scatter_extremes & reach, int by)
{
    return reach.min_top < -by || reach.min_left < -by || reach.max_bottom > poster_height + by ||
           reach.max_right > poster_width + by;
}

}  // namespace

scatter_layout scatter_plan(const std::vector<std::string> & scatter, const scatter_request & request,
                            const random_source & random)
{
    scatter_layout plan;
    turns left{.tall = std::max(request.wanted.along - request.offered.along, 0),
               .wide = std::max(request.wanted.cross - request.offered.cross, 0)};
    blank_run blanks = request.blanks;
    for (const std::string & line : scatter) {
        if (line.starts_with('#'))
            continue;
        const std::vector<std::string> fields = fields_of(line);
        cell place = cell_of(fields);
        const turn how = next_turn(place, left);
        if (how != turn::none) {
            place = turned(place, how);
            widen(plan.reach, place, how);
        }
        if (!is_blank(blanks))
            plan.lines.push_back(line_of(fields, place, how));
        next_line(blanks, random);
    }
    return plan;
}

least_border border_for(const scatter_extremes & reach)
{
    if (leaves(reach, 285))
        return least_border::large;
    if (leaves(reach, 185))
        return least_border::medium;
    return leaves(reach, 85) ? least_border::small : least_border::any;
}
