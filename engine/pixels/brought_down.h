#pragma once

#include "support/MFreeImage.h"
#include "support/rectangle.h"

/// A part of a picture, brought down to one pixel for each square of `samples` by `samples`: their mean, for
/// each channel, rounded half up. The part counts from the top, has to lie in the picture, and its sides have
/// to hold whole squares. With 1 it is a copy.
bitmap brought_down(const bitmap & image, const rectangle & part, int samples);
