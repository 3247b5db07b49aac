#include "session/main_window/shake.h"

#include "session/main_window/redraw.h"

namespace {

void chkRotate_change(frmMain & main)
{
    const bool rotated = main.chkRotate.ticked();
    if (rotated) {
        const updating quiet(main);
        main.chkRounded.tick(false);
    }
    main.chkRounded.enable(!rotated);
    refresh_preview(main);
}

}  // namespace

void connect_shake(frmMain & main)
{
    main.chkRotate.on_change = [&main] { chkRotate_change(main); };
    main.chkResize.on_change = main.chkShuffle.on_change = [&main] { refresh_preview(main); };
    for (option_button * each : main.align_options)
        each->on_click = [&main] { refresh_preview(main); };
}
