#include "quick/quick_styles.h"

#include "quick/no_template.h"
#include "quick/poster_sides.h"
#include "quick/quick_match.h"
#include "session/begin_collage.h"
#include "session/main_window/redraw.h"

namespace {

void show_each(std::initializer_list<control *> controls, bool show)
{
    for (control * each : controls)
        each->show(show);
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

void lay_out_block(frmMain & main)
{
    show_each({&main.frmOrnaments, &main.frmSpace, &main.cmbSpace, &main.lblBlanks, &main.cmbBlanks,
               &main.optSample},
              true);
    show_each({&main.cmdMore, &main.frmAlign, &main.chkOutline, &main.frmSquares, &main.frmShake,
               &main.cmbShapes, &main.chkMix},
              false);
    const box evolve = main.chkEvolve.place();
    main.frmSpace.move_to(main.frmShake.place().left, main.frmShake.place().top);
    main.cmbBlanks.move_to(evolve.left - 55, evolve.top + 282);
    main.lblBlanks.move_to(evolve.left - 35, evolve.top - 700);
    main.frmSquares.move_to(main.chkMatch.place().left - 30, evolve.top - 440);
    enable_borders(main);
    main.chkMatch.enable(true);
    settle_matching(main, match_box::ticked);
    main.chkRounded.enable(true);
}

void optBlock_click(frmMain & main)
{
    leave_quick_style(main);
    lay_out_block(main);
    const bool found = match_quick_style(main);
    if (!main.optBlock.selected())
        return;  // too few photos: scatter was selected instead, and has drawn itself
    main.lblDesign.set_caption("Quick Block");
    main.chkCaption.enable(false);
    if (found) {
        refresh_preview(main);
        return;
    }
    tell_no_template(main, block_caller);
    main.trace += "(no match)";
    main.unload();
}

void optScatter_click(frmMain & main)
{
    leave_quick_style(main);
    show_each({&main.frmOrnaments, &main.optSample}, true);
    show_each({&main.cmdMore, &main.frmShake, &main.frmSpace, &main.frmAlign, &main.chkOutline,
               &main.frmSquares, &main.cmbShapes, &main.chkMix},
              false);
    main.chkRounded.enable(false);
    main.collage.forced_by_style.tick(main.chkRounded, false);
    const bool found = match_quick_style(main);
    if (!found)
        tell_no_template(main, scatter_caller);
    main.lblDesign.set_caption("Quick Scatter");
    main.chkCaption.enable(true);
    settle_matching(main, match_box::ticked);
    // Without a template the one before stays, and with it its picture.
    if (found)
        refresh_preview(main);
}

void optMatrix_click(frmMain & main)
{
    leave_quick_style(main);
    show_each({&main.frmOrnaments, &main.frmShake, &main.optSample, &main.cmdMore}, true);
    show_each({&main.frmAlign, &main.chkOutline, &main.frmSquares, &main.frmSpace, &main.cmbSpace,
               &main.cmbShapes, &main.chkMix},
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

void show_shapes_controls(frmMain & main)
{
    const box shake = main.frmShake.place();
    main.frmSpace.move_to(shake.left, shake.top);
    main.cmbSpace.move_to(shake.left, shake.top);
    main.frmAlign.move_to(222, shake.top);
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
    leave_quick_style(main);
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
            main.collage.forced_by_style.tick(main.chkCaption, false);
        }
        main.chkCaption.enable(false);
        main.frmOrnaments.show(false);
        main.chkOutline.show(can_be_outlined(shape));
    }
    main.lblDesign.set_caption("Quick Shapes " + shape);
    refresh_preview(main);
}

}  // namespace

void connect_quick_styles(frmMain & main)
{
    main.optBlock.on_click = [&main] { optBlock_click(main); };
    main.optScatter.on_click = [&main] { optScatter_click(main); };
    main.optMatrix.on_click = [&main] { optMatrix_click(main); };
    main.optShapes.on_click = [&main] { optShapes_click(main); };
    main.cmbShapes.on_click = [&main] { cmbShapes_click(main); };
}
