#include "session/begin_collage.h"

void begin_collage(frmMain & main, collage_kind kind)
{
    const updating quiet(main);
    leave_quick_style(main);
    main.collage.forced.release();
    main.collage = {};
    main.collage.kind = kind;
    // A style that stays selected would have a say in how another design is drawn.
    main.quick = {};
    for (option_button * each : main.style_options)
        each->select(false);
    main.shape_row_bias = main.shape_column_bias = 0;
    main.skip_preview_click = false;
    main.drawn_background.reset();
    for (option_button * each : main.border_options)
        each->enable(true);
}

void leave_quick_style(frmMain & main)
{
    const updating quiet(main);
    main.collage.forced_by_style.release();
    main.collage.borders_free = true;
}
