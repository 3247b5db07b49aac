#pragma once

#include "session/frmMain.h"

#include <string>

/// The line of the table of grids for a count of cells, or, while the user wants fewer photos, the one in
/// front of it. Settles what `cmdMore` offers. Says so when the table has no grids for square posters. Raises
/// 53, 70, and 9 and 6 for faults of the table.
std::string find_matrix_line(frmMain & main, int wanted);

/// Writes the matrix for the photos at hand as the quick template, with the holes that `chance` makes.
/// Without portraits a grid of odd rows makes room for a smaller one, which is told once. Raises as
/// find_matrix_line and write_quick_template do.
void write_quick_matrix(frmMain & main, const random_source & chance);

/// Enables `cmdMore`, and says on it what its click would do, as the grid for the photos at hand has it.
void offer_fewer_photos(frmMain & main);
