#pragma once

#include "session/frmMain.h"

/// The triggers of the preview and the controls of the quick styles.

/// Redraws the preview unless the window is setting its own controls or the preview waits for a click of its
/// switch.
void refresh_preview(frmMain & main);

/// The same after a change that leaves the layout alone.
void refresh_after_change(frmMain & main);

/// Makes the preview anew and shows it; nothing in the choosing stage and while the preview is off.
void redraw_sample(frmMain & main);

/// Writes the counts of the shapes' grid beside its buttons; a landscape poster calls rows columns.
void show_rows_cols(frmMain & main);

/// Hooks the handlers of the groups frmStyle, frmOrientation, frmSquares and frmSpace.
void connect_quick_controls(frmMain & main);
