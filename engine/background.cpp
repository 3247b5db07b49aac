#include "engine/background.h"

#include "engine/canvas.h"
#include "engine/photo/fixed_picture.h"
#include "engine/pixels/background_fit.h"
#include "session/window_state.h"
#include "support/files/beside.h"
#include "support/files/paths.h"

#include <string>
#include <vector>

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

// The first of the pictures that can be read. Another core reads it, be it as large as it may.
bitmap loaded_beside(frmMain & main, const std::vector<std::string> & paths)
{
    return beside(main.desk, main.workers, [&] {
        bitmap image;
        for (const std::string & path : paths)
            if (!image)
                image = loaded(path);
        return image;
    });
}

// A design's own picture has a small one for previews; where that is missing the picture itself serves.
bitmap small_own_background(frmMain & main)
{
    const std::string & picture = main.design_record.bg_image;
    const bool is_users = is_under(picture, "user_images");
    const std::optional<std::string> path =
        fixed_picture_path(main, is_users ? picture : preview_picture(picture));
    return loaded_beside(main, {path.value_or(""), main.txtBGimage.text()});
}

bitmap small_background(frmMain & main)
{
    const bitmap image =
        has_own_background(main) ? small_own_background(main) : loaded_beside(main, {main.txtBGimage.text()});
    if (!image)
        return {};
    return continued(preview_background(image, selected_shape(main)), main.collage_width,
                     main.collage_height);
}

bitmap full_background(frmMain & main, picture_size size)
{
    const std::string path = full_size_picture(main.txtBGimage.text());
    const bool is_square = main.optSquare.selected();
    return beside(main.desk, main.workers, [=] {
        bitmap image = loaded(path);
        if (is_square)
            image = squared(image);
        return rescaled(image, size.width, size.height);
    });
}

// How much the picture behind the photos weighs; 0 where there is none.
int weight_of_picture(const frmMain & main)
{
    const bool has_one = main.optBGimage.selected() || main.collage.bg_from_design;
    return has_one ? blend_alpha(number_in(main.cmbBlend)) : 0;
}

}  // namespace

void lay_background(frmMain & main, run_size size)
{
    const int alpha = weight_of_picture(main);
    if (alpha == 0)
        return;
    const int scale = main.run.drawn_at.canvas();
    const bitmap image = size == run_size::preview
                             ? small_background(main)
                             : full_background(main, {.width = main.collage_width * scale,
                                                      .height = main.collage_height * scale});
    const int margin = main.run.collage_margin * scale;
    paste(main.run.canvas, image, margin, margin, alpha);
}

bitmap ground_picture(frmMain & main, picture_size size)
{
    const int alpha = weight_of_picture(main);
    const bitmap image = alpha == 0 ? bitmap{} : full_background(main, size);
    if (!image)
        return {};
    bitmap ground(size.width, size.height);
    fill(ground, ground_color(main));
    paste(ground, image, 0, 0, alpha);
    return ground;
}
