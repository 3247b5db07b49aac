#pragma once

#include "session/frmMain.h"

#include <functional>

/// The steps that draw on the whole canvas, or much of it: they run on another core, and the window lets
/// events through meanwhile, among them a wish to cancel.

/// Draws something of about that size, in pixels of the canvas, on the canvas of the run; small things are
/// drawn at once, which is quicker. The step touches nothing of the session but the canvas, which nobody else
/// may touch before this returns. Raises what the step raises.
void draw_on_canvas(frmMain & main, picture_size size, const std::function<void(bitmap & canvas)> & step);

/// The same for a step that may change every pixel.
void work_on_canvas(frmMain & main, const std::function<void(bitmap & canvas)> & step);
