#pragma once

#include "session/frmMain.h"

/// Where every collage begins: what the one before forced goes back to what the user had, what the user chose
/// stays, and the record is that of a new collage.
void begin_collage(frmMain & main, collage_kind kind);

/// Where another quick style takes over in the same collage.
void leave_quick_style(frmMain & main);
