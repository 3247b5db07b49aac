#pragma once

#include "support/forms.h"

struct windows;

/// Shows a finished collage, with the ways to save, print and view it, or just a stored picture; which of the
/// two says `shown_as` of the main window. Closing it after a run ends the run.
struct frmImage : form {
    frmImage() : form("frmImage") { set_caption("S a v e   F l u r n"); }
    label lblImageName{*this, "lblImageName"};  ///< caption: path of the picture shown; hidden
    group picScroll{*this, "picScroll"};
    picture picDisplay{*this, "picDisplay"};
    group frmButtons{*this, "frmButtons"};
    button cmdPrint{*this, "cmdPrint", "Print"};
    button cmdSave{*this, "cmdSave", "Save"};
    button cmdView{*this, "cmdView", "View"};
    button cmdClose{*this, "cmdClose", "Cancel"};

    bool is_square = false;
    bool is_portrait = true;  ///< squares count as well
};

/// Hooks its handlers.
void connect_frmImage(windows & all);
