#pragma once

#include "support/forms.h"

struct windows;

/// Asks for the name of a new icon, whose picture is at `icon_path` of the main window, and takes it in.
struct frmIconName : form {
    frmIconName() : form("frmIconName") { set_caption("I c o n   N a m e"); }
    label lblName{*this, "lblName", "Enter the name for your new icon:"};
    text_box txtName{*this, "txtName"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
};

/// Hooks its handlers.
void connect_frmIconName(windows & all);
