#pragma once

#include "session/frmMain.h"

/// What the menu of the photo lists does. None of it changes the photos of a collage.

/// Asks for a name and opens an empty list under it.
void add_photo_list(frmMain & main);

/// Keeps the photos chosen last under a name that the user gives.
void save_last_photo_list(frmMain & main);

/// Opens the saved lists, if there are any.
void edit_photo_lists(frmMain & main);
