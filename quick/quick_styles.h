#pragma once

#include "session/frmMain.h"

/// Hooks the handlers of frmStyle: the four quick styles, and the shape of the last.
void connect_quick_styles(frmMain & main);
