#pragma once

#include "support/MFreeImage.h"
#include "support/rectangle.h"

/// Pastes the photo at `place` of the target with edges that fade out over a ring as wide as the size class
/// of the smaller side says. No pixel is laid twice. `place` is in pixels of the layout, of which the
/// pictures have `scale` for one.
void soft_edge_paste(bitmap & target, const bitmap & image, const rectangle & place, int scale = 1);
