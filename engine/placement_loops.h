#pragma once

#include "session/frmMain.h"

/// The two loops that decide which picture goes where.

/// Style "Place": every location by its own line. Stops at the first picture that can't be loaded, and on a
/// cancel.
void place_loop(frmMain & main);

/// Style "Fill": one layer, the first two rows of the table, as a grid that runs until the canvas ends.
void fill_loop(frmMain & main);

/// Shows which image of the run is being worked on.
void show_image_number(frmMain & main);
