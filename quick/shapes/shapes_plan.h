#pragma once

#include "designs/templates/location.h"
#include "designs/templates/poster_shape.h"
#include "quick/blank_run.h"

#include <string>
#include <vector>

/// Quick shapes: a grid of equal shapes, each cut out of one photo.

enum class shapes_align { top, center, bottom };

struct shapes_request {
    poster_shape poster = poster_shape::portrait;
    std::string shape = "Squares";  ///< text of the list of shapes
    int last_photo = 0;
    double row_bias = 0, column_bias = 0;  ///< rows and columns that the user added
    int gap = 0;                           ///< between the cells, less where nothing would be seen of them
    int frame = 0, shadow = 0;
    shapes_align align = shapes_align::center;
    bool mix = false;
    blank_run blanks{};
};

struct shapes_layout {
    double rows = 0, columns = 0;
    double row_bias = 0, column_bias = 0;  ///< those of the request, raised where none would be seen
    std::string file;                      ///< mask of the cell written last, empty for squares
    std::vector<location> places;
};

/// The locations of a grid of shapes, in pixels of the upright poster, row by row. A grid has from 6 to
/// 84 cells before the user's own rows and columns. Draws one number a row, and one for each written leaf or
/// puzzle piece. Raises overflow (6).
shapes_layout shapes_plan(const shapes_request & asked, const random_source & random);
