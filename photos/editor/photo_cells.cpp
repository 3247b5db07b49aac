#include "photos/editor/photo_cells.h"

#include <algorithm>

namespace {

constexpr int cell_width = 72, cell_height = 80, short_side = 51, long_side = 68;
constexpr int surface_width = 732, surface_height = 492;
constexpr int rows = editable_photos / cells_in_a_row;

}  // namespace

box cell_place(int cell, orientation shape)
{
    const int left = cell % cells_in_a_row * cell_width, top = cell / cells_in_a_row * cell_height;
    if (shape == orientation::portrait)
        return {.left = left + 16, .top = top + 16, .width = short_side, .height = long_side};
    return {.left = left + 8, .top = top + 24, .width = long_side, .height = short_side};
}

orientation cell_shape(const box & place)
{
    return place.height > place.width ? orientation::portrait : orientation::landscape;
}

std::optional<int> cell_at(int x, int y)
{
    if (x < 0 || y < 0 || x >= surface_width || y >= surface_height)
        return std::nullopt;
    const int column = std::min(x / cell_width, cells_in_a_row - 1);
    return std::min(y / cell_height, rows - 1) * cells_in_a_row + column;
}

std::optional<int> cell_beside(int cell, picture_key direction)
{
    const int column = cell % cells_in_a_row, row = cell / cells_in_a_row;
    if (direction == picture_key::left && column > 0)
        return cell - 1;
    if (direction == picture_key::right && column < cells_in_a_row - 1)
        return cell + 1;
    if (direction == picture_key::up && row > 0)
        return cell - cells_in_a_row;
    if (direction == picture_key::down && row < rows - 1)
        return cell + cells_in_a_row;
    return std::nullopt;
}
