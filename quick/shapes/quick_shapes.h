#pragma once

#include "session/frmMain.h"

/// Writes the grid of shapes as the quick template and keeps its rows and columns. After a change that leaves
/// the layout alone ("skip" in the tag of `chkOutline`, which is cleared) the grid stays as it is. Raises
/// overflow (6), and as write_quick_template does.
void write_quick_shapes(frmMain & main);
