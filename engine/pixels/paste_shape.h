#pragma once

#include "engine/pixels/mask.h"
#include "support/rectangle.h"

#include <optional>

/// A shape instead of a rectangle: what a mask cuts out.
struct shape_paint {
    const bitmap * mask = nullptr;     ///< of the shape's size; none: nothing is painted
    std::optional<rgb_triple> fill{};  ///< of a painted shape; none: it shows a photo
    shape_border border = shape_border::lightened;
    int column = 0;  ///< of the canvas, on which the mask's left edge lies
};

/// Paints the shape on the canvas, on the rows of `place`: with its photo where one is given, else in its own
/// colour.
void paste_shape(bitmap & canvas, const bitmap & photo, const rectangle & place, const shape_paint & shape);
