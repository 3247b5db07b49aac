#pragma once

#include "support/forms.h"
#include "support/numbers.h"

#include <string>

struct windows;

/// Where the photos of the collage come from: a folder, a saved list or a selection by hand. What was chosen
/// goes to `lblPhotos` and `txtPhotos` of the main window and to their tags; a choice that isn't made leaves
/// the former one in place and sets `photo_choice_cancelled`.
struct frmSelectPhotos : form {
    frmSelectPhotos() : form("frmSelectPhotos") { set_caption("S e l e c t   P h o t o s"); }
    label lblSelect{*this, "lblSelect", "Select the photos you want to use in this collage:"};
    option_set options;
    option_button optFolder{*this, "optFolder", options, "Photo folder"};
    option_button optList{*this, "optList", options, "Photo list"};  ///< tag: "True" once a list was chosen
    option_button optSelect{*this, "optSelect", options, "Selected photos"};
    option_button optChange{*this, "optChange", options, "Change selected photos"};
    /// Never seen: selected while a selection is in use, so that none of the others is.
    option_button optUnseen{*this, "optUnseen", options, "Selected photos"};
    text_box txtCards{*this, "txtCards"};
    button cmdCards{*this, "cmdCards", "Browse"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    bool skip_next_click = false;  ///< the next option is selected by the program, not by the user
    int16 saved_last_photo = -1;   ///< `last_photo` at load
    std::string saved_list_path;   ///< `photo_list_path` at load
};

/// Hooks its handlers.
void connect_frmSelectPhotos(windows & all);
