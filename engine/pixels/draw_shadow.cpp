#include "engine/pixels/draw_shadow.h"

#include "engine/pixels/draw_frame.h"
#include "engine/pixels/shadow_bands.h"

void draw_shadow(const frmMain & main, bitmap & target, int left, int top, int height, int width, int)
{
    const int frame = main.run.frame_size, size = main.run.shadow_size;
    if (size < 1 || rounded_photos(main))
        return;
    // The frame that was drawn before has lowered `left`.
    const int outer_left = left - frame + (frame == 0 ? 0 : 1), outer_top = top - frame;
    const rectangle framed{.left = outer_left,
                           .top = outer_top,
                           .right = outer_left + 2 * frame + width,
                           .bottom = outer_top + 2 * frame + height};
    for (const shadow_line & line : right_shadow(framed, size))
        blend_rectangle(target, line.area, main.run.shadow_color, line.alpha);
    for (const shadow_line & line : bottom_shadow(framed, size))
        blend_rectangle(target, line.area, main.run.shadow_color, line.alpha);
}
