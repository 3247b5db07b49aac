#pragma once

#include "session/frmMain.h"

/// Saves the set that is in the editor: asks what has to be asked, writes its settings and renders its
/// frames. False when it wasn't saved and the editor stays open; nothing was changed then. Each file is
/// replaced whole, and frames that the set has no more go last. Raises 53, 61, 62 (fewer captions than were
/// counted), 70, 75, 76; 53 and 62 before anything was written.
bool save_frame_set(frmMain & main);
