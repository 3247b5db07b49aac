#include "engine/paste_shape.h"

#include "engine/mask.h"
#include "engine/mask_path.h"
#include "engine/resize_image.h"

namespace {

bitmap load_mask(const frmMain & main)
{
    const std::string & name = main.run.current_shape;
    const std::string path = mask_path(name, main.install_folder, main.data_folder);
    if (path.empty())
        return {};
    const bool jpeg = name.ends_with('G') || name.ends_with('g');
    return load_picture(jpeg ? picture_format::jpeg : picture_format::gif, path);
}

/// A shape lands its own width further left on a landscape or square canvas, which the templates reckon with;
/// letters don't.
int shape_column(const frmMain & main, int size, int left)
{
    const bool upright = main.run.canvas.height() > main.run.canvas.width();
    const int moved = upright || main.lblDesign.caption() == "Lettering" ? 1 : 2;
    return size + left - moved * main.run.current_width;
}

}  // namespace

void paste_shape(frmMain & main, int color, const bitmap & photo, int size, int left, int top)
{
    run_state & run = main.run;
    const bitmap mask = resize_image(load_mask(main), size, size);
    const int column = shape_column(main, size, left);
    const int row = run.canvas.height() - (top + run.current_height);
    const bool outlined = main.chkOutline.visible() && main.chkOutline.ticked();
    if (photo)
        paint_mask(run.canvas, mask, photo, outlined ? shape_border::outlined : shape_border::lightened,
                   column, row);
    else if (color != 0)
        paint_mask(run.canvas, mask, shape_fill(color), column, row);
}
