#pragma once

#include "recipes/kept_path.h"
#include "recipes/recipe.h"

#include <string>
#include <string_view>

/// What a recipe may have at most, so that a hostile one takes neither memory nor time.
inline constexpr std::size_t largest_recipe = 4'000'000;  // bytes

/// Why a text is no recipe that can be used, in words: a sentence.
struct recipe_fault {
    std::string what;
};

/// The recipe that stands in the text. Throws recipe_fault for another kind of text, one that was cut short,
/// one of a newer version, and for rows that can't be understood or lead where a recipe may not.
recipe recipe_of_text(std::string_view text, const known_folders & folders);
