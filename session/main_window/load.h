#pragma once

#include "session/frmMain.h"

/// The start state of the main window, and its fixed size.

/// The load step of the main window.
void load_main(frmMain & main);

void connect_load(frmMain & main);
