#pragma once

#include "support/forms.h"

struct windows;

/// Asks for name and description of the design that the layout of the last collage becomes.
struct frmNewDesign : form {
    frmNewDesign() : form("frmNewDesign") { set_caption("N e w   D e s i g n"); }
    label lblName{*this, "lblName", "Design name:"};
    text_box txtName{*this, "txtName"};
    label lblDescription{*this, "lblDescription", "Description:"};
    text_box txtDescription{*this, "txtDescription"};
    button OKButton{*this, "OKButton", "OK"};
    button CancelButton{*this, "CancelButton", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};
};

/// Hooks its handlers.
void connect_frmNewDesign(windows & all);
