#pragma once

#include "support/forms.h"
#include "support/numbers.h"

#include <optional>

struct windows;

/// Gathers a selection: photos are added to the working list, singly or by the folder.
struct frmPhotoList : form {
    frmPhotoList() : form("frmPhotoList")
    {
        set_caption("S e l e c t e d   p h o t o s");
        cmdFolder.set_tool_tip("Add all photos from a folder");
        cmdPhotos.set_tool_tip("Add selected individual photos");
        cmdClear.set_tool_tip("Clear all photos");
        cmdEdit.set_tool_tip("Edit the photo list");
    }
    button cmdFolder{*this, "cmdFolder", "Folder"};
    button cmdPhotos{*this, "cmdPhotos", "Add  Photos"};
    button cmdClear{*this, "cmdClear", "Clear"};
    button cmdEdit{*this, "cmdEdit", "Edit"};
    label txtEdit{*this, "txtEdit", "Edit the photo list"};
    label lblCount{*this, "lblCount"};
    label txtCounting{*this, "txtCounting"};  ///< shown while the editor opens
    button cmdDone{*this, "cmdDone", "Done"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    std::optional<int16> result;  ///< how many photos are selected
};

/// Hooks its handlers.
void connect_frmPhotoList(windows & all);

/// Shows how many photos are selected, and offers the editor where it takes as many.
void show_selected_count(windows & all);
