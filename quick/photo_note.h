#pragma once

#include "session/frmMain.h"

/// Writes to the note line where the photos of a quick collage come from, and how many of them the run before
/// had no place for.
void note_photos_in_use(frmMain & main);
