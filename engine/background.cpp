#include "engine/background.h"

#include "engine/flurn_driver.h"
#include "engine/layout/surroundings.h"
#include "engine/photo/fixed_picture.h"
#include "engine/pixels/background_fit.h"
#include "session/window_state.h"
#include "support/files/paths.h"

#include <utility>

namespace {

constexpr int full_bleed = 360;
constexpr int preview_divisor = 6;
constexpr int dark = 6;       // channels below this are taken for black
constexpr int off_black = 7;  // the blue that keeps a dark colour apart from black

void size_preview(frmMain & main)
{
    const auto sixth = [](int pixels) { return nearest16(pixels / static_cast<double>(preview_divisor)); };
    main.collage_width = sixth(main.collage_width);
    main.collage_height = sixth(main.collage_height);
    main.run.collage_margin = sixth(main.run.collage_margin);
    if (main.optLandscape.selected() && main.collage_width < main.collage_height)
        std::swap(main.collage_width, main.collage_height);
}

void size_full(frmMain & main)
{
    if (main.collage_width > main.collage_height) {
        main.collage_width = 3000;
        main.collage_height = 2000;
    } else {
        main.collage_width = 2000;
        main.collage_height = main.optSquare.selected() ? 2000 : 3000;
    }
    main.run.collage_margin = narrow(main.run.collage_margin + full_bleed);
}

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
    return rescaled(image, main.collage_width, main.collage_height);
}

}  // namespace

void allocate_canvas(frmMain & main, run_size size)
{
    prepare_caption(main);
    if (size == run_size::preview)
        size_preview(main);
    else
        size_full(main);
    const int bleed = 2 * main.run.collage_margin;
    main.run.canvas = bitmap(main.collage_width + bleed, main.collage_height + bleed);
    if (main.optBGimage.selected() && number_in(main.cmbBlend) >= 100)
        return;  // black, for the picture to cover
    fill(main.run.canvas,
         get_rgb_triple(main.optSolid.selected() ? main.picBGcolor.back_color() : main.bg_color));
}

void lay_background(frmMain & main, run_size size)
{
    const int alpha = blend_alpha(number_in(main.cmbBlend));
    if (alpha == 0 || !(main.optBGimage.selected() || main.collage.bg_from_design))
        return;
    const bitmap image = size == run_size::preview ? small_background(main) : full_background(main);
    paste(main.run.canvas, image, main.run.collage_margin, main.run.collage_margin, alpha);
}

rgb_triple away_from_key(rgb_triple color)
{
    if (color.red < dark || color.green < dark || color.blue < dark)
        color.blue = off_black;
    return color;
}
