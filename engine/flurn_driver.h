#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

/// From settings, template and photos to `tmp/finished.jpg`.

/// The full-size run; opens `frmImage` on its result. An error ends it with one message box.
void make_flurn(frmMain & main);

/// The preview run. An error ends it with one message box.
void gen_sample(frmMain & main);

/// The preview and its way into `picSample`.
void make_preview(frmMain & main);

/// Sizes and makes the canvas and paints its plain background. Raises 7.
void allocate_canvas(frmMain & main, run_size size);

/// Ends a run after `cmdCancel`.
void report_cancel(frmMain & main);

/// The colour as drawn: a dark one never equals the transparent key.
rgb_triple away_from_key(rgb_triple color);
