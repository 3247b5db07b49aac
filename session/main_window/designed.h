#pragma once

#include "session/frmMain.h"

/// " Designed flurn": a design of the catalogue, then the photos for it, up to the first preview. Ends in the
/// choosing stage when either is cancelled.
void begin_designed(frmMain & main);
