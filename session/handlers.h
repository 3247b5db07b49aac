#pragma once

#include "session/windows.h"

/// The hooks of all windows, one for each file of handlers; `connect_all` runs them. Other files reach a
/// handler through its control, not through these.

void connect_load(frmMain & main);
void connect_ornaments(frmMain & main);
void connect_background(frmMain & main);
void connect_caption(frmMain & main);
void connect_shake(frmMain & main);
void connect_output(frmMain & main);
void connect_menus(frmMain & main);
void connect_designed(frmMain & main);
void connect_buttons(frmMain & main);
void connect_design_menus(windows & all);
void connect_frame_menus(windows & all);
void connect_photo_menus(windows & all);

/// The load step of the main window: its start state.
void load_main(frmMain & main);

/// Allows the full-size collage to be made.
void enable_flurn(frmMain & main);
