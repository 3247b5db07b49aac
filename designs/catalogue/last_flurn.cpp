#include "designs/catalogue/last_flurn.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

namespace {

bool is_quick(const frmMain & main)
{
    return main.lblDesign.caption().starts_with("Quick ");
}

saved_layout layout_of(const frmMain & main)
{
    if (!is_quick(main))
        return saved_layout::matrix;
    const bool shaped = main.optShapes.selected() && main.cmbShapes.text() != "Squares";
    return shaped ? saved_layout::quick_shape : saved_layout::quick;
}

finished_flurn collage_at_hand(const frmMain & main)
{
    return {.layout = layout_of(main),
            .is_landscape = is_quick(main) ? main.run_landscape : !main.matrix_portrait,
            .is_square = main.square_background};
}

std::string kept_layout(const frmMain & main)
{
    return work_path(main, "tmp/last_flurn");
}

std::string kept_picture(const frmMain & main)
{
    return work_path(main, "tmp/last_flurn.jpg");
}

}  // namespace

std::string working_template(const frmMain & main)
{
    return work_path(main, is_quick(main) ? "designs/__quick" : "designs/__matrix");
}

void keep_last_flurn(frmMain & main)
{
    if (!owns_data_folder(main) || !main.mnuSaveDesign.enabled() || !file_exists(working_template(main)))
        return;
    // Where that fails the collage is finished all the same; as long as it is at hand it can be saved.
    tried([&] {
        forget_last_flurn(main);
        write_file(kept_layout(main), read_file(working_template(main)));
        write_file(kept_picture(main), read_file(finished_path(main)));
        main.last_flurn = collage_at_hand(main);
        main.last_flurn.is_kept = true;
    });
}

void forget_last_flurn(frmMain & main)
{
    main.last_flurn = {};
    tried([&] {
        delete_file(kept_layout(main));
        delete_file(kept_picture(main));
    });
}

flurn_to_save last_flurn(const frmMain & main)
{
    if (main.last_flurn.is_kept)
        return {.how = main.last_flurn, .layout = kept_layout(main), .picture = kept_picture(main)};
    return {.how = collage_at_hand(main), .layout = working_template(main), .picture = finished_path(main)};
}
