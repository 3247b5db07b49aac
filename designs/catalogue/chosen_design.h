#pragma once

#include "session/frmMain.h"

/// From a design of the catalogue to the state in which the main window can begin a collage with it.

/// Says for a design that doesn't itself how its caption is cleared: "Adjust" for a scatter, else "Same".
void settle_caption_clear(design_record & design);

/// What the user chose in the design browser, beside the record in `main.design_record`.
struct chosen_design {
    std::string section, name;
    poster_shape shape = poster_shape::portrait;
    bool rotated = false, flipped = false, mirrored = false;
};

/// Selects no border for a design that brings its own background picture.
void make_room_for_background(frmMain & main);

/// Leaves the main window as the browser does after its Ok: design, orientation and the ways to turn it. The
/// click of the orientation runs even when it is the one already selected.
void take_design(frmMain & main, const chosen_design & chosen);
