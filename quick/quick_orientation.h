#pragma once

#include "session/frmMain.h"

/// Hooks the handlers of frmOrientation.
void connect_quick_orientation(frmMain & main);
