#include "designs/browser/frmThemes.h"

#include "designs/browser/theme_listing.h"
#include "designs/browser/theme_sample.h"
#include "designs/browser/theme_steps.h"
#include "designs/catalogue/chosen_design.h"
#include "frames/sets/frame_sets.h"
#include "frames/sets/frames_template.h"
#include "session/windows.h"
#include "support/for_now.h"

// The chooser of designs.

namespace {

constexpr int form_height = 8760;  // 1/15 pixel

struct orientation_layout {
    box sample;
    int form_width;  // 1/15 pixel
    int buttons_left;
};

constexpr orientation_layout upright{{432, 30, 300, 450}, 11430, 152};
constexpr orientation_layout across{{424, 96, 450, 300}, 13410, 220};

void keep_size(frmThemes & window)
{
    window.resize(window.form_width, form_height);
}

void take_layout(frmThemes & window, const orientation_layout & layout)
{
    window.picSample.show(false);
    window.picSample.load("");
    window.picSample.move(layout.sample);
    box buttons = window.frmButtons.place();
    buttons.left = layout.buttons_left;
    window.frmButtons.move(buttons);
    window.form_width = layout.form_width;
    keep_size(window);
}

void list_from_start(windows & all, count_list counts)
{
    if (all.themes.settling)
        return;
    all.themes.page_start = 0;
    GetDesigns(all.themes, all.main, counts);
}

void orientation_click(windows & all, const orientation_layout & layout)
{
    take_layout(all.themes, layout);
    list_from_start(all, count_list::made_anew);
}

void tell_frames_missing(windows & all)
{
    all.main.collage.frame_set_name.clear();
    if (start_custom_frames(all.main).empty())
        all.main.desk.message(
            "You will not be able to use any of these custom frame designs\r\n"
            "until you create one of your own custom frames.\r\n"
            "\r\n"
            "You have no custom frames at this time.");
}

void optFrames_click(windows & all)
{
    list_from_start(all, count_list::made_anew);
    tell_frames_missing(all);
}

void optSaved_click(windows & all)
{
    list_from_start(all, count_list::made_anew);
    if (!all.themes.optDesign[0].visible())
        all.main.desk.message("You don't have any saved designs yet.");
}

// ---- load and end

void load_themes(windows & all)
{
    frmThemes & window = all.themes;
    all.main.lblDesign.tag.clear();
    window.page_start = 0;
    window.more_pages = false;
    window.chkFlip.tick(false);
    window.chkMirror.tick(false);
    {
        const for_now quiet(window.settling, true);
        window.optPortrait.select();
    }
    take_layout(window, upright);
    window.optAll.select(false);
    window.optAll.select();
}

// True once the design wears a frame set. The window closes when the user backs out, or when the set doesn't
// go with the design.
bool wears_frame_set(windows & all)
{
    all.main.collage.frames_design = false;
    if (!offer_frame_sets(all.main))
        return false;
    if (!choose_frame_set(all.main) || !build_frames_template(all.main)) {
        all.themes.unload();
        return false;
    }
    all.main.design_record.file = "__frames";
    offer_list_of_frame_set(all.main);
    return true;
}

chosen_design choice_of(frmThemes & window)
{
    const option_button & slot = slot_of(window, window.selected_index);
    return {.section = slot.tag,
            .name = window.design_names.at(static_cast<std::size_t>(window.selected_index)),
            .shape = window.optLandscape.selected() ? poster_shape::landscape : poster_shape::portrait,
            .rotated = window.chkRandom.ticked(),
            .flipped = window.chkFlip.ticked(),
            .mirrored = window.chkMirror.ticked()};
}

void cmdOk_click(windows & all)
{
    frmThemes & window = all.themes;
    if (window.selected_index < 0)
        return;
    make_room_for_background(all.main);
    if (all.main.design_record.design == "Frame" && !wears_frame_set(all))
        return;
    if (window.chkRandom.ticked() && window.optScatter.selected())
        all.main.chkRandom.show(false);
    take_design(all.main, choice_of(window));
    window.unload();
}

void connect_lists(windows & all)
{
    frmThemes & window = all.themes;
    for (option_button * each : {&window.optAll, &window.optScatter, &window.optBlock, &window.optTheme})
        each->on_click = [&all] { list_from_start(all, count_list::made_anew); };
    window.optSaved.on_click = [&all] { optSaved_click(all); };
    window.optFrames.on_click = [&all] { optFrames_click(all); };
    window.cmbDesign.on_click = [&all] { list_from_start(all, count_list::kept); };
    window.cmbDesign.on_typed = window.cmbDesign.on_click;
    window.optPortrait.on_click = [&all] { orientation_click(all, upright); };
    window.optLandscape.on_click = [&all] { orientation_click(all, across); };
}

void connect_designs(windows & all)
{
    frmThemes & window = all.themes;
    for (int index = 0; index < slot_count; ++index) {
        slot_of(window, index).on_click = [&all, index] { show_design(all.themes, all.main, index); };
        slot_of(window, index).on_double_click = [&window] {
            if (window.cmdOk.enabled())
                window.cmdOk.click();
        };
        window.picDesign[static_cast<std::size_t>(index)].on_click = [&window, index] {
            slot_of(window, index).select();
        };
    }
    window.cmdPage_plus.on_click = [&all] { list_next_page(all.themes, all.main); };
    window.cmdPage_minus.on_click = [&all] { list_page_before(all.themes, all.main); };
    window.cmdNext.on_click = [&window] { select_next_design(window); };
    window.cmdPrevious.on_click = [&window] { select_previous_design(window); };
    window.on_move_key = [&window](move_key pressed, const control * focused) {
        return move_about(window, pressed, focused);
    };
}

}  // namespace

void connect_frmThemes(windows & all)
{
    frmThemes & window = all.themes;
    window.on_load = [&all] { load_themes(all); };
    window.on_resize = [&window] { keep_size(window); };
    connect_lists(all);
    connect_designs(all);
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
