#include "engine/run_steps.h"

#include "designs/templates/location_mixing.h"
#include "designs/templates/location_order.h"
#include "designs/templates/template_reader.h"
#include "engine/background.h"
#include "engine/canvas.h"
#include "engine/fill_loop.h"
#include "engine/image_number.h"
#include "engine/kept_canvas.h"
#include "engine/layout/ornament_sizes.h"
#include "engine/layout/run_layout.h"
#include "engine/layout/surroundings.h"
#include "engine/photo/photo_steps.h"
#include "engine/pixels/key_color.h"
#include "engine/place_loop.h"
#include "photos/lists/photo_list.h"
#include "session/window_state.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

namespace {

constexpr int evolve_off = 9;      // of the wrap counters: the rule never sees 0
constexpr int preview_offset = 8;  // of the layout in its picture control

bool shapes_are_mixed(const frmMain & main)
{
    return main.optShapes.selected() && main.frmStyle.visible() &&
           (main.chkMix.ticked() || number_in(main.cmbSpace) < 0);
}

bool matrix_is_mixed(const frmMain & main)
{
    return main.collage.quick_active && main.optMatrix.selected() &&
           (main.chkRotate.ticked() || main.chkResize.ticked() || main.chkShuffle.ticked());
}

// A poster is mixed as the preview on show.
mixing mixing_in(const frmMain & main, run_size size)
{
    const bool anew = size == run_size::preview && !main.collage.keeps_turns;
    return anew ? mixing::forced : mixing::as_before;
}

bool border_is_wanted(const frmMain & main)
{
    return !main.optNone.selected();
}

bool match_is_active(const frmMain & main)
{
    if (main.chkMatch.visible() && !main.chkMatch.ticked())
        return false;
    return main.collage.design_matches && !(main.optShapes.selected() && main.optShapes.visible());
}

void reset_matching(frmMain & main)
{
    main.run.next_portrait = main.run.next_landscape = 0;
    main.table.photo_orientation.fill({});
}

void set_ornaments(frmMain & main, run_size size)
{
    main.run.frame_color = away_from_key(get_rgb_triple(main.picFrameColor.back_color()));
    main.run.shadow_color = away_from_key(get_rgb_triple(main.picShadowColor.back_color()));
    const int frame = nearest(number_in(main.cmbFrame));
    const int shadow = nearest(number_in(main.cmbShadow));
    const bool full = size == run_size::full;
    main.run.frame_size = narrow(full ? frame : frame_list_in_preview(frame));
    main.run.shadow_size = narrow(full ? shadow : shadow_list_in_preview(shadow));
}

void turn_if_needed(frmMain & main)
{
    if (is_turned_afterwards(main))
        turn_locations(main);
    if (main.collage.stretch_design)
        stretch_locations(main);
}

// Places stand on the canvas, grids in their collage: their loop adds the bleed itself.
void move_to_canvas(frmMain & main, run_size size)
{
    const int shown_at = size == run_size::preview ? preview_offset : 0;
    const int bleed = layout_of(main) == layout::places ? main.run.collage_margin : 0;
    change_locations(main, [&](const location & place, location_role role) {
        return moved(place, role, shown_at + bleed);
    });
}

void make_room_for_ornaments(frmMain & main, run_size size)
{
    const bool places = layout_of(main) == layout::places;
    if (main.collage.frames_inside && main.run.frame_size > 0 && places)
        change_locations(main, [&](const location & place, location_role) {
            return framed_inside(place, main.run.frame_size);
        });
    if (main.chkSoftEdge.ticked() && main.frmOrnaments.visible() && (places || size == run_size::full))
        change_locations(
            main, [&](const location & place, location_role role) { return softened(place, role, size); });
}

std::vector<order_turn> turned_by_chance(frmMain & main)
{
    main.random.reseed();
    const int turns = whole(main.random.next() * 9 + 1) % 9 * (whole(main.random.next() * 3) + 1);
    std::vector<order_turn> made;
    for (int i = 0; i <= turns; ++i)
        made.push_back(shuffle_locations(main, whole(main.random.next() * 7 + 1) % 7));
    return made;
}

// Each preview turns the order anew; the poster is the one that the last preview showed. Shuffling would tear
// the pairs of a grid's rows apart.
void turn_the_order(frmMain & main, run_size size)
{
    collage & of = main.collage;
    location_table & table = main.design_locations;
    if (!of.random_design || !of.design_rotated || layout_of(main) == layout::grids)
        return;
    const bool anew = size == run_size::preview && !of.keeps_turns;
    if (anew || of.turns_shown.empty() || of.locations_shown != table.count) {
        of.locations_shown = table.count;
        of.turns_shown = turned_by_chance(main);
    } else {
        for (const order_turn & turn : of.turns_shown)
            shuffle(table, main.scratch_locations, turn);
    }
}

void fill_all_layers(frmMain & main, const sign_of_life & sign)
{
    main.run.photo_cursor = 0;
    fill_loop(main, sign);
    while (main.design_locations.count >= 3) {
        drop_layer(main.design_locations);
        fill_loop(main, sign);
    }
}

// A grid runs to its end whatever the user wishes.
run_end run_loops(frmMain & main)
{
    const sign_of_life sign = [&main] { show_image_number(main); };
    if (main.work_style == "Place") {
        place_loop(main, sign);
        return main.run.cancel_requested ? run_end::cancelled : run_end::complete;
    }
    if (layout_of(main) == layout::grids)
        fill_all_layers(main, sign);
    return run_end::complete;
}

std::string failure_text(const frmMain & main, const platform_error & error)
{
    const std::string text = main.trace + "XX  CAUGHT AN ERROR  " + std::to_string(code(error));
    return error.path.empty() ? text : text + "\n" + told(error);
}

}  // namespace

void read_new_template(frmMain & main, run_size size)
{
    main.design_locations.clear();
    read_template(main, size);
}

void bend_template(frmMain & main, run_size size)
{
    if (shapes_are_mixed(main))
        mix_locations(main, mixing_in(main, size));
    main.run.first_cell_height = main.design_locations[0].height;
    main.run.first_cell_width = main.design_locations[0].width;
    make_caption_room(main);
    if (matrix_is_mixed(main))
        mix_locations(main, mixing_in(main, size));
    if (border_is_wanted(main))
        apply_border(main, size);
}

void begin_run(frmMain & main)
{
    main.run.cancel_requested = false;
    main.cmdCancel.set_caption("Cancel");
    main.run.run_active = true;
    set_enable(main, false);
    main.txtDoing.set_text("Initializing....");
    main.txtDoing.show(true);
    main.run.began = std::chrono::steady_clock::now();
    main.trace = "MMM  ";
    main.left_out.in_this_run.clear();
    main.left_out.told_in_this_run = false;
    main.run.photos_shown.clear();
    main.run.match_active = match_is_active(main);
    reset_matching(main);
    if (main.chkRandom.ticked())
        shuffle_photos(main);
}

void lay_ground(frmMain & main, run_size size)
{
    allocate_canvas(main, size);
    main.trace += "HHH  ";
    main.run.collage_scale = main.collage_height / 600.0;
    lay_background(main, size);
    main.trace += "CCC  ";
    set_ornaments(main, size);
    main.run.image_number = 1;
    main.desk.pump();
    main.trace += "AAA  ";
}

run_end place_photos(frmMain & main, run_size size)
{
    turn_if_needed(main);
    move_to_canvas(main, size);
    make_room_for_ornaments(main, size);
    const std::vector<order_turn> shown_before = main.collage.turns_shown;
    turn_the_order(main, size);
    count_images(main);
    main.trace += "GGG  ";
    const int16 wraps = main.chkEvolve.ticked() ? 0 : evolve_off;
    main.run.evolve_portrait_wraps = main.run.evolve_landscape_wraps = wraps;
    run_end end = run_end::complete;
    with_kept_canvas(main, [&] { end = run_loops(main); });
    forget_ahead(main);
    // What was cancelled has not been shown.
    if (end == run_end::cancelled)
        main.collage.turns_shown = shown_before;
    main.trace += "BBB  ";
    return end;
}

void finish_canvas(frmMain & main)
{
    main.txtDoing.set_text("Finishing touches...");
    main.desk.pump();
    if (!main.txtCaption.text().empty())
        add_caption(main);
    main.trace += "EEE  ";
}

bool went_through(frmMain & main, const std::function<void()> & work)
{
    try {
        with_platform_errors(work);
        return true;
    } catch (const platform_error & error) {
        // The memory first: it may be what was missing.
        main.run.canvas = bitmap{};
        main.run.photos_shown.clear();
        main.desk.message(failure_text(main, error));
        return false;
    }
}

void end_run(frmMain & main)
{
    forget_ahead(main);
    main.run.canvas = bitmap{};
    main.run.run_active = false;
    main.run.cancel_requested = false;
    hide_image_number(main);
    set_enable(main, true);
}

void report_cancel(frmMain & main)
{
    main.run.run_active = false;
    main.run.cancel_requested = false;
    main.run.photos_shown.clear();
    hide_image_number(main);
    main.desk.message("Flurning has been canceled.");
    set_enable(main, true);
}
