#pragma once

#include "engine/photo/photo_steps.h"
#include "session/frmMain.h"

#include <vector>

/// A photo of the table and its index there.
struct matched_photo {
    run_photo photo;
    int index = -1;
};

/// The next photo that lies as a location of this size does, its cursor moved. Empty, with a word to the
/// user, when no photo does. Photos that lie the other way are told by their headers and not loaded; those
/// that can't be loaded are left out of the run.
matched_photo pick_matching(frmMain & main, picture_size location, const place_of_photo & place_of);

/// The indices of the photos that `pick_matching` would give one after the other for locations of these
/// sizes, with no cursor moved; they end at the first for which none fits.
std::vector<int> photos_to_match(frmMain & main, const std::vector<picture_size> & locations);
