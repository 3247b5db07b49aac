#include "session/main_window/photos.h"

#include "photos/chosen_photos.h"
#include "photos/lists/photo_list.h"
#include "quick/start_quick.h"
#include "session/main_window/redraw.h"
#include "session/windows.h"

namespace {

void chkRandom_change(frmMain & main)
{
    if (main.chkRandom.ticked())
        shuffle_photos(main);
    refresh_preview(main);
}

void cmdShuffle_click(frmMain & main)
{
    shuffle_photos(main);
    refresh_preview(main);
}

// The caption says what the click does.
void cmdMore_click(frmMain & main)
{
    main.cmdMore.tag = main.cmdMore.caption() == "Fewer photos" ? "fewer" : "";
    refresh_preview(main);
}

void cmbBlanks_change(frmMain & main)
{
    if (main.cmbBlanks.visible())
        refresh_preview(main);
}

// A choice that isn't made leaves collage and photos as they are.
void cmdPhotos_click(frmMain & main)
{
    main.photo_choice_cancelled = false;
    main.desk.show_modal(main.all->select_photos);
    if (main.photo_choice_cancelled || photo_source_kind(main) == photo_source::none)
        return;
    go_on_with_chosen_photos(main);
}

}  // namespace

void go_on_with_chosen_photos(frmMain & main)
{
    take_chosen_photos(main);
    main.cmdMore.tag.clear();
    main.shape_row_bias = main.shape_column_bias = 0;
    take_new_photos(main);
}

void connect_photos(frmMain & main)
{
    main.chkMatch.on_change = main.chkEvolve.on_change = [&main] { refresh_preview(main); };
    main.chkRandom.on_change = [&main] { chkRandom_change(main); };
    main.cmdShuffle.on_click = [&main] { cmdShuffle_click(main); };
    main.cmdMore.on_click = [&main] { cmdMore_click(main); };
    main.cmbBlanks.on_typed = main.cmbBlanks.on_click = [&main] { cmbBlanks_change(main); };
    main.cmdPhotos.on_click = [&main] { cmdPhotos_click(main); };
}
