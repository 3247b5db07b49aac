#include "engine/background.h"

#include "engine/photo/fixed_picture.h"
#include "engine/pixels/background_fit.h"
#include "session/window_state.h"
#include "support/files/paths.h"

#include <utility>

namespace {

bool has_own_background(const frmMain & main)
{
    const std::string & value = main.design_record.bg_image;
    return !value.empty() && value != "None" && value != "Solid" && value != "Either";
}

bitmap loaded(const std::string & path)
{
    return path.empty() ? bitmap{} : load_picture(picture_format::jpeg, path);
}

// A design's own picture has a small one for previews; where that is missing the picture itself serves.
bitmap small_own_background(const frmMain & main)
{
    const std::string & picture = main.design_record.bg_image;
    const bool is_users = is_under(picture, "user_images");
    const std::optional<std::string> path =
        fixed_picture_path(main, is_users ? picture : preview_picture(picture));
    bitmap image = path ? loaded(*path) : bitmap{};
    return image ? std::move(image) : loaded(main.txtBGimage.text());
}

bitmap small_background(const frmMain & main)
{
    const bitmap image =
        has_own_background(main) ? small_own_background(main) : loaded(main.txtBGimage.text());
    if (!image)
        return {};
    return continued(preview_background(image, selected_shape(main)), main.collage_width,
                     main.collage_height);
}

bitmap full_background(const frmMain & main)
{
    bitmap image = loaded(full_size_picture(main.txtBGimage.text()));
    if (main.optSquare.selected())
        image = squared(image);
    const int scale = main.run.drawn_at.canvas();
    return rescaled(image, main.collage_width * scale, main.collage_height * scale);
}

}  // namespace

void lay_background(frmMain & main, run_size size)
{
    const int alpha = blend_alpha(number_in(main.cmbBlend));
    if (alpha == 0 || !(main.optBGimage.selected() || main.collage.bg_from_design))
        return;
    const bitmap image = size == run_size::preview ? small_background(main) : full_background(main);
    const int margin = main.run.collage_margin * main.run.drawn_at.canvas();
    paste(main.run.canvas, image, margin, margin, alpha);
}
