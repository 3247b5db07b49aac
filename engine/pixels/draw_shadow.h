#pragma once

#include "engine/pixels/ornaments.h"
#include "support/rectangle.h"

/// Two fading bands, right of and below the photo and its frame. Nothing below a shadow size of 1 and for
/// rounded photos.
void draw_shadow(bitmap & target, const rectangle & photo, const ornaments & worn);
