#pragma once

#include "support/MFreeImage.h"

/// The photo scaled to cover `width` by `height` and the excess cut evenly. May be one pixel off the target
/// where the rounding went that way and nothing was cut. An empty photo gives an empty result.
bitmap resize_image(const bitmap & image, int width, int height);
