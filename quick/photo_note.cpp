#include "quick/photo_note.h"

namespace {

std::string source_note(const frmMain & main)
{
    if (photo_source_kind(main) == photo_source::selection)
        return "Using " + formatted(main.table.last_photo + 1, 2) + " selected photos...";
    return "Using photos from   " + main.txtPhotos.text();
}

// Before the first run nothing is known, and one that was cancelled or failed says nothing.
int photos_left_out(const frmMain & main)
{
    const int shown = static_cast<int>(main.run.photos_shown.size());
    return shown == 0 ? 0 : main.table.last_photo + 1 - shown + main.table.beyond;
}

std::string left_out_note(int photos)
{
    if (photos < 1)
        return {};
    return "   -   " + std::to_string(photos) + (photos == 1 ? " photo" : " photos") + " left out";
}

}  // namespace

void note_photos_in_use(frmMain & main)
{
    main.lblOutput.set_caption(source_note(main) + left_out_note(photos_left_out(main)));
}
