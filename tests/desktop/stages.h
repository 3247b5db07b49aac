#pragma once

#include "session/frmMain.h"

/// The main window as the session leaves it in its stages, as far as its looks go.

enum class look {
    choosing,
    designed,
    designed_without_frames,
    quick_block,
    quick_scatter,
    quick_matrix,
    quick_squares,
    quick_circles
};
enum class shape { portrait, landscape, square };

/// All looks, and all shapes, for tests that walk them.
extern const std::vector<look> all_looks;
extern const std::vector<shape> all_shapes;

/// A name for messages and files: "quick_block_landscape".
std::string name_of(look wanted, shape poster);

/// Brings the window there. Long captions and texts are put in where a user may have such.
void bring_to(frmMain & main, look wanted, shape poster);
