#include "engine/background.h"

#include "engine/canvas.h"
#include "engine/photo/canvas_steps.h"
#include "engine/photo/fixed_picture.h"
#include "engine/pixels/background_fit.h"
#include "engine/pixels/rectangles.h"
#include "photos/scaled_jpeg.h"
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

// The picture as it is loaded and rescaled, read by rows where that gives the same.
bitmap loaded_at(const std::string & path, picture_size size)
{
    photo_memory memory;
    std::optional<bitmap> read = read_rescaled_jpeg(path, size, memory);
    return read ? std::move(*read)
                : rescaled(load_picture(picture_format::jpeg, path), size.width, size.height);
}

bitmap loaded_for_preview(const std::string & path, poster_shape shape)
{
    const picture_size own = usable_jpeg_size(path).value_or(picture_size{});
    return preview_background(loaded_at(path, preview_background_size(own, shape)), shape);
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

std::vector<small_ground_key> keys_of(const std::vector<std::string> & paths, poster_shape shape)
{
    std::vector<small_ground_key> keys;
    for (const std::string & path : paths)
        if (const std::optional<file_stamp> stamp = stamp_of(path))
            keys.push_back({.path = path, .stamp = *stamp, .shape = shape});
    return keys;
}

// Another core looks at the files and reads the picture, be it as large as it may. The first that can be read
// is kept for the next previews; nullptr when none can. Good until the next one is kept.
const bitmap * small_background(frmMain & main)
{
    const auto keys = beside(
        main.desk, main.workers,
        [paths = small_backgrounds(main), shape = selected_shape(main)] { return keys_of(paths, shape); });
    for (const small_ground_key & key : keys) {
        if (const bitmap * const kept = main.run.grounds.find(key))
            return kept;
        if (bitmap read =
                beside(main.desk, main.workers, [&] { return loaded_for_preview(key.path, key.shape); }))
            return &main.run.grounds.keep(key, std::move(read));
    }
    return nullptr;
}

bitmap preview_ground(frmMain & main)
{
    const bitmap * const small = small_background(main);
    return small != nullptr ? continued(*small, main.collage_width, main.collage_height) : bitmap();
}

bitmap full_background(frmMain & main, picture_size size)
{
    const std::string path = full_size_picture(main.txtBGimage.text());
    const bool is_square = main.optSquare.selected();
    return beside(main.desk, main.workers, [=] {
        if (!is_square)
            return loaded_at(path, size);
        const bitmap image = squared(load_picture(picture_format::jpeg, path));
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
                             ? preview_ground(main)
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
