#pragma once

#include "session/frmMain.h"

/// Hooks every entry of the menu bar.
void connect_menus(frmMain & main);
