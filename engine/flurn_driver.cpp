#include "engine/flurn_driver.h"

#include "designs/catalogue/last_flurn.h"
#include "engine/image_number.h"
#include "engine/output/flurn_file.h"
#include "engine/photo/photo_steps.h"
#include "engine/pixels/brought_down.h"
#include "engine/run_steps.h"
#include "photos/left_out.h"
#include "photos/thumbnails/thumbnails.h"
#include "session/window_state.h"
#include "session/windows.h"

#include <array>

namespace {

// What a full-size run takes over for itself and gives back at its end.
struct borrowed_settings {
    option_button * display = nullptr;
    option_button * shape = nullptr;
    bool in_preview = false;
    bool matrix_session = false;
};

borrowed_settings borrow_settings(frmMain & main)
{
    const borrowed_settings before{.display = selected_of(main.display_options),
                                   .shape = selected_of(main.orientation_options),
                                   .in_preview = main.in_preview,
                                   .matrix_session = main.collage.matrix_session};
    // Nothing that a run sets starts a preview inside it.
    const updating no_preview(main);
    main.optSample.select();
    main.in_preview = false;
    main.cmdFlurn.enable(false);
    main.cmdHelp.enable(false);
    return before;
}

void give_back(frmMain & main, const borrowed_settings & before)
{
    const updating no_preview(main);
    thumbnails_from_photos(main);
    if (before.display != nullptr)
        before.display->select();
    else
        main.optSample.select(false);
    if (before.shape != nullptr)
        before.shape->select();
    main.in_preview = before.in_preview;
    main.collage.matrix_session = before.matrix_session;
    main.cmdFlurn.enable(true);
    main.cmdHelp.enable(true);
}

void set_output_size(frmMain & main)
{
    main.square_background = main.optSquare.selected();
    main.run_landscape = main.optLandscape.selected();
    main.collage_width = main.optPortrait.selected() || main.optSquare.selected() ? 2000 : 3000;
    main.collage_height = main.optPortrait.selected() ? 3000 : 2000;
}

// A matrix of custom frames can't be read back as a grid.
void offer_saving(frmMain & main)
{
    if (main.collage.quick_active || (main.collage.matrix_session && !main.collage.frames_design))
        main.mnuSaveDesign.enable(true);
    main.collage.matrix_session = false;
}

void clear_quick_flags(frmMain & main)
{
    main.collage.quick_active = false;
}

bool is_cancelled_at_start(frmMain & main)
{
    if (!main.run.cancel_requested)
        return false;
    report_cancel(main);
    return true;
}

// Releases the canvas, which is half as large again, before the picture is encoded.
void keep_collage(frmMain & main)
{
    run_state & run = main.run;
    const int margin = run.collage_margin;
    run.canvas = brought_down(
        run.canvas,
        enlarged({.left = margin, .top = margin, .width = main.collage_width, .height = main.collage_height},
                 run.drawn_at.canvas()),
        run.drawn_at.samples);
    const picture_notes notes = notes_of_flurn({.width = run.canvas.width(), .height = run.canvas.height()});
    save_photo(main, run.canvas, notes, finished_path(main));
    hide_image_number(main);
    main.trace += "FFF  ";
}

// Not a single photo could be laid, or none was left to go on with: what is there is no collage.
bool is_bare(const frmMain & main)
{
    return main.table.last_photo >= 0 && !has_usable_photo(main);
}

void give_up(frmMain & main)
{
    main.run.run_active = false;
    main.run.photos_shown.clear();
    hide_image_number(main);
    tell_none_usable(main);
    set_enable(main, true);
}

void make_collage(frmMain & main, const std::function<void()> & when_made, borrowed_settings & before)
{
    const busy pointer(main.desk);
    begin_run(main);
    photos_from_thumbnails(main);
    lay_ground(main, run_size::full);
    if (is_cancelled_at_start(main)) {
        clear_quick_flags(main);
        before.display = &main.optPreview;
        return;
    }
    if (place_photos(main, run_size::full) == run_end::cancelled) {
        report_cancel(main);
        return;
    }
    if (is_bare(main)) {
        give_up(main);
        return;
    }
    finish_canvas(main);
    keep_collage(main);
    keep_last_flurn(main);
    fire(when_made);
    main.image_to_show = finished_path(main);
}

void show_collage(frmMain & main)
{
    if (!main.run.run_active || main.all == nullptr)
        return;
    main.shown_as = image_face::finished;
    main.desk.show_modal(main.all->image);
}

void take_failure(frmMain & main, borrowed_settings & before)
{
    clear_quick_flags(main);
    before.matrix_session = false;
    before.shape = &main.optPortrait;
    main.picSample.show(false);
}

void full_run(frmMain & main, const template_maker & make_template, const std::function<void()> & when_made,
              borrowed_settings & before)
{
    set_output_size(main);
    make_template(main, run_size::full);
    offer_saving(main);
    read_new_template(main, run_size::full);
    bend_template(main, run_size::full);
    const bool is_made = went_through(main, [&] { make_collage(main, when_made, before); });
    tell_left_out(main);
    if (is_made)
        show_collage(main);
    else
        take_failure(main, before);
}

}  // namespace

void make_flurn(frmMain & main, const template_maker & make_template, const std::function<void()> & when_made)
{
    borrowed_settings before = borrow_settings(main);
    // Whatever ends the run, the window is usable afterwards.
    try {
        full_run(main, make_template, when_made, before);
    } catch (...) {
        end_run(main);
        give_back(main, before);
        throw;
    }
    end_run(main);
    give_back(main, before);
}
