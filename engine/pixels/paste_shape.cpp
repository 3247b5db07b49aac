#include "engine/pixels/paste_shape.h"

void paste_shape(bitmap & canvas, const bitmap & photo, const rectangle & place, const shape_paint & shape)
{
    if (shape.mask == nullptr)
        return;
    const mask_spot at{.column = shape.column, .row = canvas.height() - place.bottom()};
    if (photo)
        paint_mask(canvas, *shape.mask, photo, shape.border, at);
    else if (shape.fill)
        paint_mask(canvas, *shape.mask, *shape.fill, at);
}
