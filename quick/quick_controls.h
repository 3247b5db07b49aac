#pragma once

#include "session/frmMain.h"

/// The triggers of the preview and the controls of the quick styles.

/// Redraws the preview unless the window is setting its own controls.
void refresh_preview(frmMain & main);

/// The same after a change that leaves the layout alone.
void refresh_after_change(frmMain & main);

/// Makes the preview anew and shows it.
void redraw_sample(frmMain & main);

/// Hooks the handlers of the groups frmStyle, frmOrientation, frmSquares and frmSpace.
void connect_quick_controls(frmMain & main);
