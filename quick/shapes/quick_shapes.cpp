#include "quick/shapes/quick_shapes.h"

#include "designs/templates/location_line.h"
#include "quick/quick_tables.h"
#include "quick/shapes/shapes_plan.h"
#include "session/window_state.h"

namespace {

shapes_align selected_align(const frmMain & main)
{
    if (main.optAlignCenter.selected())
        return shapes_align::center;
    return main.optAlignBottom.selected() ? shapes_align::bottom : shapes_align::top;
}

}  // namespace

void write_quick_shapes(frmMain & main)
{
    if (main.chkOutline.tag == "skip") {
        main.chkOutline.tag.clear();
        return;
    }
    const shapes_layout layout = shapes_plan({.poster = selected_shape(main),
                                              .shape = main.cmbShapes.text(),
                                              .last_photo = main.table.last_photo,
                                              .row_bias = main.shape_row_bias,
                                              .column_bias = main.shape_column_bias,
                                              .gap = spacing_in(main),
                                              .frame = pixels_in(main.cmbFrame),
                                              .shadow = pixels_in(main.cmbShadow),
                                              .align = selected_align(main),
                                              .mix = main.chkMix.ticked(),
                                              .blanks = start_blanks(main, main.random)},
                                             main.random);
    main.shape_rows = layout.rows;
    main.shape_columns = layout.columns;
    main.shape_row_bias = layout.row_bias;
    main.shape_column_bias = layout.column_bias;
    main.quick.shape_file = layout.file;
    write_quick_template(main, template_lines(layout.places));
}
