#pragma once

#include "engine/sign_of_life.h"
#include "session/frmMain.h"

/// Style "Fill": one layer, the first two rows of the table, as a grid that runs until the canvas ends. A
/// cancel doesn't end it.
void fill_loop(frmMain & main, const sign_of_life & sign);
