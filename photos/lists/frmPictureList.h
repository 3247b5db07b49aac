#pragma once

#include "support/list_controls.h"

#include <optional>
#include <string>

struct windows;

/// The saved lists. As chooser it gives a list, whose path also goes to the tag of `txtPhotos` of the main
/// window, emptied by a cancel; as manager (`photo_list_edit_mode`) it edits and deletes them.
struct frmPictureList : form {
    frmPictureList() : form("frmPictureList") { set_caption("P h o t o   L i s t"); }
    list_box lstPictures{*this, "lstPictures"};
    label txtCounting{*this, "txtCounting"};  ///< shown while the editor opens
    button cmdDone{*this, "cmdDone", "Done"};
    button cmdDelete{*this, "cmdDelete", "Delete"};
    button cmdEdit{*this, "cmdEdit", "Edit"};

    std::optional<std::string> result;  ///< the path of the list that was chosen
};

/// Hooks its handlers.
void connect_frmPictureList(windows & all);
