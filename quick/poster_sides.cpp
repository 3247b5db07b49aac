#include "quick/poster_sides.h"

#include "support/numbers.h"

namespace {

std::string count_text(double count)
{
    // The padding keeps the label as wide as a larger count would.
    return formatted(nearest(count), 2) + (count < 10 ? "  " : "");
}

}  // namespace

void show_rows_cols(frmMain & main)
{
    const bool landscape = main.optLandscape.selected();
    main.lblRows.set_caption(count_text(main.shape_rows) + (landscape ? "  Columns" : "    Rows"));
    main.lblCols.set_caption(count_text(main.shape_columns) + (landscape ? "    Rows" : "  Columns"));
}

void name_sides(frmMain & main)
{
    const bool landscape = main.optLandscape.selected();
    main.optAlignTop.set_caption(landscape ? "Right" : "Top");
    main.optAlignBottom.set_caption(landscape ? "Left" : "Bottom");
}
