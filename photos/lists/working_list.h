#pragma once

#include "session/frmMain.h"

/// The list that a selection is gathered in: `working_list_path` of the main window.

/// Lets the user choose a folder and appends its ".jpg" files, until 999 photos are selected. Tells the user
/// of that limit and of a folder without any. Raises 61, 70, 75, 76; the list then stays as it was.
void folder_of_photos(frmMain & main);

/// Deletes the list and selects nothing, without a question. Raises 70, 75.
void clear_working_list(frmMain & main);
