#include "quick/quick_controls.h"

#include "engine/flurn_driver.h"
#include "support/numbers.h"

namespace {

// While a preview is being made the triggers are void.
class redrawing {
public:
    explicit redrawing(frmMain & window) : main(window) { main.preview_blocked = true; }
    redrawing(const redrawing &) = delete;
    redrawing & operator=(const redrawing &) = delete;
    ~redrawing() { main.preview_blocked = false; }

private:
    frmMain & main;
};

void show_each(std::initializer_list<control *> controls, bool show)
{
    for (control * each : controls)
        each->show(show);
}

void place_at(control & each, int left, int top)
{
    box place = each.place();
    place.left = left;
    place.top = top;
    each.move(place);
}

void enable_borders(frmMain & main)
{
    for (option_button * each : main.border_options)
        each->enable(true);
}

enum class match_box { ticked, hidden };

// All four styles settle the matching, and none of them may redraw for it.
void settle_matching(frmMain & main, match_box wanted)
{
    const updating quiet(main);
    main.chkMatch.show(wanted == match_box::ticked);
    main.chkMatch.tick(wanted == match_box::ticked);
}

void optBlock_click(frmMain & main)
{
    show_each({&main.frmOrnaments, &main.frmSpace, &main.cmbSpace, &main.lblBlanks, &main.cmbBlanks,
               &main.optSample},
              true);
    show_each({&main.cmdMore, &main.frmAlign, &main.chkOutline, &main.frmSquares, &main.frmShake,
               &main.cmbShapes, &main.chkMix},
              false);
    const box evolve = main.chkEvolve.place();
    place_at(main.frmSpace, main.frmShake.place().left, main.frmShake.place().top);
    place_at(main.cmbBlanks, evolve.left - 55, evolve.top + 282);
    place_at(main.lblBlanks, evolve.left - 35, evolve.top - 700);
    place_at(main.frmSquares, main.chkMatch.place().left - 30, evolve.top - 440);
    enable_borders(main);
    main.chkMatch.enable(true);
    settle_matching(main, match_box::ticked);
    main.chkRounded.enable(true);
    main.lblDesign.set_caption("Quick Block");
    main.chkCaption.enable(false);
    refresh_preview(main);
}

void optScatter_click(frmMain & main)
{
    show_each({&main.frmOrnaments, &main.optSample}, true);
    show_each({&main.cmdMore, &main.frmShake, &main.frmSpace, &main.frmAlign, &main.chkOutline,
               &main.frmSquares, &main.cmbShapes, &main.chkMix},
              false);
    main.chkRounded.enable(false);
    main.chkRounded.tick(false);
    main.lblDesign.set_caption("Quick Scatter");
    main.chkCaption.enable(true);
    settle_matching(main, match_box::ticked);
    refresh_preview(main);
}

void optMatrix_click(frmMain & main)
{
    show_each({&main.frmOrnaments, &main.frmShake, &main.optSample}, true);
    show_each(
        {&main.frmAlign, &main.chkOutline, &main.frmSquares, &main.cmbSpace, &main.cmbShapes, &main.chkMix},
        false);
    enable_borders(main);
    main.chkRounded.enable(!main.chkRotate.ticked());
    if (main.chkRotate.ticked()) {
        const updating quiet(main);
        main.chkRounded.tick(false);
    }
    main.lblDesign.set_caption("Quick Matrix");
    main.chkCaption.enable(true);
    settle_matching(main, match_box::ticked);
    refresh_preview(main);
}

// A landscape poster is drawn upright and turned, so what was above lies on the right.
void name_sides(frmMain & main)
{
    const bool landscape = main.optLandscape.selected();
    main.optAlignTop.set_caption(landscape ? "Right" : "Top");
    main.optAlignBottom.set_caption(landscape ? "Left" : "Bottom");
}

void show_shapes_controls(frmMain & main)
{
    const box shake = main.frmShake.place();
    place_at(main.frmSpace, shake.left, shake.top);
    place_at(main.cmbSpace, shake.left, shake.top);
    place_at(main.frmAlign, 222, shake.top);
    show_each({&main.frmSpace, &main.cmbSpace, &main.frmAlign, &main.frmSquares}, true);
    show_each({&main.cmdMore, &main.frmShake}, false);
    enable_borders(main);
    settle_matching(main, match_box::hidden);
    main.chkRounded.enable(true);
    name_sides(main);
    main.lblRows.set_caption(main.optLandscape.selected() ? "Columns" : "Rows");
    main.lblCols.set_caption(main.optLandscape.selected() ? "Rows" : "Columns");
    refresh_preview(main);
    main.optPreview.select();
    main.optSample.show(true);
}

void optShapes_click(frmMain & main)
{
    main.cmbShapes.set_text("Squares");
    show_each({&main.cmbShapes, &main.chkMix, &main.frmOrnaments}, true);
    main.chkOutline.show(false);
    main.lblDesign.set_caption("Quick Shapes Squares");
    main.chkCaption.enable(true);
    show_shapes_controls(main);
    show_rows_cols(main);
}

bool can_be_outlined(std::string_view shape)
{
    return shape != "Polka Dots" && shape != "Stripes" && shape != "Targets";
}

void cmbShapes_click(frmMain & main)
{
    const std::string shape = main.cmbShapes.text();
    if (shape == "Squares") {
        main.frmOrnaments.show(true);
        main.chkCaption.enable(true);
        main.chkOutline.show(false);
    } else {
        {
            const updating quiet(main);
            main.chkCaption.tick(false);
        }
        main.chkCaption.enable(false);
        main.frmOrnaments.show(false);
        main.chkOutline.show(can_be_outlined(shape));
    }
    main.lblDesign.set_caption("Quick Shapes " + shape);
    refresh_preview(main);
}

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
    if (main.optShapes.selected()) {
        refresh_preview(main);
    } else if (main.optPreview.selected()) {
        refresh_preview(main);
        main.optSample.select();
        show_rows_cols(main);
    } else {
        refresh_preview(main);
        show_rows_cols(main);
    }
}

void orientation_click(frmMain & main, poster_shape shape)
{
    const orientation_layout layout = layout_of(shape);
    main.picSample.show(false);
    main.picSample.move(layout.sample);
    main.resize(layout.window_width, main.height());
    main.poster_tall = shape != poster_shape::landscape;
    name_sides(main);
    drop_unfit_background(main, shape);
    update_orientation(main, shape);
    if (shape != poster_shape::square)
        main.bg_portrait = shape == poster_shape::portrait;
    place_at(main.frmDisplay, layout.display_left, layout.display_top);
    main.picSample.show(true);
}

// With the preview off nothing counts the rows anew, so the shown number takes the step itself.
void step_count(frmMain & main, double & bias, double & shown, int step)
{
    bias += step;
    refresh_preview(main);
    if (!main.optSample.selected())
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
    main.quick_spacing_changed = true;
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
    const redrawing quiet(main);
    make_preview(main);
}

void show_rows_cols(frmMain & main)
{
    const bool landscape = main.optLandscape.selected();
    main.lblRows.set_caption(count_text(main.shape_rows) + (landscape ? "  Columns" : "    Rows"));
    main.lblCols.set_caption(count_text(main.shape_columns) + (landscape ? "    Rows" : "  Columns"));
}

void connect_quick_controls(frmMain & main)
{
    main.optBlock.on_click = [&main] { optBlock_click(main); };
    main.optScatter.on_click = [&main] { optScatter_click(main); };
    main.optMatrix.on_click = [&main] { optMatrix_click(main); };
    main.optShapes.on_click = [&main] { optShapes_click(main); };
    main.cmbShapes.on_click = [&main] { cmbShapes_click(main); };
    main.optPortrait.on_click = [&main] { orientation_click(main, poster_shape::portrait); };
    main.optLandscape.on_click = [&main] { orientation_click(main, poster_shape::landscape); };
    main.optSquare.on_click = [&main] { orientation_click(main, poster_shape::square); };
    main.chkMix.on_change = [&main] { refresh_preview(main); };
    main.cmbSpace.on_click = [&main] { cmbSpace_click(main); };
    main.cmbSpace.on_typed = [&main] { cmbSpace_typed(main); };
    connect_rows_and_columns(main);
}
