#pragma once

#include "session/windows.h"
#include "support/dragged_files.h"

#include <functional>

/// What the windows do with photos that are dropped on them.

/// What drops on the main window need to know of the user's actions there.
struct drop_surroundings {
    std::function<bool()> is_busy;  ///< an action goes on: nothing is taken
    /// Runs what a drop does as an action of the user's.
    std::function<void(const std::function<void()> & step)> act;
};

/// The choosing stage begins a quick collage, or opens the recipe of a flurn, the finishing stage takes the
/// photos instead of its own, "Select Photos" makes them the source, "Selected photos" adds them to the
/// selection, and the editor of a list takes them where they fall.
drop_targets connect_drops(windows & all, const drop_surroundings & around);
