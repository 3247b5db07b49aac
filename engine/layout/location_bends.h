#pragma once

#include "designs/templates/location.h"
#include "designs/templates/run_size.h"

/// What a run does to the locations of a template before they are drawn. In a grid template the rows come in
/// pairs: the first holds where the grid starts and how many cells it has, the second its gaps and the size
/// of a cell. Starts are moved, gaps and cells are scaled, counts stay. All results are rounded to nearest,
/// ties to even, and raise overflow (6) beyond 16 bits.

/// What a row of the table is.
enum class location_role { place, grid_start, grid_cells };

enum class layout { places, grids };

/// The role of row `index` of a template.
location_role role_of(layout style, int index);

/// What a measure becomes: multiplied, then moved.
struct bend {
    double factor = 1, offset = 0;
};

/// One bend for each measure.
struct location_bend {
    bend top, left, height, width;
};

location bent(const location & place, location_role role, const location_bend & by);

/// From full size to the preview: a seventh, cells of a grid a little more, so that they close up.
location scaled_to_preview(const location & place, location_role role);

/// Moved down and right by the same number.
location moved(const location & place, location_role role, int by);

/// Made smaller by `frame` on each side, so that the frame lies inside the location.
location framed_inside(const location & place, int frame);

/// Made larger on each side, so that the fading of soft edges happens outside the location: 20 pixels at full
/// size, 3 in a preview. The cells of a grid stay in step.
location softened(const location & place, location_role role, run_size size);

/// Takes the first layer, two rows, out of a grid template.
void drop_layer(location_table & table);
