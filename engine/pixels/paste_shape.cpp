#include "engine/pixels/paste_shape.h"

#include "engine/photo/mask_path.h"
#include "engine/pixels/mask.h"
#include "engine/pixels/resize_image.h"
#include "support/files/paths.h"

namespace {

picture_format format_of(const std::string & name)
{
    return name.ends_with('G') || name.ends_with('g') ? picture_format::jpeg : picture_format::gif;
}

/// The current mask in that size, nullptr without one. Reading and scaling a mask costs more than painting
/// it.
const bitmap * current_mask(frmMain & main, int size)
{
    const std::string path = mask_path(main.run.current_shape, main.install_folder, main.data_folder);
    const std::optional<file_stamp> stamp = path.empty() ? std::nullopt : stamp_of(path);
    if (!stamp || size < 1)
        return nullptr;
    mask_shelf & masks = main.run.masks;
    const mask_key wanted{.path = path, .stamp = *stamp, .size = size};
    if (const bitmap * scaled = masks.find(wanted))
        return scaled;
    const mask_key unscaled{.path = path, .stamp = *stamp, .size = as_loaded};
    const bitmap * loaded = masks.find(unscaled);
    if (loaded == nullptr)
        loaded = &masks.keep(unscaled, load_picture(format_of(path), path));
    return &masks.keep(wanted, resize_image(*loaded, size, size));
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
    const bitmap * mask = current_mask(main, size);
    if (mask == nullptr)
        return;
    const int column = shape_column(main, size, left);
    const int row = run.canvas.height() - (top + run.current_height);
    const bool outlined = main.chkOutline.visible() && main.chkOutline.ticked();
    if (photo)
        paint_mask(run.canvas, *mask, photo, outlined ? shape_border::outlined : shape_border::lightened,
                   column, row);
    else if (color != 0)
        paint_mask(run.canvas, *mask, shape_fill(color), column, row);
}
