#pragma once

#include "support/MFreeImage.h"

/// Pastes the photo at (`left`, `top`) of `target` with edges that fade out over a ring as wide as the size
/// class of the smaller side says.
void soft_edge_paste(bitmap & target, const bitmap & image, int width, int height, int top, int left);
