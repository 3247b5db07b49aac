#pragma once

#include "session/frmMain.h"

#include <optional>

/// A photo of the table and its index there.
struct matched_photo {
    bitmap image;
    int index = -1;
};

/// The next photo that lies as a location of this size does, its cursor moved. Empty, with a word to the
/// user, when no photo does. Photos that lie the other way are told by their headers and not loaded; those
/// that can't be loaded are left out of the run.
matched_photo pick_matching(frmMain & main, int width, int height);

/// The index of the photo that `pick_matching` would give, with no cursor moved; nothing when none fits.
std::optional<int> photo_to_match(frmMain & main, int width, int height);
