#include "engine/preview.h"

#include "designs/templates/template_reader.h"
#include "engine/layout/run_layout.h"
#include "engine/run_steps.h"
#include "photos/left_out.h"
#include "session/window_state.h"
#include "support/files/paths.h"

#include <algorithm>

namespace {

constexpr int caption_that_counts = 15;  // pixels

void scale_template(frmMain & main)
{
    change_locations(
        main, [](const location & place, location_role role) { return scaled_to_preview(place, role); });
    if (!is_saved_landscape(main))
        return;
    main.collage.landscape_turn = saved_landscape_turn;
    turn_locations(main);
}

void set_sample_size(frmMain & main)
{
    main.collage_width = 2000;
    main.collage_height = main.optSquare.selected() ? 2000 : 3000;
}

// Drawing nearer takes a caption's height off the top: a caption that stands there would be cut.
bool is_drawn_nearer(const frmMain & main)
{
    return !main.txtCaption.text().empty() && main.optBottom.selected() &&
           main.run.caption_height > caption_that_counts;
}

// A shaken matrix was laid out smaller, so that nothing is lost at the edges of the canvas: it is drawn
// nearer by as much.
bool is_laid_out_smaller(const frmMain & main)
{
    return main.collage.quick_active && main.optMatrix.selected() && main.quick.preview_inset > 0 &&
           main.txtCaption.text().empty();
}

bitmap matrix_part(const frmMain & main)
{
    const int margin = main.run.collage_margin, inset = main.quick.preview_inset;
    const int width = main.collage_width, height = main.collage_height;
    const int side = std::max(width, height);
    const int across = nearest(inset * width / static_cast<double>(side));
    const int down = nearest(inset * height / static_cast<double>(side));
    const bitmap part = copied(main.run.canvas, margin + across, margin + down, width + margin - across,
                               height + margin - down);
    return rescaled(part, width, height);
}

// The collage as it is shown: without its bleed, and drawn nearer above a large caption.
bitmap shown_part(const frmMain & main)
{
    if (is_laid_out_smaller(main))
        return matrix_part(main);
    const int margin = main.run.collage_margin;
    const int width = main.collage_width, height = main.collage_height;
    if (!is_drawn_nearer(main))
        return copied(main.run.canvas, margin, margin, width + margin, height + margin);
    const int caption = main.run.caption_height;
    const bitmap part = copied(main.run.canvas, margin + caption, margin + caption,
                               nearest(width + margin - 0.3 * caption), margin - caption + height);
    return rescaled(part, nearest(width + 0.8 * margin), nearest(height + 0.8 * margin));
}

void save_sample(frmMain & main)
{
    main.run.canvas = shown_part(main);
    save_jpeg(main.run.canvas, finished_path(main));
    main.trace += "FFF  ";
}

run_end make_sample(frmMain & main)
{
    const busy pointer(main.desk);
    set_sample_size(main);
    read_new_template(main, run_size::preview);
    scale_template(main);
    bend_template(main, run_size::preview);
    begin_run(main);
    lay_ground(main, run_size::preview);
    if (main.run.cancel_requested || place_photos(main, run_size::preview) == run_end::cancelled) {
        report_cancel(main);
        return run_end::cancelled;
    }
    finish_canvas(main);
    save_sample(main);
    main.trace += " (end sample)";
    return run_end::complete;
}

std::string block_key(const frmMain & main)
{
    const double spacing = number_in(main.cmbSpace);
    if (spacing < 10)
        return "nb";
    return spacing < 30 ? "sb" : "lb";
}

std::string matrix_key(const frmMain & main)
{
    std::string name = main.chkRotate.ticked() ? "r" : "o";
    if (main.chkResize.ticked())
        name.insert(0, "r");
    if (main.chkShuffle.ticked())
        name.insert(0, "s");
    return name;
}

// Name of the picture that stands for the selected quick style while no preview is made.
std::string stored_sample(const frmMain & main)
{
    const std::string shape = main.optPortrait.selected() ? "p_" : "l_";
    if (main.optBlock.selected())
        return shape + block_key(main) + ".jpg";
    return shape + (main.optScatter.selected() ? "s" : matrix_key(main)) + ".jpg";
}

void show_picture(frmMain & main, const std::string & path)
{
    if (file_exists(path))
        main.picSample.load(path);
    main.picSample.show(true);
}

// The poster is drawn by the chance of the preview on show, which one that didn't come to its end is not.
// False for one that didn't.
bool make_new_sample(frmMain & main, const template_maker & make_template)
{
    set_enable(main, false);
    set_sample_size(main);
    const std::vector<double> holes = main.collage.holes_shown;
    const int16 mix_step = main.mix_step;
    make_template(main, run_size::preview);
    if (gen_sample(main))
        return true;
    main.collage.holes_shown = holes;
    main.mix_step = mix_step;
    return false;
}

}  // namespace

bool gen_sample(frmMain & main)
{
    main.in_preview = true;
    run_end end = run_end::cancelled;
    try {
        if (!went_through(main, [&] { end = make_sample(main); }))
            main.in_preview = false;
    } catch (...) {
        end_run(main);
        throw;
    }
    end_run(main);
    tell_left_out(main);
    return end == run_end::complete;
}

void make_preview(frmMain & main, const template_maker & make_template)
{
    if (main.design_record.file.empty() && !main.collage.quick_active)
        return;
    if (main.optSample.selected()) {
        if (main.collage.quick_active)
            show_picture(main, joined(main.install_folder, "images/preview/" + stored_sample(main)));
        return;
    }
    try {
        const busy pointer(main.desk);
        // Where nothing was on show, the last picture is that of another collage.
        const bool was_shown = main.picSample.visible();
        const bool is_made = !main.optPreview.selected() || make_new_sample(main, make_template);
        if (is_made || was_shown)
            show_picture(main, finished_path(main));
    } catch (...) {
        set_enable(main, true);
        throw;
    }
    set_enable(main, true);
}
