#include "designers/matrix/frmMatrix.h"

#include "designers/matrix/matrix_controls.h"
#include "designers/matrix/matrix_layout.h"
#include "designers/number_lists.h"
#include "designers/work_template.h"
#include "designs/catalogue/chosen_design.h"
#include "frames/sets/frame_field.h"
#include "frames/sets/frame_sets.h"
#include "frames/sets/frames_template.h"
#include "session/windows.h"
#include "support/for_now.h"

// The matrix designer.

namespace {

constexpr number_row gaps_offered{.first = 0, .last = 300, .step = 10};
constexpr number_row counts_offered{.first = 1, .last = 25};

void set_start_values(frmMatrix & window)
{
    const for_now quiet(window.settling, true);
    window.optPortraitPhotos.select();
    window.optPortraitPoster.select();
    offer_borders(window, poster_shape::portrait);
    for (combo_box * list : {&window.cmbRows, &window.cmbColumns}) {
        offer_numbers(*list, counts_offered);
        list->set_text("2");
    }
    for (combo_box * list : {&window.cmbTop, &window.cmbBottom, &window.cmbLeft, &window.cmbRight})
        list->set_text("100");
    for (combo_box * list : {&window.cmbHGap, &window.cmbVGap}) {
        offer_numbers(*list, gaps_offered);
        list->set_text("20");
    }
    for (check_box * box :
         {&window.chkColumnLock, &window.chkLock, &window.chkResize, &window.chkRotate, &window.chkFrames})
        box->tick(false);
    window.chkRowLock.tick(true);
    window.chkFrames.enable(true);
}

void load_matrix(windows & all)
{
    set_start_values(all.matrix);
    fit_columns(all.matrix);
    draw_sample(all.matrix, all.main);
}

// ---- counts and their locks

void fit_locked(frmMatrix & window)
{
    if (window.chkRowLock.ticked())
        fit_columns(window);
    if (window.chkColumnLock.ticked())
        fit_rows(window);
}

void count_changed(windows & all, const check_box & lock)
{
    if (all.matrix.settling)
        return;
    if (lock.ticked())
        fit_locked(all.matrix);
    draw_sample(all.matrix, all.main);
}

void lock_changed(windows & all, const check_box & changed, check_box & other)
{
    frmMatrix & window = all.matrix;
    if (window.settling)
        return;
    {
        const for_now quiet(window.settling, true);
        if (changed.ticked())
            other.tick(false);
        for (combo_box * list : {&window.cmbRows, &window.cmbColumns})
            offer_numbers(*list, counts_offered);
    }
    fit_locked(window);
    draw_sample(window, all.main);
}

// ---- borders

void border_changed(windows & all, const combo_box & changed)
{
    if (all.matrix.settling)
        return;
    if (all.matrix.chkLock.ticked())
        move_borders_together(all.matrix, changed);
    fit_borders(all.matrix);
    draw_sample(all.matrix, all.main);
}

// ---- orientations

void photos_changed(windows & all)
{
    if (all.matrix.settling)
        return;
    {
        // Frames are for single cells.
        const for_now quiet(all.matrix.settling, true);
        if (all.matrix.optBoth.selected())
            all.matrix.chkFrames.tick(false);
        all.matrix.chkFrames.enable(!all.matrix.optBoth.selected());
    }
    fit_locked(all.matrix);
    draw_sample(all.matrix, all.main);
}

void poster_changed(windows & all)
{
    if (all.matrix.settling)
        return;
    offer_borders(all.matrix, poster_of(all.matrix));
    fit_borders(all.matrix);
    fit_locked(all.matrix);
    draw_sample(all.matrix, all.main);
}

// ---- frames

// The box is ticked once the set is known, whatever happens on the way.
void choose_frames(windows & all)
{
    frmMatrix & window = all.matrix;
    const for_now quiet(window.settling, true);
    window.chkFrames.tick(false);
    if (!offer_frame_sets(all.main) || !choose_frame_set(all.main))
        return;
    const double captions = leading_number(get_frame_field(all.main, "Number of Captions"));
    const auto order = photo_order_of_set(all.main);
    if (!order)
        return;
    window.chosen_set = {
        .set = all.main.collage.frame_set_name, .captions = nearest16(captions), .order = *order};
    window.chkFrames.tick(true);
}

void chkFrames_change(windows & all)
{
    if (all.matrix.settling)
        return;
    if (all.matrix.chkFrames.ticked())
        choose_frames(all);
    draw_sample(all.matrix, all.main);
}

// ---- the end

std::string size_text(const matrix_choices & choices)
{
    return formatted(choices.rows) + "x" + formatted(choices.columns);
}

void take_matrix(frmMain & main, const matrix_choices & choices)
{
    const bool framed = choices.frames.has_value();
    main.matrix_size = size_text(choices);
    main.matrix_portrait = choices.poster == poster_shape::portrait;
    main.collage.matrix_both = choices.photos == matrix_photos::both;
    main.collage.matrix_rotate = choices.rotate;
    main.collage.matrix_resize = choices.resize;
    main.collage.frames_design = framed;
    if (framed)
        main.collage.frame_set_name = choices.frames->set;
    else
        main.collage.frame_set_name.clear();
    const updating quiet(main);
    take_design(main, {.section = framed ? "Frame_matrix" : "Matrix grid",
                       .name = (framed ? "Custom Frame Matrix " : "Matrix ") + main.matrix_size,
                       .shape = choices.poster});
    main.picSample.show(false);
}

void cmdOk_click(windows & all)
{
    const matrix_choices choices = matrix_choices_of(all.matrix);
    const std::string fault = matrix_fault(choices);
    if (!fault.empty()) {
        all.main.desk.message(fault);
        return;
    }
    write_matrix_design(all.matrix, all.main, run_size::preview);
    write_matrix_design(all.matrix, all.main, run_size::full);
    take_matrix(all.main, choices);
    if (choices.frames)
        offer_list_of_frame_set(all.main);
    all.matrix.unload();
}

// ---- hooks

template <typename Handler>
void on_any_change(combo_box & list, Handler handler)
{
    list.on_click = handler;
    list.on_typed = handler;
}

void connect_numbers(windows & all)
{
    frmMatrix & window = all.matrix;
    on_any_change(window.cmbRows, [&all] { count_changed(all, all.matrix.chkRowLock); });
    on_any_change(window.cmbColumns, [&all] { count_changed(all, all.matrix.chkColumnLock); });
    for (combo_box * list : {&window.cmbTop, &window.cmbBottom, &window.cmbLeft, &window.cmbRight})
        on_any_change(*list, [&all, list] { border_changed(all, *list); });
    for (combo_box * list : {&window.cmbHGap, &window.cmbVGap})
        on_any_change(*list, [&all] {
            if (!all.matrix.settling)
                draw_sample(all.matrix, all.main);
        });
}

void connect_choices(windows & all)
{
    frmMatrix & window = all.matrix;
    window.chkRowLock.on_change = [&all] {
        lock_changed(all, all.matrix.chkRowLock, all.matrix.chkColumnLock);
    };
    window.chkColumnLock.on_change = [&all] {
        lock_changed(all, all.matrix.chkColumnLock, all.matrix.chkRowLock);
    };
    for (option_button * option : window.photo_options)
        option->on_click = [&all] { photos_changed(all); };
    for (option_button * option : window.poster_options)
        option->on_click = [&all] { poster_changed(all); };
    for (check_box * box : {&window.chkResize, &window.chkRotate})
        box->on_change = [&all] {
            if (!all.matrix.settling)
                draw_sample(all.matrix, all.main);
        };
    window.chkFrames.on_change = [&all] { chkFrames_change(all); };
}

}  // namespace

void connect_frmMatrix(windows & all)
{
    frmMatrix & window = all.matrix;
    connect_numbers(all);
    connect_choices(all);
    window.on_load = [&all] { load_matrix(all); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
