#include "designs/catalogue.h"
#include "photos/photo_list.h"
#include "session/handlers.h"
#include "session/new_poster.h"
#include "session/window_state.h"
#include "support/colors.h"

// " Designed flurn": a design of the catalogue, then the photos for it.

namespace {

void clear_stage(frmMain & main)
{
    main.picSplash.show(false);
    main.quick_active = main.quick_first_pass = false;
    main.quick_spacing_changed = main.quick_border = false;
    main.set_back_color(about_background);
    main.matrix_both = main.matrix_rotate = main.matrix_resize = false;
    main.design_rotated = main.design_flipped = main.design_mirrored = false;
    main.frames_design = main.use_list_of_frame = false;
    main.frame_set_name.clear();  // a set of another collage would bring its photo list along
    main.lblBlanks.show(false);
    main.cmbBlanks.show(false);
    main.cmbBlanks.set_text("0");
}

// A folder is in the table when its chooser closes. A choice cancelled for an earlier collage doesn't count.
void ask_for_photos(frmMain & main)
{
    main.photo_choice_cancelled = false;
    main.desk.show_modal(main.all->select_photos);
    const photo_source kind = photo_source_kind(main);
    if (!main.photo_choice_cancelled && (kind == photo_source::list || kind == photo_source::selection))
        get_photos(main);
}

void mnuDesigned_click(frmMain & main)
{
    clear_stage(main);
    main.desk.show_modal(main.all->themes);
    start_enable_true(main);
    close_catalogue(main);
    if (main.lblDesign.tag.empty())
        main.cmdCancel.click();
    else
        start_designed(main, [&main] { ask_for_photos(main); });
}

}  // namespace

void connect_designed(frmMain & main)
{
    main.mnuDesigned.on_click = [&main] { mnuDesigned_click(main); };
}
