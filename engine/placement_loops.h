#pragma once

#include "session/frmMain.h"

/// The two loops that decide which picture goes where.

/// Style "Place": every location by its own line. Stops at the first picture that can't be loaded, and on a
/// cancel.
void place_loop(frmMain & main);

/// Style "Fill": one layer, the first two rows of the table, as a grid that runs until the canvas ends.
void fill_loop(frmMain & main);

/// Settle frame and shadow of the current photo from the value of its location.
void apply_frame_size(frmMain & main, int value);
void apply_shadow_size(frmMain & main, int value);

/// Shows which image of the run is being worked on.
void show_image_number(frmMain & main);
