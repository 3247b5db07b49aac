#pragma once

#include "session/frmMain.h"

/// What the menu of the designs does; `import_package` is the third entry.

/// Asks under which name the collage made last is kept as a design; tells where that can't be.
void save_last_design(frmMain & main);

/// Opens the list of the user's own designs, if there are any.
void edit_designs(frmMain & main);
