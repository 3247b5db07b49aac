#include "session/main_window/redraw.h"

#include "engine/preview.h"
#include "quick/matrix/quick_matrix.h"
#include "quick/photo_note.h"
#include "quick/poster_sides.h"
#include "quick/quick_template.h"
#include "support/for_now.h"

namespace {

// What the run has counted is shown: the cells of the shapes, whether the matrix could have fewer photos, and
// how many are left out.
void settle_after_preview(frmMain & main)
{
    if (main.optShapes.selected())
        show_rows_cols(main);
    if (main.optMatrix.selected())
        offer_fewer_photos(main);
    note_photos_in_use(main);
}

}  // namespace

void refresh_preview(frmMain & main)
{
    if (!main.updating_controls && !main.preview_blocked)
        redraw_sample(main);
}

void refresh_after_change(frmMain & main)
{
    main.chkOutline.tag = "skip";
    refresh_preview(main);
    main.chkOutline.tag.clear();
}

void resume_preview(frmMain & main)
{
    const updating quiet(main);
    const bool random = main.chkRandom.ticked();
    main.optPreview.select();
    main.chkRandom.tick(random);  // the user's click takes it away
}

void redraw_sample(frmMain & main)
{
    // In the choosing stage no design is in force, and with the preview off the picture goes stale.
    if (main.menus_shown || !main.optPreview.selected())
        return;
    // While a preview is being made the triggers are void; afterwards they count, even if they didn't before.
    main.preview_blocked = true;
    const afterwards open_again([&] { main.preview_blocked = false; });
    make_preview(main, make_quick_template);
    if (main.collage.quick_active)
        settle_after_preview(main);
}

void show_ready_made(frmMain & main)
{
    // Of the shapes there is none: what was drawn last says more than a picture of another style.
    if (!main.menus_shown && main.collage.quick_active && !main.updating_controls &&
        !main.optShapes.selected())
        make_preview(main, make_quick_template);
}
