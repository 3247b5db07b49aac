#include "designers/matrix/matrix_controls.h"

#include "designers/matrix/matrix_borders.h"
#include "designers/matrix/matrix_fit.h"
#include "designers/matrix/matrix_layout.h"
#include "designers/matrix/matrix_sample.h"
#include "designers/number_lists.h"
#include "designers/poster_area.h"
#include "designers/work_template.h"
#include "designs/templates/location_line.h"
#include "support/files/paths.h"
#include "support/for_now.h"

#include <utility>

namespace {

constexpr int border_step = 50;

// Pixels of the poster to one of the sample, on usual screens and on those of double density.
constexpr int usual_divisor = 6, dense_divisor = usual_divisor / 2;

border_limits limits_of(const frmMatrix & window)
{
    return {.height = nearest(leading_number(window.cmbTop.tag)),
            .width = nearest(leading_number(window.cmbLeft.tag))};
}

poster_borders borders_of(const frmMatrix & window)
{
    return {.top = number_of(window.cmbTop),
            .bottom = number_of(window.cmbBottom),
            .left = number_of(window.cmbLeft),
            .right = number_of(window.cmbRight)};
}

void show_borders(frmMatrix & window, const poster_borders & borders)
{
    const for_now quiet(window.settling, true);
    set_number(window.cmbTop, borders.top);
    set_number(window.cmbBottom, borders.bottom);
    set_number(window.cmbLeft, borders.left);
    set_number(window.cmbRight, borders.right);
}

matrix_photos photos_of(const frmMatrix & window)
{
    if (window.optBoth.selected())
        return matrix_photos::both;
    return window.optLandscapePhotos.selected() ? matrix_photos::landscape : matrix_photos::portrait;
}

void take_range(frmMatrix & window, combo_box & list, const count_range & range)
{
    const for_now quiet(window.settling, true);
    offer_numbers(list, {.first = range.low, .last = range.high});
    list.set_text(formatted(range.low));
}

bool is_locked(const frmMatrix & window)
{
    return window.chkRowLock.ticked() || window.chkColumnLock.ticked();
}

}  // namespace

poster_shape poster_of(const frmMatrix & window)
{
    return window.optLandscapePoster.selected() ? poster_shape::landscape : poster_shape::portrait;
}

matrix_choices matrix_choices_of(const frmMatrix & window)
{
    matrix_choices choices{.rows = number_of(window.cmbRows),
                           .columns = number_of(window.cmbColumns),
                           .borders = borders_of(window),
                           .gap_v = number_of(window.cmbVGap),
                           .gap_h = number_of(window.cmbHGap),
                           .photos = photos_of(window),
                           .poster = poster_of(window),
                           .rotate = window.chkRotate.ticked(),
                           .resize = window.chkResize.ticked()};
    if (window.chkFrames.ticked() && choices.photos != matrix_photos::both)
        choices.frames = window.chosen_set;
    return choices;
}

void draw_sample(frmMatrix & window, const frmMain & main)
{
    const std::string folder = work_path(main, "tmp");
    if (!folder_exists(folder))
        return;
    const matrix_choices choices = matrix_choices_of(window);
    const poster_area poster = whole_poster(choices.poster);
    const box place{.width = poster.width / usual_divisor, .height = poster.height / usual_divisor};
    const bitmap dense = drawn_sample(choices, dense_divisor);
    save_bmp(dense, joined(folder, "matrix_sample@2x.bmp"));
    save_bmp(rescaled(dense, place.width, place.height), joined(folder, "matrix_sample.bmp"));
    window.picSample.move(place);
    window.picSample.load(joined(folder, "matrix_sample.bmp"));
}

void write_matrix_design(const frmMatrix & window, frmMain & main, run_size size)
{
    const matrix_choices choices = matrix_choices_of(window);
    const matrix_layout layout = matrix_layout_of(choices, size);
    for (const std::string & complaint : layout.complaints)
        main.desk.message(complaint);
    const poster_area poster = whole_poster(choices.poster);
    main.collage_width = narrow(poster.width);
    main.collage_height = narrow(poster.height);
    write_work_template(main, size == run_size::preview ? "__matrix" : "__matrix_",
                        template_lines(matrix_locations(choices, layout)));
}

void fit_rows(frmMatrix & window)
{
    const matrix_choices choices = matrix_choices_of(window);
    if (choices.columns >= 1)
        take_range(window, window.cmbRows, is_locked(window) ? fitted_rows(choices) : free_counts);
}

void fit_columns(frmMatrix & window)
{
    const matrix_choices choices = matrix_choices_of(window);
    if (choices.rows >= 1)
        take_range(window, window.cmbColumns, is_locked(window) ? fitted_columns(choices) : free_counts);
}

void fit_borders(frmMatrix & window)
{
    show_borders(window, fitted_borders(borders_of(window), limits_of(window)));
}

void move_borders_together(frmMatrix & window, const combo_box & changed)
{
    show_borders(window, equal_borders(number_of(changed), limits_of(window)));
}

void offer_borders(frmMatrix & window, poster_shape poster)
{
    const border_limits limits = border_limits_of(poster);
    const auto offer = [](combo_box & list, int limit) {
        list.tag = formatted(limit);
        offer_numbers(list, {.first = 0, .last = limit, .step = border_step});
    };
    for (combo_box * list : {&window.cmbTop, &window.cmbBottom})
        offer(*list, limits.height);
    for (combo_box * list : {&window.cmbLeft, &window.cmbRight})
        offer(*list, limits.width);
}
