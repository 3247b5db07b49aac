#include "engine/photo/draw_photo.h"

#include "engine/photo/photo_steps.h"
#include "engine/pixels/corners.h"
#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/paste_shape.h"
#include "engine/pixels/soft_edge_paste.h"

namespace {

enum class kind { plain, photo_shape, colored_shape };

kind kind_of(const frmMain & main, int width, int height)
{
    if (width != 0 && height != 0)
        return kind::plain;
    return main.run.shape_color == 0 ? kind::photo_shape : kind::colored_shape;
}

void paste_photo(frmMain & main, kind drawn, const bitmap & fitted, int left, int top)
{
    run_state & run = main.run;
    if (drawn == kind::plain)
        paste(run.canvas, fitted, left, top, plain_copy);
    else
        paste_shape(main, drawn == kind::colored_shape ? run.shape_color : 0, fitted, run.current_width, left,
                    top);
}

}  // namespace

void draw_photo(frmMain & main, const bitmap & image, int width, int height, int top, int left)
{
    run_state & run = main.run;
    const kind drawn = kind_of(main, width, height);
    run.current_width = narrow(width == 0 ? height : width);
    run.current_height = narrow(height == 0 ? width : height);
    width = run.current_width;
    height = run.current_height;
    // A wide gap can leave nothing of a cell: a frame without a photo would stand there as two stray lines.
    if (width < 1 || height < 1)
        return;
    bitmap fitted = drawn == kind::colored_shape ? bitmap() : fit_photo(main, image, width, height);
    int bottom_row = run.canvas.height() - (top + height);
    const bool soft = main.chkSoftEdge.ticked() && main.frmOrnaments.visible();
    if (soft && drawn != kind::colored_shape) {
        soft_edge_paste(run.canvas, fitted, width, height, top, left);
    } else {
        if (main.chkRounded.ticked())
            cut_corners(fitted, run.canvas, width, height, left, bottom_row);
        paste_photo(main, drawn, fitted, left, top);
    }
    draw_frame(main, run.canvas, left, bottom_row, height, width, 0);
    draw_shadow(main, run.canvas, left, top, height, width, 0);
}
