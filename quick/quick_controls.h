#pragma once

#include "session/frmMain.h"

/// Hooks the handlers of the groups frmSquares and frmSpace.
void connect_quick_controls(frmMain & main);
