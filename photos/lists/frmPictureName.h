#pragma once

#include "support/forms.h"

#include <optional>
#include <string>

struct windows;

/// Asks for the name of a new photo list. Its path also goes to the tags of `cmdPhotos` and `txtPhotos` of
/// the main window; both stay as they are when no name is given.
struct frmPictureName : form {
    frmPictureName() : form("frmPictureName") { set_caption("P h o t o   L i s t   N a m e"); }
    label lblName{*this, "lblName", "Enter the name for your new photo list:"};
    text_box txtName{*this, "txtName"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    std::optional<std::string> result;  ///< the list's path
};

/// Hooks its handlers.
void connect_frmPictureName(windows & all);
