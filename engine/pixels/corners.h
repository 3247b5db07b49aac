#pragma once

#include "support/MFreeImage.h"
#include "support/rectangle.h"

/// Copies the background over the four corners of a photo that will stand at `place` of the canvas, so that
/// the paste restores it there. `place` is in pixels of the layout, of which both pictures have `scale` for
/// one. Photo pixels that have no background stay as they are.
void cut_corners(bitmap & photo, const bitmap & canvas, const rectangle & place, int scale = 1);
