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

}  // namespace

void draw_photo(bitmap & canvas, bitmap photo, const rectangle & place, const ornaments & worn)
{
    if (worn.edges == photo_edges::soft) {
        soft_edge_paste(canvas, photo, place);
    } else {
        if (worn.corners != photo_corners::square)
            cut_corners(photo, canvas, place);
        paste(canvas, photo, place.left, place.top, plain_copy);
    }
    frame_and_shade(canvas, place, worn);
}

void draw_shape(bitmap & canvas, bitmap photo, const rectangle & place, const ornaments & worn,
                const shape_paint & shape)
{
    if (worn.edges == photo_edges::soft && !shape.fill) {
        soft_edge_paste(canvas, photo, place);
    } else {
        if (worn.corners != photo_corners::square)
            cut_corners(photo, canvas, place);
        paste_shape(canvas, photo, place, shape);
    }
    frame_and_shade(canvas, place, worn);
}
