#pragma once

#include "designs/templates/poster_shape.h"
#include "support/files/text_file.h"

#include <string>

/// The grid of a quick matrix, in pixels of the upright poster.
struct matrix_grid {
    int cells = 0;  ///< rows times columns
    int rows = 0, columns = 0;
    int row_gap = 0, column_gap = 0;
    int side_margin = 0, top_margin = 0, bottom_margin = 0;
};

/// The line of a grid that is used when the table is found faulty.
inline constexpr const char * default_matrix_line = "15:5:3:20:20:270:100:130";

/// Reads "cells:rows:columns:row gap:column gap:side margin:top margin:bottom margin". Raises subscript (9)
/// for a line with too few fields, overflow (6).
matrix_grid matrix_grid_of(const std::string & line);

/// The number of cells that a grid line begins with.
int cells_of(const std::string & line);

struct matrix_lines {
    std::string line;      ///< the first with at least the cells wanted, or the last of the table
    std::string previous;  ///< the grid line in front of it, empty for the first
    bool corrupt = false;  ///< the table has no grids for square posters; `line` is the default one then
};

/// Searches the table of grids, `quick_matrix.ini`: grid lines in ascending order and comments; behind
/// "#SQUARE" those for square posters, into which the search for the others runs on.
matrix_lines find_matrix(line_source & table, poster_shape poster, int wanted);
