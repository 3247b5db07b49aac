#pragma once

#include "recipes/recipe_shelf_entry.h"
#include "support/list_controls.h"

#include <optional>
#include <string>
#include <vector>

struct windows;

/// The flurns that were made last, as small pictures, to be opened again.
struct frmRecent : form {
    frmRecent() : form("frmRecent") { set_caption("R e c e n t   F l u r n s"); }
    list_box lstFlurns{*this, "lstFlurns"};
    label lblEmpty{*this, "lblEmpty", "No flurn yet: each one that you make is listed here."};
    button cmdHelp{*this, "cmdHelp", "Help"};
    button cmdFile{*this, "cmdFile", "Open file..."};  ///< one that was kept beside its picture
    button cmdRemove{*this, "cmdRemove", "Remove from list"};
    button cmdOk{*this, "cmdOk", "Open"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};

    std::vector<kept_recipe> flurns;    ///< those of the list, in its order
    std::optional<std::string> result;  ///< path of the recipe that is to be opened
};

/// Hooks its handlers.
void connect_frmRecent(windows & all);
