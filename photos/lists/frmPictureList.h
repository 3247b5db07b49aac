#pragma once

#include "support/list_controls.h"

/// The saved lists. As chooser it gives the path of a list, or none, in the tag of `txtPhotos` of the main
/// window; as manager (`photo_list_edit_mode`) it edits and deletes them.
struct frmPictureList : form {
    frmPictureList() : form("frmPictureList") { set_caption("P h o t o   L i s t"); }
    list_box lstPictures{*this, "lstPictures"};
    label txtCounting{*this, "txtCounting"};  ///< shown while the editor opens
    button cmdDone{*this, "cmdDone", "Done"};
    button cmdDelete{*this, "cmdDelete", "Delete"};
    button cmdEdit{*this, "cmdEdit", "Edit"};
};
