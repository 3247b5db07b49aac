#pragma once

#include "session/frmMain.h"

/// Settle frame and shadow of the current photo, `run.frame_size` and `run.shadow_size`, from the value of
/// its location.
void apply_frame_size(frmMain & main, int value);
void apply_shadow_size(frmMain & main, int value);
