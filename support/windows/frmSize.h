#pragma once

#include "support/forms.h"
#include "support/numbers.h"

#include <optional>

struct windows;

/// Asks for the size of a saved collage.
struct frmSize : form {
    frmSize() : form("frmSize") { set_caption("Collage Size"); }
    option_set sizes;
    option_button optFull{*this, "optFull", sizes};
    option_button optWeb{*this, "optWeb", sizes, "Web size -  500px * 750px   (for email, Facebook, etc)"};
    option_button optCustom{*this, "optCustom", sizes, "Custom size"};
    label lblSize{*this, "lblSize", "Number of pixels on long side:"};
    text_box txtSize{*this, "txtSize"};
    check_box chkRecipe{*this, "chkRecipe", "Keep a .flurn file beside it, to open this flurn again"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    std::optional<int16> result;  ///< pixels of the long side
};

/// Hooks its handlers.
void connect_frmSize(windows & all);
