#pragma once

#include "support/forms.h"

struct windows;

/// Asks for the name of a new frame set, which goes to `edit_frame_name` of the window of the sets; without
/// one that stays "_named_.not".
struct frmFrameName : form {
    frmFrameName() : form("frmFrameName") { set_caption("F r a m e   S e t   N a m e"); }
    label lblName{*this, "lblName", "Provide a name for your new custom frame set: "};
    text_box txtName{*this, "txtName"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
};

/// Hooks its handlers.
void connect_frmFrameName(windows & all);
