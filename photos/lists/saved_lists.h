#pragma once

#include "session/frmMain.h"

#include <string>

/// The saved lists: the files of `piclists`.

/// Fills the window of the saved lists with their names, in the file system's order. Raises 70, 76.
void start_photo_list(frmMain & main);

/// The file of a saved list.
std::string saved_list_path(const frmMain & main, const std::string & name);
