#pragma once

#include "designs/catalogue/listed_design.h"
#include "support/list_controls.h"

#include <vector>

struct windows;

/// The user's own designs, to be deleted. The list is filled before the window opens.
struct frmDesigns : form {
    frmDesigns() : form("frmDesigns") { set_caption("D e s i g n s"); }
    list_box lstDesigns{*this, "lstDesigns"};
    std::vector<listed_design> designs;  ///< those of the list, in its order
    button cmdDelete{*this, "cmdDelete", "Delete"};
    button cmdDone{*this, "cmdDone", "Done"};
};

/// Hooks its handlers.
void connect_frmDesigns(windows & all);
