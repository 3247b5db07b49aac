#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// Photos of a recipe that are copies, prepared from what a collage can't take. Copies are cleared in time,
/// and the recipe is to outlast them.

/// What a file was prepared from, as its shelf has it noted; nothing for a photo that is no copy.
std::optional<recipe_original> original_of_copy(const std::string & data_folder, const std::string & photo);

struct copies_brought {
    std::vector<recipe_photo> photos;  ///< as they were given, each copy at the place where it is now
    std::map<std::string, std::string> refused{};  ///< originals, and why no copy can be made of them
    bool is_stopped = false;  ///< the user closed the small window that tells of progress
};

/// Has copies that are gone prepared anew from their originals, where those are there; what is left is in use
/// from now on, so that nobody clears it away. Raises nothing: without a place for copies each is refused.
copies_brought bring_copies(frmMain & main, std::vector<recipe_photo> photos);
