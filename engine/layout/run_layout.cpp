#include "engine/layout/run_layout.h"

layout layout_of(const frmMain & main)
{
    return main.work_style == "Fill" || main.work_style == "Matrix" ? layout::grids : layout::places;
}

run_size size_of_run(const frmMain & main)
{
    return main.in_preview ? run_size::preview : run_size::full;
}

bool is_saved_landscape(const frmMain & main)
{
    // A saved grid was written for its poster as it stands; turned, it would come out as one column.
    return main.optLandscape.selected() && layout_of(main) == layout::places &&
           (main.design_record.design == "Saved" || main.design_record.file.starts_with("saved"));
}

bool is_turned_afterwards(const frmMain & main)
{
    if (is_saved_landscape(main))
        return !main.in_preview;
    if (main.collage.landscape_turn != 0 && main.collage.landscape_turn != saved_landscape_turn)
        return true;
    return main.optLandscape.selected() && main.design_record.background == "Portrait";
}
