#pragma once

#include "designers/matrix/matrix_choices.h"
#include "designs/templates/location.h"
#include "designs/templates/run_size.h"
#include "support/rectangle.h"

#include <string>
#include <vector>

/// From the choices for a matrix to the places of its cells, in pixels of the poster. There are two layouts:
/// that of a preview leaves room around a shaken grid, since its canvas has little beyond its edges; at full
/// size the bleed takes what hangs over.
struct matrix_layout {
    int top = 0, left = 0;  ///< of the first cell
    int rows = 0, columns = 0;
    int gap_v = 0, gap_h = 0;
    int cell_height = 0, cell_width = 0;
    std::vector<std::string> complaints{};  ///< what the user is to be told of gaps that can't be kept
};

/// Raises overflow (6) for sizes beyond 32 bits.
matrix_layout matrix_layout_of(const matrix_choices & choices, run_size size);

/// Why there can be no such matrix, as the user is told; empty when there can.
std::string matrix_fault(const matrix_choices & choices);

/// One cell that wears a frame: the frame's picture fills the cell, the photo lies on it.
struct framed_cell {
    rectangle area, photo;
    std::string file{};  ///< of the frame, below the data folder
};

/// All cells, row by row, frames dealt in turn, or with the captions of the photos that go there when the set
/// has a photo list. Empty without a frame set.
std::vector<framed_cell> framed_cells(const matrix_choices & choices, const matrix_layout & layout);

/// The template: a grid, or a frame and a photo for each cell. Raises overflow (6) beyond 16 bits.
std::vector<location> matrix_locations(const matrix_choices & choices, const matrix_layout & layout);
