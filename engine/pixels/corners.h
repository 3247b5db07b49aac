#pragma once

#include "support/MFreeImage.h"

/// Copies the background over the four corners of a photo that will stand with its bottom left pixel at
/// (`left`, `bottom_row`) of the canvas, row 0 at the bottom, so that the paste restores it there. `width`
/// and `height` are the photo's. Photo pixels that have no background stay as they are.
void cut_corners(bitmap & photo, const bitmap & canvas, int width, int height, int left, int bottom_row);
