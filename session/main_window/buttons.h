#pragma once

#include "session/frmMain.h"

/// The buttons of the finishing stage, the preview's switch, and the help keys.
void connect_buttons(frmMain & main);
