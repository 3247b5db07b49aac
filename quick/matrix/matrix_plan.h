#pragma once

#include "designs/templates/location_line.h"
#include "designs/templates/poster_shape.h"
#include "quick/blank_run.h"
#include "quick/matrix/matrix_grid.h"

#include <string>
#include <vector>

/// A quick matrix: a full grid in which a portrait photo takes one cell and a landscape photo two.

struct matrix_request {
    matrix_grid grid{};
    poster_shape poster = poster_shape::portrait;
    int portrait = 0, landscape = 0;                       ///< photos
    std::string shapes{};                                  ///< "p:" or "l:" for each of them, in list order
    bool rotate = false, resize = false, shuffle = false;  ///< how the grid is shaken
    int offset = 0;                                        ///< where in the patterns the poster begins
    int inset = 0;  ///< pixels that a preview leaves free at the sides, for what hangs over
    blank_run blanks{};
};

/// The pixels that a shaken preview of `last_photo` + 1 photos leaves free at its sides.
int matrix_inset(int last_photo);

/// Those that it leaves free at top and bottom.
int matrix_inset_down(int inset);

/// How the locations of a quick matrix are written.
inline constexpr line_digits matrix_digits{.place = 2, .rotation = 2};

/// How many of the photos come to a cell, or two, of their own; the rest finds none.
int photos_shown(const matrix_request & request);

/// The locations of a quick matrix, in pixels of the upright poster, row by row. Raises overflow (6),
/// also for a grid without rows or columns.
std::vector<location> matrix_plan(const matrix_request & request, const random_source & random);
