#pragma once

#include "recipes/recipe.h"
#include "session/frmMain.h"

#include <string>

/// From a recipe to the window: the finishing stage as it was.

/// Throws recipe_fault when the window can't hold what the recipe has. Changes nothing.
void check_recipe(frmMain & main, const recipe & wanted);

struct way_back {
    bool is_unchanged = true;  ///< its photos are those of then
    /// The preview of then, as the bytes of its file; empty: it is drawn.
    std::string preview{};
    enum class drawing { shown, left_out } draws = drawing::shown;
};

/// Brings the window from the choosing stage to the finishing stage of that recipe, which was checked and
/// whose photos are all there. What the full-size run draws next is what it drew then; with other photos the
/// layout is fitted to them. Raises 61, 70, 75, 76 for its work files, and then nothing has changed.
void bring_back(frmMain & main, const recipe & wanted, const way_back & how);
