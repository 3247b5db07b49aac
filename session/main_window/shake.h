#pragma once

#include "session/frmMain.h"

/// Shaking and aligning the design.
void connect_shake(frmMain & main);
