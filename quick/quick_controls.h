#pragma once

#include "session/frmMain.h"

/// The triggers of the preview and the controls of the quick styles.

/// Redraws the preview unless the window is setting its own controls or the preview waits for a click of its
/// switch.
void refresh_preview(frmMain & main);

/// The same after a change that leaves the layout alone.
void refresh_after_change(frmMain & main);

/// Makes the preview anew and shows it; nothing in the choosing stage and while the preview is off: the
/// picture goes stale then.
void redraw_sample(frmMain & main);

/// Shows the ready-made picture of the quick style, once, when the preview is turned off.
void show_ready_made(frmMain & main);

/// Writes the counts of the shapes' grid beside its buttons; a landscape poster calls rows columns.
void show_rows_cols(frmMain & main);

/// Moves a control inside its window.
void place_at(control & each, int left, int top);

/// Captions of the alignments: what is above on the upright poster lies on the right of a landscape one.
void name_sides(frmMain & main);

/// Numbers by which the user can tell who found no template.
inline constexpr int block_caller = 1, scatter_caller = 4, square_caller = 5, landscape_caller = 6,
                     portrait_caller = 7;

/// Says that no template fits the photos.
void tell_no_template(frmMain & main, int caller);

/// Hooks the handlers of the groups frmSquares and frmSpace.
void connect_quick_controls(frmMain & main);

/// Those of frmStyle.
void connect_quick_styles(frmMain & main);

/// Those of frmOrientation.
void connect_quick_orientation(frmMain & main);
