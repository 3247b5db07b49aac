#pragma once

#include "photos/lists/photo_table.h"
#include "support/forms.h"

#include <optional>

/// The geometry of the list editor: 60 cells, 10 a row, numbered row by row, in pixels of their surface.

inline constexpr int cells_in_a_row = 10;

/// Where the picture of a cell stands.
box cell_place(int cell, orientation shape);

/// A cell counts as portrait when it is higher than wide.
orientation cell_shape(const box & place);

/// The cell at a point: a cell takes 72 by 80 pixels, those of the last column and row reach to the edge.
/// Nothing outside the surface.
std::optional<int> cell_at(int x, int y);

/// The cell beside another in the direction of an arrow key, nothing beyond the edge.
std::optional<int> cell_beside(int cell, picture_key direction);
