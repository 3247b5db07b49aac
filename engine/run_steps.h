#pragma once

#include "designs/templates/run_size.h"
#include "session/frmMain.h"

#include <functional>

/// The steps that a full-size run and a preview share, in their order.

/// Reads the template of the design. One that can't be read leaves no locations, least of all those of the
/// run before.
void read_new_template(frmMain & main, run_size size);

/// Bends the template to the settings: mixed order, caption room, border.
void bend_template(frmMain & main, run_size size);

/// Marks the run as going on and takes the settings that hold for all of it.
void begin_run(frmMain & main);

/// Canvas with its background, colours and sizes of the ornaments. Raises 7.
void lay_ground(frmMain & main, run_size size);

enum class run_end { complete, cancelled };

/// Brings the locations to the canvas and draws all of them, unless the user cancels in between.
run_end place_photos(frmMain & main, run_size size);

/// Lays the caption over the collage.
void finish_canvas(frmMain & main);

/// Runs `work`; an error of the platform ends it with the one box of a run. True when it went through.
bool went_through(frmMain & main, const std::function<void()> & work);

/// The state in which no run is going on; the canvas is released.
void end_run(frmMain & main);

/// Ends a run after `cmdCancel`.
void report_cancel(frmMain & main);
