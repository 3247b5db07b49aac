#pragma once

#include "session/frmMain.h"

/// The save dialog: puts the chosen path into `save_image_path`, which stays as it is after a cancel. A name
/// without an ending gets ".jpg"; with another one than that of a JPEG the user is told and asked again.
void save_new_image(frmMain & main);

/// Writes the finished collage to `save_image_path` with a long side of `save_size` pixels. Asks before a
/// file that is there is overwritten, and for another name when the user says so. What can't be written is
/// told, and the file that was there stands as it was. True when it was written.
bool write_collage(frmMain & main, int save_size);
