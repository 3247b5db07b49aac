#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

/// Sizes and makes the canvas and paints its plain background. Raises 7.
void allocate_canvas(frmMain & main, run_size size);

/// The colour of the ground; black where a picture is to cover it.
rgb_triple ground_color(const frmMain & main);
