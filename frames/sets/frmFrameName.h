#pragma once

#include "support/forms.h"

#include <optional>
#include <string>

struct windows;

/// Asks for the name of a new frame set.
struct frmFrameName : form {
    frmFrameName() : form("frmFrameName") { set_caption("F r a m e   S e t   N a m e"); }
    label lblName{*this, "lblName", "Provide a name for your new custom frame set: "};
    text_box txtName{*this, "txtName"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};

    std::optional<std::string> result;  ///< a name that no set has yet
};

/// Hooks its handlers.
void connect_frmFrameName(windows & all);
