#pragma once

#include "support/list_controls.h"

#include <optional>
#include <string>

struct windows;

/// The frame sets. As chooser it gives one; as manager (`frame_manage_mode` of the main window) it edits and
/// deletes them.
struct frmCustom : form {
    frmCustom() : form("frmCustom") { set_caption("S e l e c t   F r a m e   S e t"); }
    list_box lstFrames{*this, "lstFrames"};
    button cmdEdit{*this, "cmdEdit", "Edit"};
    button cmdDone{*this, "cmdDone", "Done"};
    button cmdDelete{*this, "cmdDelete", "Delete"};

    std::optional<std::string> result;  ///< the set that was chosen
    std::string edit_frame_name;        ///< the set that the editor works on; "_named_.not" for a new one
};

/// Hooks its handlers.
void connect_frmCustom(windows & all);
