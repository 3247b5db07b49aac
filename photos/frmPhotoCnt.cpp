#include "photos/frmPhotoCnt.h"

#include "session/windows.h"

void connect_frmPhotoCnt(windows & all)
{
    all.photo_count.on_load = [&all] {
        all.photo_count.lblCount.set_caption("Counting and checking photos...");
        all.photo_count.barCount.tell(0, 1);
        all.photo_count.lblAnnounce.show(false);
    };
    all.photo_count.lblAnnounce.on_click = [&all] { all.photo_count.unload(); };
    all.photo_count.on_query_unload = [] { return false; };  // the count goes on
}
