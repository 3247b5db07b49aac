#include "quick/quick_template.h"

#include "designs/catalogue/catalogue.h"
#include "quick/block/quick_block.h"
#include "quick/hole_chance.h"
#include "quick/matrix/quick_matrix.h"
#include "quick/scatter/quick_scatter.h"
#include "quick/shapes/quick_shapes.h"

namespace {

// The two diagnostics are worded the other way round in a preview.
std::string no_matrix_message(run_size size)
{
    return size == run_size::full ? "WHY CHECK FOR THIS??\r\nShould not happen: 101 "
                                  : "Should not happen: 101 \r\nWHY CHECK FOR THIS??";
}

void read_record(frmMain & main, const std::string & name, const std::string & when_missing)
{
    if (find_design(main, name))
        main.design_record.file = "__quick";
    else
        main.desk.message(when_missing);
}

// A full-size run draws the shapes that the preview has laid out.
void write_template(frmMain & main, run_size size)
{
    const bool preview = size == run_size::preview;
    main.quick.scatter_mode = scatter_mode::block;
    if (main.optBlock.selected()) {
        write_quick_block(main, hole_chance(main, size));
    } else if (main.optShapes.selected()) {
        if (preview && !main.collage.keeps_turns)
            write_quick_shapes(main);
    } else if (preview || main.optScatter.selected()) {
        main.quick.scatter_mode = scatter_mode::scatter;
        write_quick_scatter(main, hole_chance(main, size));
    }
}

}  // namespace

void make_quick_template(frmMain & main, run_size size)
{
    if (!main.collage.quick_active)
        return;
    if (main.optMatrix.selected()) {
        write_quick_matrix(main, hole_chance(main, size));
        read_record(main, "Quick matrix", no_matrix_message(size));
    } else {
        read_record(main, "Match", "should not happen 2 ?");
        write_template(main, size);
    }
}
