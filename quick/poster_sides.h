#pragma once

#include "session/frmMain.h"

/// What a landscape poster calls otherwise than an upright one.

/// Writes the counts of the shapes' grid beside its buttons; a landscape poster calls rows columns.
void show_rows_cols(frmMain & main);

/// Captions of the alignments: what is above on the upright poster lies on the right of a landscape one.
void name_sides(frmMain & main);
