#pragma once

#include "engine/pixels/draw_rotated_photo.h"
#include "session/frmMain.h"

/// The two files of the program's folder that every tilted photo needs; what was read is kept as long as they
/// stay as they were.

/// A key of `rotate.ini`; 0 when section or key is missing.
int GetRotateValue(frmMain & main, const std::string & section, const std::string & key);

/// All numbers of a section.
rotation_numbers numbers_of_section(frmMain & main, const std::string & section);

/// The white sheet. `pixels` holds it as long as it isn't white all over.
mask_sheet rotation_sheet(frmMain & main, bitmap & pixels);
