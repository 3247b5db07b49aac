#pragma once

#include "session/frmMain.h"

/// Puts the photo on a card of the frame colour with room for writing; the card is the whole location.
void draw_captioned_photo(frmMain & main, const bitmap & image, int width, int height, int top, int left,
                          int rotation);
