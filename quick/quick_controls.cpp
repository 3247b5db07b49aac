#include "quick/quick_controls.h"

#include "quick/poster_sides.h"
#include "quick/quick_tables.h"
#include "session/main_window/redraw.h"

#include <cmath>

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

void cmbSpace_click(frmMain & main)
{
    if (!main.cmbSpace.visible())
        return;
    refresh_preview(main);
}

// True when the text had to be cut into range: the handler has then run for the new text already.
bool cut_into_range(frmMain & main)
{
    const int kept = spacing_in(main);
    if (std::abs(number_in(main.cmbSpace) - kept) < 1)
        return false;
    main.cmbSpace.set_text(formatted(kept));
    return true;
}

// Half-typed numbers aren't worth a preview: it is off until the user turns it on again.
void cmbSpace_typed(frmMain & main)
{
    if (!main.cmbSpace.visible() || cut_into_range(main))
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

}  // namespace

void connect_quick_controls(frmMain & main)
{
    connect_rows_and_columns(main);
    main.chkMix.on_change = [&main] { refresh_preview(main); };
    main.cmbSpace.on_click = [&main] { cmbSpace_click(main); };
    main.cmbSpace.on_typed = [&main] { cmbSpace_typed(main); };
}
