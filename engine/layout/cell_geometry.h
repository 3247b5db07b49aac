#pragma once

#include "designs/templates/location.h"
#include "engine/layout/shake_table.h"
#include "support/rectangle.h"

/// Where the cells of a grid layer stand. Pixels of the canvas, y down; positions, areas and shifts raise
/// overflow (6) where they leave 16 bits.

/// One layer of a grid template: two rows of the table.
struct grid {
    int top = 0, left = 0;      ///< corner of the first cell, bleed included
    int rows = 0, columns = 0;  ///< 0: until the canvas ends
    int row_gap = 0, column_gap = 0;
    int cell_height = 0, cell_width = 0;
};

grid grid_of(const location & first, const location & second, int margin);

/// Lower right end of the collage on the canvas: a row that begins beyond it isn't begun.
struct grid_limits {
    int right = 0, bottom = 0;
};

/// A photo that lies across may take two cells side by side.
enum class cell_span { single, twice };

/// A cell, or one with its right neighbour.
struct grid_position {
    int row = 0, column = 0;
    cell_span span = cell_span::single;
};

/// True when no cell follows at this column of a row, and no row at this row of the grid.
bool row_ends(const grid & layer, int column, const grid_limits & limits);
bool grid_ends(const grid & layer, int row, const grid_limits & limits);

/// True for a grid that goes on until the canvas ends but whose cells never come nearer to that end.
bool is_endless(const grid & layer);

/// True when a photo of that size lies as the cells do. A square one fits both.
bool fits_cell(const grid & layer, int photo_height, int photo_width);

/// True when a second cell stands right of this one. A grid without a count of columns has none.
bool has_right_neighbour(const grid & layer, int column);

/// What the template lets the shaking change.
struct shake_switches {
    bool resize = false, rotate = false;
};

/// The lean of the first cell of a row: the last one must not lean the same way.
enum class row_lean { left, right, none };

/// The shaking of one cell as it is drawn.
struct shaken {
    double scale = 1;
    int rotation = 0;
    int shift_top = 0, shift_left = 0;
};

/// Shakes a cell by a row of the table. `lean` is `none` at the start of each grid row.
shaken shaken_cell(const grid & layer, grid_position at, const shake & by, shake_switches allowed,
                   row_lean & lean);

/// The cell as it stands, unshaken: what a captioned card fills.
rectangle upright_area(const grid & layer, grid_position at);

/// The area that the photo is fitted to.
rectangle photo_area(const grid & layer, grid_position at, const shaken & by);

/// The photo as a location of a template, for designs made of a shaken grid; `margin` is the bleed.
location location_of_cell(const rectangle & area, int rotation, int margin);
