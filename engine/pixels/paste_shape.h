#pragma once

#include "session/frmMain.h"

/// Paints the mask named by `main.run.current_shape`, scaled to `size` by `size`, on the canvas at (`left`,
/// `top`): with the colour of the code 1 to 7, or with `photo` where that is given. A mask that is missing
/// paints nothing.
void paste_shape(frmMain & main, int color, const bitmap & photo, int size, int left, int top);
