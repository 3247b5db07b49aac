#pragma once

#include "session/frmMain.h"

/// Turns `main.design_record` into control states and enters the finishing stage.
void new_poster(frmMain & main);

/// The second half of " Designed flurn": a design and its photos are chosen, the photos are in the table.
/// Counts them, applies the record and selects the preview.
void start_designed(frmMain & main);
