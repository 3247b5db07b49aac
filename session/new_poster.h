#pragma once

#include "session/frmMain.h"

/// Turns `main.design_record` into control states and enters the finishing stage.
void new_poster(frmMain & main);

/// The second half of " Designed flurn": a design and its photos are chosen, the photos are in the table.
/// Counts them, in their own window, applies the record and selects the preview. Without photos the window
/// stays in the choosing stage.
void start_designed(frmMain & main);
