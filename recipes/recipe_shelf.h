#pragma once

#include "recipes/recipe.h"
#include "recipes/recipe_shelf_entry.h"
#include "session/frmMain.h"

#include <string>
#include <vector>

/// The recipes of the flurns that were made last, in `recipes` of the data folder: NAME.flurn and beside it
/// NAME.jpg, a small picture.

/// So many are kept.
inline constexpr std::size_t most_recipes = 50;

/// Keeps the recipe with its picture, the bytes of a JPEG, whole or not at all, and removes the oldest beyond
/// those that are kept. For the window alone. Raises 61, 70, 75, 76.
void keep_recipe(const frmMain & main, const recipe & made, std::string_view picture);

/// Those that are kept, the newest first. Raises nothing: a folder that can't be read has none.
std::vector<kept_recipe> kept_recipes(const frmMain & main);

/// How many files of recipes lie in that data folder, as kept_recipes counts.
std::size_t count_recipes(const std::string & data_folder);

/// Removes one of them. Raises 70, 75.
void remove_recipe(const kept_recipe & kept);

/// The small picture of the recipe in that file; empty when it has none.
std::string picture_beside(const std::string & file);

/// The preview that was on show, as the bytes of its file, when it is kept with that recipe. Beside a recipe
/// that the user keeps elsewhere lies the flurn itself: that is none.
std::string preview_of(const frmMain & main, const std::string & file, const recipe & held);

/// The recipe in that file, and its folders. Throws recipe_fault when it is none; raises 53, 70, 75.
recipe read_recipe(const frmMain & main, const std::string & file);

/// Its bytes for a file in that folder: photos that lie below it are told from there. An empty folder tells
/// none so.
std::string recipe_bytes(const frmMain & main, const recipe & held, const std::string & folder);
