#include "engine/quick_template.h"

#include "designs/catalogue.h"

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

/// The generator of the selected style writes `designs/__quick` here, the block, scatter and shapes ones
/// behind the record, which they read, the matrix one in front of it.
void write_template(frmMain &) {}

}  // namespace

void make_quick_template(frmMain & main, run_size size)
{
    if (!main.quick_active)
        return;
    if (main.optMatrix.selected()) {
        if (size == run_size::full) {
            main.collage_width = 2000;
            main.collage_height = 3000;
        }
        write_template(main);
        read_record(main, "Quick matrix", no_matrix_message(size));
    } else {
        read_record(main, "Match", "should not happen 2 ?");
        write_template(main);
    }
}
