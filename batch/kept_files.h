#pragma once

#include "session/frmMain.h"

#include <string>

/// Leaves the work files of a collage in `folder`, which is made: the templates that were written for it
/// (`designs/__...`), the lists (`piclists/last_photos.pls`, and `photos.pls`, the photos in the order in
/// which they stood in the table) and what lies in `tmp`, `finished.jpg` above all. Raises 61, 70, 75, 76.
void keep_work_files(const frmMain & main, const std::string & folder);
