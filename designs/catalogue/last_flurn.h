#pragma once

#include "session/frmMain.h"

/// The layout and the picture of the last finished Flurn, kept until they become a design: later previews and
/// runs that were broken off change neither.

/// Sets the working template and the finished picture aside, with what else a design is made of, when the
/// collage that has just been finished can be kept as a design and the data folder is the session's.
void keep_last_flurn(frmMain & main);

/// Deletes what was set aside.
void forget_last_flurn(frmMain & main);

/// What "Save last Flurn" saves: the last finished Flurn, or else the collage at hand.
struct flurn_to_save {
    finished_flurn how;
    std::string layout, picture;  ///< files
};
flurn_to_save last_flurn(const frmMain & main);

/// The template that the collage at hand works with.
std::string working_template(const frmMain & main);
