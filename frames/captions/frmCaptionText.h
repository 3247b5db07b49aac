#pragma once

#include "support/forms.h"

struct windows;

/// The caption of the collage in a window of its own, in its font and colours.
struct frmCaptionText : form {
    frmCaptionText() : form("frmCaptionText") { set_caption("C o l l a g e   C a p t i o n"); }
    label lblCaption{*this, "lblCaption", "Enter a new caption:"};
    text_box txtCaption{*this, "txtCaption"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdClear{*this, "cmdClear", "Clear"};
};

/// Hooks its handlers.
void connect_frmCaptionText(windows & all);
