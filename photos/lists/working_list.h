#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The list that a selection is gathered in: `working_list_path` of the main window.

/// Lets the user choose a folder and appends its ".jpg" files, until 999 photos are selected. Tells the user
/// of that limit and of a folder without any. Raises 61, 70, 75, 76; the list then stays as it was.
void folder_of_photos(frmMain & main);

/// Appends the photos, until 999 are selected, and tells the user of that limit. Raises as folder_of_photos.
void add_to_working_list(frmMain & main, std::vector<std::string> photos);

/// True while the list takes one more.
bool has_room_in_working_list(const frmMain & main);

/// Deletes the list and selects nothing, without a question. Raises 70, 75.
void clear_working_list(frmMain & main);
