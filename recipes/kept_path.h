#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Paths as a recipe's file has them: "here:" and "program:" and "data:" stand for folders, so that a file
/// that moves with its photos still names them, and another installation finds what it has as well.

/// The folders for which a path in the file may stand. An empty one stands for none.
struct known_folders {
    std::string here;  ///< of the recipe's own file; only what lies below it is told so
    std::string program, data;
};

/// How the file names that path.
std::string kept_path(const std::string & path, const known_folders & folders);

/// The path that is named so. Nothing for what is neither absolute nor below one of the folders, climbs with
/// "..", or has control characters in it: a recipe may come from anywhere.
std::optional<std::string> path_named(std::string_view text, const known_folders & folders);
