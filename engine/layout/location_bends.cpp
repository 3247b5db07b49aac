#include "engine/layout/location_bends.h"

namespace {

constexpr double preview_place_divisor = 7;
constexpr double preview_cell_divisor = 6.6;
constexpr int rows_per_layer = 2;

int16 result_of(const bend & by, int measure)
{
    return nearest16(by.factor * measure + by.offset);
}

}  // namespace

location_role role_of(layout style, int index)
{
    if (style == layout::places)
        return location_role::place;
    return index % rows_per_layer == 0 ? location_role::grid_start : location_role::grid_cells;
}

location bent(const location & place, location_role role, const location_bend & by)
{
    location result = place;
    if (role == location_role::grid_cells) {
        // A gap is a distance: moving the grid doesn't widen it.
        result.top = nearest16(by.top.factor * place.top);
        result.left = nearest16(by.left.factor * place.left);
    } else {
        result.top = result_of(by.top, place.top);
        result.left = result_of(by.left, place.left);
    }
    if (role != location_role::grid_start) {
        result.height = result_of(by.height, place.height);
        result.width = result_of(by.width, place.width);
    }
    return result;
}

location scaled_to_preview(const location & place, location_role role)
{
    const double side = role == location_role::grid_cells ? preview_cell_divisor : preview_place_divisor;
    location result = place;
    result.top = nearest16(place.top / preview_place_divisor);
    result.left = nearest16(place.left / preview_place_divisor);
    if (role != location_role::grid_start) {
        result.height = nearest16(place.height / side);
        result.width = nearest16(place.width / side);
    }
    return result;
}

location moved(const location & place, location_role role, int by)
{
    const double offset = by;
    return bent(place, role, {.top{.offset = offset}, .left{.offset = offset}, .height{}, .width{}});
}

location framed_inside(const location & place, int frame)
{
    location result = place;
    result.top = narrow(place.top + frame);
    result.left = narrow(place.left + frame);
    result.height = narrow(place.height - 2 * frame);
    result.width = narrow(place.width - 2 * frame);
    return result;
}

location softened(const location & place, location_role role, run_size size)
{
    const int ring = size == run_size::full ? 20 : 3;
    location result = place;
    // Between two cells lie two rings, one of each.
    const int before = role == location_role::grid_cells ? 2 * ring : ring;
    result.top = narrow(place.top - before);
    result.left = narrow(place.left - before);
    if (role != location_role::grid_start) {
        result.height = narrow(place.height + 2 * ring);
        result.width = narrow(place.width + 2 * ring);
    }
    return result;
}

void drop_layer(location_table & table)
{
    for (int i = rows_per_layer; i < table.count; ++i)
        table[i - rows_per_layer] = table[i];
    table.count = narrow(table.count - rows_per_layer);
}
