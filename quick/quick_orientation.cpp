#include "quick/quick_orientation.h"

#include "quick/no_template.h"
#include "quick/poster_sides.h"
#include "quick/quick_match.h"
#include "session/main_window/redraw.h"

// The orientation of the poster.

namespace {

struct orientation_layout {
    poster_shape shape;
    box sample;
    int window_width;  // 1/15 pixel
    int display_left, display_top;
};

orientation_layout layout_of(poster_shape shape)
{
    switch (shape) {
        case poster_shape::landscape:
            return {shape, {688, 112, 457, 308}, 17750, 760, 445};
        case poster_shape::square:
            return {shape, {688, 112, 308, 308}, 15600, 688, 552};
        default:
            return {shape, {688, 60, 308, 457}, 15600, 688, 552};
    }
}

// A picture made for the other orientation would be stretched beyond recognition.
void drop_unfit_background(frmMain & main, poster_shape shape)
{
    const bool fits = main.bg_portrait == (shape == poster_shape::portrait);
    if (shape == poster_shape::square || fits || main.txtBGimage.text().empty())
        return;
    const updating quiet(main);
    main.txtBGimage.set_text("");
    if (main.optBGimage.selected())
        main.optSolid.select();
}

void update_orientation(frmMain & main, poster_shape shape)
{
    if (main.shape_in_force == shape)
        return;
    main.shape_in_force = shape;
    refresh_preview(main);
    if (main.optShapes.selected())
        return;
    const bool drawn = main.optPreview.selected();
    if (drawn) {
        const updating quiet(main);
        main.optSample.select();
    }
    show_rows_cols(main);
    if (drawn)
        resume_preview(main);
}

int caller_number(poster_shape shape)
{
    if (shape == poster_shape::portrait)
        return portrait_caller;
    return shape == poster_shape::landscape ? landscape_caller : square_caller;
}

bool template_found(frmMain & main, poster_shape shape)
{
    if (!main.optBlock.selected() && !main.optScatter.selected())
        return true;
    const bool found = match_quick_style(main);
    if (!found)
        tell_no_template(main, caller_number(shape));
    return found;
}

void orientation_click(frmMain & main, poster_shape shape)
{
    const orientation_layout layout = layout_of(shape);
    main.picSample.show(false);
    main.picSample.move(layout.sample);
    main.resize(layout.window_width, main.height());
    main.poster_tall = shape != poster_shape::landscape;
    name_sides(main);
    const bool found = template_found(main, shape);
    drop_unfit_background(main, shape);
    // Without a template the one before stays, and with it its picture.
    if (found)
        update_orientation(main, shape);
    if (shape != poster_shape::square)
        main.bg_portrait = shape == poster_shape::portrait;
    main.frmDisplay.move_to(layout.display_left, layout.display_top);
    main.picSample.show(true);
}

}  // namespace

void connect_quick_orientation(frmMain & main)
{
    main.optPortrait.on_click = [&main] { orientation_click(main, poster_shape::portrait); };
    main.optLandscape.on_click = [&main] { orientation_click(main, poster_shape::landscape); };
    main.optSquare.on_click = [&main] { orientation_click(main, poster_shape::square); };
}
