#pragma once

#include "session/frmMain.h"

/// Puts one upright photo on the canvas at (`left`, `top`), in pixels of the canvas from its top: fitted,
/// then round, soft or framed and shadowed. A location with one side 0 is a shape of that size.
void draw_photo(frmMain & main, const bitmap & image, int width, int height, int top, int left);
