#pragma once

#include "session/frmMain.h"

/// Two fading bands, right of and below the photo at (`left`, `top`) and its frame. `left` is the one that
/// draw_frame lowered. Nothing below a shadow size of 1 or with rounded photos.
void draw_shadow(const frmMain & main, bitmap & target, int left, int top, int height, int width,
                 int rotation);
