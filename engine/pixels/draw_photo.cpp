#include "engine/pixels/draw_photo.h"

#include "engine/pixels/corners.h"
#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/soft_edge_paste.h"

namespace {

void frame_and_shade(bitmap & canvas, const rectangle & place, const ornaments & worn)
{
    draw_frame(canvas, place, worn, 0);
    draw_shadow(canvas, place, worn);
}

shape_paint enlarged(shape_paint shape, int scale)
{
    shape.column *= scale;
    return shape;
}

}  // namespace

void draw_photo(bitmap & canvas, bitmap photo, const rectangle & place, const ornaments & worn)
{
    if (worn.edges == photo_edges::soft) {
        soft_edge_paste(canvas, photo, place, worn.scale);
    } else {
        if (worn.corners != photo_corners::square)
            cut_corners(photo, canvas, place, worn.scale);
        paste(canvas, photo, place.left * worn.scale, place.top * worn.scale, plain_copy);
    }
    frame_and_shade(canvas, place, worn);
}

void draw_shape(bitmap & canvas, bitmap photo, const rectangle & place, const ornaments & worn,
                const shape_paint & shape)
{
    if (worn.edges == photo_edges::soft && !shape.fill) {
        soft_edge_paste(canvas, photo, place, worn.scale);
    } else {
        if (worn.corners != photo_corners::square)
            cut_corners(photo, canvas, place, worn.scale);
        paste_shape(canvas, photo, enlarged(place, worn.scale), enlarged(shape, worn.scale));
    }
    frame_and_shade(canvas, place, worn);
}
