#include "engine/photo/shape_mask.h"

#include "engine/photo/mask_path.h"
#include "engine/pixels/resize_image.h"
#include "support/files/paths.h"

namespace {

picture_format format_of(const std::string & name)
{
    return name.ends_with('G') || name.ends_with('g') ? picture_format::jpeg : picture_format::gif;
}

}  // namespace

const bitmap * shape_mask(frmMain & main, const std::string & name, int size)
{
    const std::string path = found_mask(name, main.install_folder, main.data_folder);
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
