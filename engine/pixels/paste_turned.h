#pragma once

#include "engine/pixels/row_spans.h"
#include "support/MFreeImage.h"
#include "support/idle_workers.h"
#include "support/rectangle.h"

/// A picture on nothing, for pasting: pixels that are covered in part hold that part of their colour. The
/// outermost pixels on each side have to be black and uncovered.
struct covered_picture {
    bitmap colors;
    bitmap cover;      ///< of the same size: how far each pixel is covered, 255 wholly; none: see below
    rectangle filled;  ///< without `cover`: what is covered, wholly
};

/// A turn that takes a point of the picture to a point of the canvas. Both count from the top left corner of
/// their bitmap; the middle of its first pixel is (0.5, 0.5).
struct turned_spot {
    picture_point from, to;
    int degrees = 0;  ///< clockwise as seen
};

/// Pastes the picture turned, each pixel of the canvas weighed of the four around its place in the picture.
/// What lies outside the canvas is ignored. Workers that are free take rows of it.
void paste_turned(bitmap & canvas, const covered_picture & picture, const turned_spot & at,
                  const idle_workers & others = {});
