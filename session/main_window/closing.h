#pragma once

#include "session/frmMain.h"

/// The ways out of the program.

/// Takes all windows down, the main one last.
void quit_program(frmMain & main);

/// Hooks the wish to close the window.
void connect_closing(frmMain & main);
