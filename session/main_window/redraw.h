#pragma once

#include "session/frmMain.h"

/// The triggers of the preview.

/// Redraws the preview unless the window is setting its own controls or the preview waits for a click of its
/// switch.
void refresh_preview(frmMain & main);

/// The same after a change that leaves the layout alone.
void refresh_after_change(frmMain & main);

/// Turns the preview on again after the window itself turned it off. Draws nothing.
void resume_preview(frmMain & main);

/// Makes the preview anew and shows it; nothing in the choosing stage and while the preview is off: the
/// picture goes stale then.
void redraw_sample(frmMain & main);

/// Shows the ready-made picture of the quick style, once, when the preview is turned off.
void show_ready_made(frmMain & main);
