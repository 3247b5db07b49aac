#pragma once

#include "photos/lists/photo_table.h"

#include <string>
#include <string_view>

/// A line of a photo list: an orientation letter, a blank and the photo's path. The letter is for people;
/// readers pass over the first two characters without looking at them.

/// The path of the line; empty for a line of fewer than three characters.
std::string photo_of_line(std::string_view line);

/// "P " for a portrait, "L " for anything else, what isn't known included, and the path.
std::string list_line(std::optional<orientation> shape, std::string_view path);
