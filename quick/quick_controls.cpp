#include "quick/quick_controls.h"

#include "engine/flurn_driver.h"
#include "quick/matrix/quick_matrix.h"
#include "support/for_now.h"
#include "support/numbers.h"

namespace {

// With the preview off nothing counts the rows anew, so the shown number takes the step itself; it stops at
// one, where the grid will.
void step_count(frmMain & main, double & bias, double & shown, int step)
{
    const bool off = main.optSample.selected();
    if (off && shown + step < 1)
        return;
    bias += step;
    refresh_preview(main);
    if (!off)
        return;
    shown += step;
    show_rows_cols(main);
}

std::string count_text(double count)
{
    // The padding keeps the label as wide as a larger count would.
    return formatted(nearest(count), 2) + (count < 10 ? "  " : "");
}

void cmbSpace_click(frmMain & main)
{
    if (!main.cmbSpace.visible())
        return;
    refresh_preview(main);
}

// Half-typed numbers aren't worth a preview: it is off until the user turns it on again.
void cmbSpace_typed(frmMain & main)
{
    if (!main.cmbSpace.visible())
        return;
    if (main.optPreview.selected()) {
        main.optPreview.select(false);
        main.preview_blocked = true;
    }
    refresh_preview(main);
}

void connect_rows_and_columns(frmMain & main)
{
    const auto rows = [&main](int step) { step_count(main, main.shape_row_bias, main.shape_rows, step); };
    const auto columns = [&main](int step) {
        step_count(main, main.shape_column_bias, main.shape_columns, step);
    };
    main.cmdRowUp.on_click = [rows] { rows(1); };
    main.cmdRowDown.on_click = [rows] { rows(-1); };
    main.cmdColUp.on_click = [columns] { columns(1); };
    main.cmdColDown.on_click = [columns] { columns(-1); };
}

// What the run has counted is shown: the cells of the shapes, and whether the matrix could have fewer photos.
void settle_after_preview(frmMain & main)
{
    if (main.optShapes.selected())
        show_rows_cols(main);
    if (main.optMatrix.selected())
        find_matrix_line(main, main.quick.photos_portrait + 2 * main.quick.photos_landscape);
}

}  // namespace

void refresh_preview(frmMain & main)
{
    if (!main.updating_controls && !main.preview_blocked)
        redraw_sample(main);
}

void refresh_after_change(frmMain & main)
{
    main.chkOutline.tag = "skip";
    refresh_preview(main);
    main.chkOutline.tag.clear();
}

void redraw_sample(frmMain & main)
{
    // In the choosing stage no design is in force, and with the preview off the picture goes stale.
    if (main.menus_shown || !main.optPreview.selected())
        return;
    // While a preview is being made the triggers are void; afterwards they count, even if they didn't before.
    main.preview_blocked = true;
    const afterwards open_again([&] { main.preview_blocked = false; });
    make_preview(main);
    if (main.collage.quick_active)
        settle_after_preview(main);
}

void show_ready_made(frmMain & main)
{
    // Of the shapes there is none: what was drawn last says more than a picture of another style.
    if (!main.menus_shown && main.collage.quick_active && !main.updating_controls &&
        !main.optShapes.selected())
        make_preview(main);
}

void show_rows_cols(frmMain & main)
{
    const bool landscape = main.optLandscape.selected();
    main.lblRows.set_caption(count_text(main.shape_rows) + (landscape ? "  Columns" : "    Rows"));
    main.lblCols.set_caption(count_text(main.shape_columns) + (landscape ? "    Rows" : "  Columns"));
}

void place_at(control & each, int left, int top)
{
    box place = each.place();
    place.left = left;
    place.top = top;
    each.move(place);
}

void name_sides(frmMain & main)
{
    const bool landscape = main.optLandscape.selected();
    main.optAlignTop.set_caption(landscape ? "Right" : "Top");
    main.optAlignBottom.set_caption(landscape ? "Left" : "Bottom");
}

void tell_no_template(frmMain & main, int caller)
{
    main.desk.message("Can't find a collage template to match these photos.  Sorry" + std::to_string(caller) +
                      ".");
}

void connect_quick_controls(frmMain & main)
{
    connect_rows_and_columns(main);
    main.chkMix.on_change = [&main] { refresh_preview(main); };
    main.cmbSpace.on_click = [&main] { cmbSpace_click(main); };
    main.cmbSpace.on_typed = [&main] { cmbSpace_typed(main); };
}
