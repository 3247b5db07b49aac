#pragma once

#include "session/frmMain.h"

/// Hooks all handlers of the main window.
void connect_main(frmMain & main);
