#pragma once

#include "batch/arguments.h"
#include "session/frmMain.h"

/// The designs of the catalogue, as the caller names them.

/// Prints the designs that can be made: section, name, family, count. Those whose layout the session writes
/// itself, for the quick styles and the special designers, are left out.
void print_designs(frmMain & main);

/// Throws bad_arguments for a set of custom frames that doesn't exist.
void check_frames(const frmMain & main, const batch_arguments & arguments);

/// Throws bad_arguments for a design that doesn't exist, for one of the session's own and for one that wears
/// custom frames when no set of them is named.
void check_design(frmMain & main, const batch_arguments & arguments);

/// Leaves the session as the design browser leaves it after its Ok. Throws bad_arguments as check_design
/// does, and for frames that the design can't wear.
void choose_design(frmMain & main, const batch_arguments & arguments);
