#include "engine/layout/cell_geometry.h"

#include <algorithm>

namespace {

int column_step(const grid & layer)
{
    return layer.column_gap + layer.cell_width;
}

int row_step(const grid & layer)
{
    return layer.row_gap + layer.cell_height;
}

int left_of(const grid & layer, int column)
{
    return narrow(static_cast<long>(column) * column_step(layer) + layer.left);
}

int top_of(const grid & layer, int row)
{
    return narrow(static_cast<long>(row) * row_step(layer) + layer.top);
}

bool is_last_column(const grid & layer, int column)
{
    return column == layer.columns - 1;
}

int leaning(const grid & layer, int column, int rotation, row_lean & lean)
{
    if (is_last_column(layer, column) &&
        ((lean == row_lean::left && rotation < 0) || (lean == row_lean::right && rotation > 0)))
        rotation = -rotation;
    if (column != 0)
        return rotation;
    const row_lean own = rotation >= 0 ? row_lean::right : row_lean::left;
    if (lean != own) {
        lean = own;
        return rotation;
    }
    lean = own == row_lean::right ? row_lean::left : row_lean::right;
    return -rotation;
}

// Columns count as outer when the last one is reached, rows only beyond the last: photos of the bottom row
// may hang over it.
bool is_outer(const grid & layer, grid_position at)
{
    return at.row == 0 || at.column == 0 || (layer.columns != 0 && at.column + 1 == layer.columns) ||
           (layer.rows != 0 && at.row + 1 > layer.rows);
}

double scale_inside(const grid & layer, grid_position at, double scale)
{
    if (scale <= 1)
        return scale;
    if (is_outer(layer, at) || (at.span == cell_span::twice && at.column + 2 == layer.columns))
        return 1;
    return scale;
}

}  // namespace

grid grid_of(const location & first, const location & second, int margin)
{
    return {.top = narrow(first.top + margin),
            .left = narrow(first.left + margin),
            .rows = first.height,
            .columns = first.width,
            .row_gap = second.top,
            .column_gap = second.left,
            .cell_height = second.height,
            .cell_width = second.width};
}

bool row_ends(const grid & layer, int column, const grid_limits & limits)
{
    return (layer.columns != 0 && column >= layer.columns) || left_of(layer, column) > limits.right;
}

bool grid_ends(const grid & layer, int row, const grid_limits & limits)
{
    return (layer.rows != 0 && row >= layer.rows) || top_of(layer, row) > limits.bottom;
}

bool is_endless(const grid & layer)
{
    return (layer.columns == 0 && column_step(layer) <= 0) || (layer.rows == 0 && row_step(layer) <= 0);
}

bool fits_cell(const grid & layer, int photo_height, int photo_width)
{
    return layer.cell_height > layer.cell_width ? photo_height >= photo_width : photo_width >= photo_height;
}

bool has_right_neighbour(const grid & layer, int column)
{
    return column < layer.columns - 1;
}

shaken shaken_cell(const grid & layer, grid_position at, const shake & by, shake_switches allowed,
                   row_lean & lean)
{
    shaken cell{.scale = by.scale, .rotation = leaning(layer, at.column, by.rotation, lean)};
    const double fiftieth = std::max(layer.cell_height, layer.cell_width) / 50.0;
    cell.shift_top = nearest16(fiftieth * by.top);
    cell.shift_left = nearest16(fiftieth * by.left);
    if (!allowed.resize) {
        cell.scale = 1;
        if (!allowed.rotate)
            cell.shift_top = cell.shift_left = 0;
    }
    if (!allowed.rotate)
        cell.rotation = 0;
    cell.scale = scale_inside(layer, at, cell.scale);
    return cell;
}

rectangle upright_area(const grid & layer, grid_position at)
{
    const int doubled = 2 * layer.cell_width + layer.column_gap;
    return {.left = left_of(layer, at.column),
            .top = top_of(layer, at.row),
            .width = at.span == cell_span::twice ? narrow(doubled) : layer.cell_width,
            .height = layer.cell_height};
}

rectangle photo_area(const grid & layer, grid_position at, const shaken & by)
{
    rectangle area = upright_area(layer, at);
    area.height = nearest16(layer.cell_height * by.scale);
    if (at.span == cell_span::single)
        area.width = nearest16(layer.cell_width * by.scale);
    else if (by.rotation == 0)
        area.width = nearest16(2 * layer.cell_width * by.scale + layer.column_gap);
    else
        area.width = nearest16((2 * layer.cell_width + layer.column_gap) * by.scale);
    // An upright double cell stays where it is: its right part would cover the neighbour.
    if (by.rotation != 0 || at.span == cell_span::single) {
        area.top = narrow(area.top + by.shift_top);
        area.left = narrow(area.left + by.shift_left);
    }
    return area;
}

location location_of_cell(const rectangle & area, int rotation, int margin)
{
    return {.top = narrow(area.top - margin),
            .left = narrow(area.left - margin),
            .height = narrow(area.height),
            .width = narrow(area.width),
            .rotation = narrow(rotation)};
}
