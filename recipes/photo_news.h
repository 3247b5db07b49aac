#pragma once

#include "recipes/found_photos.h"

#include <string>

/// What the user hears of a recipe's photos.

/// Asks whether to look for those that are gone; `all` counts the recipe's photos.
std::string question_of_gone(const found_photos & found, std::size_t all);

/// Names what is gone, what can't be used and what has changed.
std::string news_of(const found_photos & found);

/// That there is nothing to lay out.
std::string none_is_there(const std::string & file, const found_photos & found);
