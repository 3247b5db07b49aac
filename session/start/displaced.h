#pragma once

#include "session/frmMain.h"

/// Sets folders aside that stand where the program has a file of its own: an older package may have made
/// them, and no start, save or import would go through. Each keeps all it holds under a name of its own
/// beside it, "designs.new.set_aside", "designs.new.set_aside_2". For a session that may write in the data
/// folder; says nothing and raises nothing: what can't be moved stays.
void set_displaced_aside(const frmMain & main);
