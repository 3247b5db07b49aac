#include "session/main_window/buttons.h"

#include "engine/flurn_driver.h"
#include "quick/quick_template.h"
#include "recipes/keep_flurn.h"
#include "session/main_window/redraw.h"
#include "session/window_state.h"
#include "support/windows/show_help.h"

namespace {

void leave_finishing_stage(frmMain & main)
{
    show_menus(main, true);
    show_work_controls(main, false);
    show_choosing_stage(main);
    main.collage.quick_active = false;
}

void cmdFlurn_click(frmMain & main)
{
    note_flurn(main);
    make_flurn(main, make_quick_template, [&main] { keep_flurn(main); });
}

void cmdCancel_click(frmMain & main)
{
    main.trace = " CC " + main.trace;
    main.drawn_background.reset();
    {
        const updating quiet(main);
        main.optPreview.select(false);
    }
    if (main.run.run_active)
        main.run.cancel_requested = true;
    else
        leave_finishing_stage(main);
}

void optPreview_click(frmMain & main)
{
    main.preview_blocked = false;
    {
        const updating quiet(main);
        main.chkRandom.tick(false);
    }
    main.skip_preview_click = false;
    refresh_preview(main);
}

void optSample_click(frmMain & main)
{
    main.preview_blocked = false;
    show_ready_made(main);
}

void show_own_help(frmMain & main)
{
    show_help(main, main.mnuFile.visible() ? "help_main.htm" : "finishing.htm");
}

// Escape ends a run as the button does; it doesn't leave the finishing stage.
void key_pressed(frmMain & main, key pressed)
{
    if (pressed != key::escape)
        show_own_help(main);
    else if (main.run.run_active)
        main.cmdCancel.click();
}

}  // namespace

void connect_buttons(frmMain & main)
{
    main.cmdFlurn.on_click = [&main] { cmdFlurn_click(main); };
    main.cmdCancel.on_click = [&main] { cmdCancel_click(main); };
    main.cmdHelp.on_click = [&main] { show_help(main, "finishing.htm"); };
    main.optPreview.on_click = [&main] { optPreview_click(main); };
    main.optSample.on_click = [&main] { optSample_click(main); };
    main.on_key = [&main](key pressed) { key_pressed(main, pressed); };
}
