#pragma once

#include "session/frmMain.h"

/// Frames, shadows and the three ways of drawing a photo, of which at most one is ticked.
void connect_ornaments(frmMain & main);
