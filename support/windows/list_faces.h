#pragma once

#include "support/forms.h"

/// The buttons of a window with a list that has two faces: as chooser it gives one entry, as manager it edits
/// and deletes them.
struct list_buttons {
    button & done;   ///< "Ok" of the chooser, "Done" of the manager
    button & erase;  ///< "Cancel" of the chooser, "Delete" of the manager
    button & edit;   ///< the manager's alone
};

/// As the window opens, with no entry selected.
void show_chooser_face(const list_buttons & buttons);
void show_manager_face(const list_buttons & buttons);

/// After a click on an entry.
void allow_all(const list_buttons & buttons);

/// After the selected entry was deleted: the next click on an entry allows them again.
void forbid_changes(const list_buttons & buttons);
