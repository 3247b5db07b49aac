#pragma once

#include "engine/pixels/ornaments.h"
#include "support/rectangle.h"

/// Four bands of the frame colour around the photo that stands at `photo` of the target and is turned by so
/// many degrees afterwards; the target has the scale of what is worn. Nothing without a frame size and for
/// rounded photos.
void draw_frame(bitmap & target, const rectangle & photo, const ornaments & worn, int rotation);
