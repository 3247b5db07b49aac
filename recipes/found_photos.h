#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

#include <string>
#include <vector>

/// The photos of a recipe, as they are today.

struct found_photos {
    std::vector<recipe_photo> there;         ///< in their order
    std::vector<std::string> gone, changed;  ///< paths; what has changed is there
    bool are_those_of_then() const { return gone.empty() && changed.empty(); }
};

/// Looks at each of them. A photo has changed when its size is another, or its time, unless it may have been
/// copied together with the recipe.
found_photos look_for(frmMain & main, const std::vector<recipe_photo> & photos);

/// The photos, with those that are gone looked for by their names in that folder: first as they lay below the
/// folder that they shared, then in it. Those that aren't there either stay as they were.
std::vector<recipe_photo> looked_for_in(frmMain & main, const std::string & folder,
                                        std::vector<recipe_photo> photos);
