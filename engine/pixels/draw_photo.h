#pragma once

#include "engine/pixels/ornaments.h"
#include "engine/pixels/paste_shape.h"

/// Puts one upright photo, fitted to `place` of the canvas, down there: round, soft or hard, then framed and
/// shadowed. Places and columns are in pixels of the layout; canvas, photo and mask have the scale of what is
/// worn.
void draw_photo(bitmap & canvas, bitmap photo, const rectangle & place, const ornaments & worn);

/// The same through a mask; `place` is the shape's square. A painted shape takes no photo and has no soft
/// edges.
void draw_shape(bitmap & canvas, bitmap photo, const rectangle & place, const ornaments & worn,
                const shape_paint & shape);
