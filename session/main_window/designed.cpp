#include "session/main_window/designed.h"

#include "designs/catalogue/catalogue.h"
#include "photos/lists/photo_list.h"
#include "session/begin_collage.h"
#include "session/start_designed.h"
#include "session/window_state.h"
#include "session/windows.h"

namespace {

// A folder is in the table when its chooser closes. A choice cancelled for an earlier collage doesn't count.
void ask_for_photos(frmMain & main)
{
    main.photo_choice_cancelled = false;
    main.desk.show_modal(main.all->select_photos);
    const photo_source kind = photo_source_kind(main);
    if (!main.photo_choice_cancelled && (kind == photo_source::list || kind == photo_source::selection))
        get_photos(main);
}

}  // namespace

void begin_designed(frmMain & main)
{
    begin_collage(main, collage_kind::designed);
    clear_stage(main);
    main.desk.show_modal(main.all->themes);
    start_enable_true(main);
    close_catalogue(main);
    if (main.lblDesign.tag.empty())
        main.cmdCancel.click();
    else
        start_designed(main, [&main] { ask_for_photos(main); });
}
