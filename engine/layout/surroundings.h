#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

/// What surrounds the collage: the border, the room for a caption, the caption.

/// Shrinks all locations by the border that is selected.
void apply_border(frmMain & main, run_size size);

/// Mirrors or flips the design as the browser asked, and moves the locations away from a cleared caption.
void make_caption_room(frmMain & main);

/// Measures the caption before the canvas is made: `main.run.caption_height`.
void prepare_caption(frmMain & main);

/// Prints the caption on the canvas.
void add_caption(frmMain & main);
