#include "session/handlers.h"

void connect_frmPhotoCnt(windows & all)
{
    all.photo_count.on_load = [&all] {
        all.photo_count.lblCount.set_caption("Counting and checking photos...");
        all.photo_count.lblAnnounce.show(false);
    };
}
