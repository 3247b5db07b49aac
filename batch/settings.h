#pragma once

#include "batch/arguments.h"
#include "session/frmMain.h"

/// The controls of the main window, as the caller sets and sees them.

/// Throws bad_arguments, which names what there is to choose from, for a control that doesn't exist or has
/// nothing to set, and for a value that it doesn't take.
void check_settings(const frmMain & main, const batch_arguments & arguments);

/// Sets the caption and the controls as a user would, in the order given but for the background's picture,
/// which comes first. What is disabled for this design is
/// set all the same, with a word on standard error.
void apply_settings(frmMain & main, const batch_arguments & arguments);

/// Every control in a line of its own: name, visible, enabled, value, tag.
void print_controls(const frmMain & main);
