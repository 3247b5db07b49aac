#pragma once

#include "session/frmMain.h"

enum class fitting { to_fit, fitted };

/// Puts one photo on the canvas turned clockwise by `rotation` degrees about its own top-left corner, which
/// stays at
/// (`left`, `top`). Only the photo's own pixels are disturbed. A rotation without a section in `rotate.ini`
/// and a missing white sheet draw nothing.
void draw_rotated_photo(frmMain & main, bitmap image, int width, int height, int top, int left, int rotation,
                        fitting fit);

/// A key of `rotate.ini` in `install_folder`; 0 when section or key is missing.
int GetRotateValue(frmMain & main, const std::string & section, const std::string & key);
