#pragma once

#include "support/list_controls.h"

struct windows;

/// The small window that tells how far the counting of the photos is.
struct frmPhotoCnt : form {
    frmPhotoCnt() : form("frmPhotoCnt") { set_caption("Photo Count"); }
    label lblCount{*this, "lblCount", "Counting and checking photos..."};
    progress_bar barCount{*this, "barCount"};
    label lblAnnounce{*this, "lblAnnounce"};
};

/// Hooks its handlers.
void connect_frmPhotoCnt(windows & all);
