#pragma once

#include "session/frmMain.h"
#include "support/dragged_files.h"

#include <string>
#include <vector>

/// From what a user drops to photos, and to the source of a collage.

struct dropped_photos {
    std::vector<std::string> photos;    ///< in their order, those of a folder by name; none twice
    std::string folder;                 ///< where nothing but this folder was dropped
    std::vector<std::string> left_out;  ///< a line with the reason for each that can't be used
};

/// Sorts what was dropped: JPEG photos under whatever name, and the ".jpg" files of folders, not of the
/// folders in them. Raises nothing.
dropped_photos photos_of_drop(const dragged_files & dropped);

/// The same, at most `most` photos, after copies were made of those that need one. The user is told what was
/// left out, or that nothing can be used.
dropped_photos told_photos_of_drop(frmMain & main, const dragged_files & dropped, std::size_t most);

/// Makes the photos the source of the next collage, or of the one at hand: one folder as a folder, all else
/// as a selection, which takes the place of the one before. Nothing is counted yet. False, and nothing
/// changed, when there are none; the user has been told. Raises 61, 70, 75, 76; the former source then stays.
bool use_as_source(frmMain & main, const dragged_files & dropped);
