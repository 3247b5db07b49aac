#pragma once

#include "support/forms.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

/// What the user drags over a window from another program, a file manager as a rule, and lets go there.

struct dragged_files {
    std::vector<std::string> paths;      ///< files and folders of this computer
    std::vector<std::string> elsewhere;  ///< addresses of what lies anywhere else
};

/// What a window says while it hovers.
struct drop_offer {
    std::string sentence;  ///< what would become of it, or why nothing would
    bool taken = false;
};

struct drop_target {
    std::function<drop_offer(const dragged_files &)> offer;
    /// It was let go at that point of `surface`, in pixels at 100%; only after an offer that takes it.
    std::function<void(const dragged_files &, int x, int y)> take;
    const control * surface = nullptr;  ///< nullptr: the window itself
};

/// The windows that take files.
using drop_targets = std::map<const form *, drop_target>;
