#pragma once

#include "recipes/kept_path.h"
#include "recipes/recipe.h"

#include <string>

/// A recipe as the text of its file, a row a line, its fields parted by tabs; docs/recipes.md tells the rows.
std::string recipe_text(const recipe & held, const known_folders & folders);
