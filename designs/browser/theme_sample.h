#pragma once

#include "designs/browser/frmThemes.h"
#include "session/frmMain.h"

/// What the browser shows of one design: its own click.

/// Selects the design in slot `index`: reads its record, which stays in `main.design_record`, shows its
/// sample and its description, and allows what it allows. Tells the user when the catalogue has lost it; it
/// can't be chosen then. Raises 53 and 70 as the catalogue does.
void show_design(frmThemes & window, frmMain & main, int index);
