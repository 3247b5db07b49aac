#pragma once

#include "session/frmMain.h"

#include <string>

/// Leaves the work files of a collage in `folder`, which is made: the templates that were written for it, or
/// that it kept (`designs`), the list of a selection (`piclists`), what lies in `tmp`, `finished.jpg` above
/// all, and `photos.pls`, the photos in the order in which they stood in the table. For a session that has a
/// work folder of its own. Raises 61, 70, 75, 76.
void keep_work_files(const frmMain & main, const std::string & folder);
