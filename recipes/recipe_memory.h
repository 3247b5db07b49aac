#pragma once

#include "recipes/recipe.h"

#include <memory>
#include <optional>
#include <string>

/// What a session remembers for the recipes of its flurns.
struct recipe_memory {
    std::optional<recipe> at_hand;               ///< of the flurn that is being made, or was made last
    std::shared_ptr<const std::string> preview;  ///< the last one, as a file
    int preview_load = 0;                        ///< of `picSample`, which showed it
    bool told_of_failure = false;                ///< that recipes can't be kept: the user is told once
};
