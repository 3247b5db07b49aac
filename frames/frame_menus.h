#pragma once

#include "session/frmMain.h"

/// What the menu of the frames does.

/// Opens the window of a custom frame set on a new one.
void add_custom_frame(frmMain & main);

/// Opens the list of the custom frame sets, if there are any.
void edit_custom_frames(frmMain & main);

/// Asks for a picture and a name and takes it in as an icon; tells what is wrong with a picture that can't be
/// one.
void import_icon(frmMain & main);
