#pragma once

#include "photos/lists/photo_table.h"
#include "support/forms.h"
#include "support/numbers.h"

#include <deque>
#include <string>
#include <vector>

struct windows;

/// What the editor was opened for; the third while it takes up photos that were added.
enum class editing : std::uint8_t { selection = 1, saved_list = 2, added_photos = 3 };

/// Arranges the photos of a list, 60 at most, as small pictures in a grid.
struct frmPictures : form {
    frmPictures() : form("frmPictures")
    {
        set_caption("Photo selection");
        for (int i = 0; i < editable_photos; ++i)
            picIn.emplace_back(*this, "picIn_" + std::to_string(i));
    }
    group picBig{*this, "picBig"};
    std::deque<picture> picIn;  ///< tag: path of the photo, "0" for an empty cell, which is hidden
    label txtCounting{*this, "txtCounting"};
    button cmdAdd{*this, "cmdAdd", "Add Photos"};
    button cmdSave{*this, "cmdSave", "Save"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};
    menu_entry mnuPopup{*this, "mnuPopup"};
    menu_entry mnuRemove{*this, "mnuRemove", "Remove"};
    menu_entry mnuInsert{*this, "mnuInsert", "Insert"};
    menu_entry mnuMove{*this, "mnuMove", "Move up"};
    menu_entry mnuView{*this, "mnuView", "View"};
    menu_entry mnuCancel{*this, "mnuCancel", "Cancel"};

    editing edit_mode = editing::selection;
    std::string edit_list_path;      ///< the list in the editor
    bool same_name_allowed = false;  ///< false when photos of the list didn't come into the grid
    int16 selected_cell = -1;        ///< cell of the last popup menu, -1: none
    std::vector<std::string>
        left_behind;        ///< photos of the list that didn't come into the grid, in its order
    bool checking = false;  ///< photos are being loaded: the window can't be left
};

/// Hooks its handlers.
void connect_frmPictures(windows & all);
