#include "session/begin_collage.h"

void begin_collage(frmMain & main, collage_kind kind)
{
    const updating quiet(main);
    leave_quick_style(main);
    main.collage.forced.release();
    main.collage = {};
    main.collage.kind = kind;
    // The orientation options go on looking for a template of the style that is selected until another design
    // is applied.
    if (kind == collage_kind::quick)
        main.quick = {};
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
