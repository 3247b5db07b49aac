#pragma once

#include "support/list_controls.h"

/// The frame sets. As chooser it leaves the one that the collage wears in `frame_set_name` of the main
/// window; as manager (`frame_manage_mode` there) it edits and deletes them.
struct frmCustom : form {
    frmCustom() : form("frmCustom") { set_caption("S e l e c t   F r a m e   S e t"); }
    list_box lstFrames{*this, "lstFrames"};
    button cmdEdit{*this, "cmdEdit", "Edit"};
    button cmdDone{*this, "cmdDone", "Done"};
    button cmdDelete{*this, "cmdDelete", "Delete"};

    std::string edit_frame_name;  ///< the set that the editor works on; "_named_.not" for a new one
};
