#include "engine/pixels/draw_shadow.h"

#include "engine/pixels/rectangles.h"
#include "engine/pixels/shadow_bands.h"

void draw_shadow(bitmap & target, const rectangle & photo, const ornaments & worn)
{
    if (worn.shadow < 1 || worn.corners == photo_corners::rounded)
        return;
    const rectangle framed = grown(photo, worn.frame);
    for (const shadow_line & line : right_shadow(framed, worn.shadow, worn.scale))
        blend_rectangle(target, line.area, worn.shadow_color, line.alpha);
    for (const shadow_line & line : bottom_shadow(framed, worn.shadow, worn.scale))
        blend_rectangle(target, line.area, worn.shadow_color, line.alpha);
}
