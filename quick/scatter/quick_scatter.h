#pragma once

#include "session/frmMain.h"

/// Writes the scatter that was found last as the quick template, with the holes that `chance` makes, and
/// forces a larger border where turned photos would leave the poster. A scatter that isn't in its file leaves
/// an empty template, with a word to the user. Raises 53, 70, 9 and 6 for faults of the file, and as
/// write_quick_template does.
void write_quick_scatter(frmMain & main, const random_source & chance);
