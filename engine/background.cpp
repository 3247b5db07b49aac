#include "engine/background.h"

#include "engine/canvas.h"
#include "engine/photo/canvas_steps.h"
#include "engine/photo/fixed_picture.h"
#include "engine/pixels/background_fit.h"
#include "engine/pixels/rectangles.h"
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

// The first of the pictures that can be read.
bitmap first_loaded(const std::vector<std::string> & paths)
{
    for (const std::string & path : paths)
        if (bitmap image = loaded(path))
            return image;
    return {};
}

// A design's own picture has a small one for previews; where that is missing the picture itself serves.
std::vector<std::string> small_backgrounds(const frmMain & main)
{
    if (!has_own_background(main))
        return {main.txtBGimage.text()};
    const std::string & picture = main.design_record.bg_image;
    const bool is_users = is_under(picture, "user_images");
    const std::optional<std::string> path =
        fixed_picture_path(main, is_users ? picture : preview_picture(picture));
    return {path.value_or(""), main.txtBGimage.text()};
}

// Another core reads the picture and brings it to its size, be it as large as it may.
bitmap small_background(frmMain & main)
{
    return beside(main.desk, main.workers,
                  [paths = small_backgrounds(main), shape = selected_shape(main), width = main.collage_width,
                   height = main.collage_height] {
                      const bitmap image = first_loaded(paths);
                      return image ? continued(preview_background(image, shape), width, height) : bitmap();
                  });
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
    work_on_canvas(
        main, [&](bitmap & canvas) { paste_weighed(canvas, image, {.left = margin, .top = margin}, alpha); });
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
