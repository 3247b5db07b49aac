#pragma once

#include "session/frmMain.h"

/// Four bands of the frame colour around a photo that stands at column `left` and, counted from the bottom of
/// `target`, at row `row`. Lowers `left` and `row` by 1. Nothing without a frame size or with rounded photos.
void draw_frame(const frmMain & main, bitmap & target, int & left, int & row, int height, int width,
                int rotation);

/// True when photos are drawn with round corners: the box is visible, enabled and ticked by its own flags.
bool rounded_photos(const frmMain & main);
