#pragma once

#include <string>
#include <string_view>

/// What writer and reader of a recipe's rows have in common.

/// The newest version that is read. What an older program can follow is written as of that one.
inline constexpr int recipe_version = 2;
inline constexpr int version_without_originals = 1;

/// The first field of the first row; the version is the second.
inline constexpr std::string_view recipe_heading = "Tessaloom flurn";

/// Whether the text of that control is the path of a picture: the box of the background's.
bool holds_path(const std::string & control);
