#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

#include <string>
#include <vector>

/// The photos of a recipe, as they are today.

/// A photo that is there, and why it can't be used.
struct refused_photo {
    std::string path, why;
};

struct found_photos {
    std::vector<recipe_photo> there{};           ///< in their order
    std::vector<std::string> gone{}, changed{};  ///< paths that their user knows; what has changed is there
    std::vector<refused_photo> refused{};        ///< originals of which no copy can be made any more
    bool is_stopped = false;                     ///< the user didn't wait for the copies
    bool are_those_of_then() const { return gone.empty() && changed.empty() && refused.empty(); }
};

/// Looks at each of them, and has copies of originals that were cleared prepared anew. A photo has changed
/// when its size is another, or its time, unless it may have been copied together with the recipe; a copy
/// only when its original has as well.
found_photos look_for(frmMain & main, const std::vector<recipe_photo> & photos);

/// The photos, with those that are gone looked for by their names in that folder: first as they lay below the
/// folder that they shared, then in it. Those that aren't there either stay as they were.
std::vector<recipe_photo> looked_for_in(frmMain & main, const std::string & folder,
                                        std::vector<recipe_photo> photos);
