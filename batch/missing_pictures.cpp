#include "batch/missing_pictures.h"

#include "engine/photo/fixed_picture.h"
#include "engine/photo/mask_path.h"
#include "engine/pixels/background_fit.h"
#include "support/files/paths.h"

namespace {

bool is_shape(const location & place)
{
    return place.height == 0 || place.width == 0;
}

bool has_its_picture(const frmMain & main, const location & place)
{
    if (place.file.empty())
        return true;
    if (is_shape(place))
        return file_readable(found_mask(place.file, main.install_folder, main.data_folder));
    const std::optional<std::string> path = fixed_picture_path(main, place.file);
    return path && jpeg_size(*path);
}

bool lays_background(const frmMain & main)
{
    return main.optBGimage.selected() && !main.txtBGimage.text().empty() && number_in(main.cmbBlend) > 0;
}

}  // namespace

std::string missing_picture(const frmMain & main)
{
    const location_table & table = main.design_locations;
    for (int i = 0; main.work_style == "Place" && i <= table.count; ++i)
        if (!has_its_picture(main, table[i]))
            return table[i].file;
    const std::string background = full_size_picture(main.txtBGimage.text());
    return lays_background(main) && !jpeg_size(background) ? background : "";
}
