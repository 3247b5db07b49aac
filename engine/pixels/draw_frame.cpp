#include "engine/pixels/draw_frame.h"

#include "engine/pixels/rectangles.h"

namespace {

/// From here on a photo is turned so far that its frame keeps its whole width.
constexpr int steep_rotation = 10;

}  // namespace

bool rounded_photos(const frmMain & main)
{
    return main.chkRounded.visible() && main.chkRounded.enabled() && main.chkRounded.ticked();
}

void draw_frame(const frmMain & main, bitmap & target, int & left, int & row, int height, int width,
                int rotation)
{
    if (main.run.frame_size == 0 || rounded_photos(main))
        return;
    // All bounds are inclusive, so a band is one line wider than this.
    const int wide = main.run.frame_size - (rotation < steep_rotation && !main.in_preview ? 1 : 0);
    const int high = row + wide + height;
    const int right = left + width + wide;
    --left;
    --row;
    const int outer_left = left - wide, low = row - wide;
    const rgb_triple color = main.run.frame_color;
    fill_bounds(target, {.left = outer_left, .right = right, .low = low, .high = row}, color);
    fill_bounds(target, {.left = outer_left, .right = left, .low = low, .high = high}, color);
    fill_bounds(target, {.left = left + width + 1, .right = right, .low = low, .high = high}, color);
    fill_bounds(target, {.left = outer_left, .right = right, .low = high - wide, .high = high}, color);
}
