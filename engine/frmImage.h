#pragma once

#include "support/forms.h"

/// Shows a finished collage. Saving, printing and the outside viewer are not offered yet; closing it ends the
/// run.
struct frmImage : form {
    frmImage() : form("frmImage") { set_caption("S a v e   F l u r n"); }
    label lblImageName{*this, "lblImageName"};  ///< caption: path of the picture shown; hidden
    group picScroll{*this, "picScroll"};
    picture picDisplay{*this, "picDisplay"};
    group frmButtons{*this, "frmButtons"};
    button cmdSave{*this, "cmdSave", "Save"};
    button cmdPrint{*this, "cmdPrint", "Print"};
    button cmdView{*this, "cmdView", "View"};
    button cmdClose{*this, "cmdClose", "Cancel"};
};
