#pragma once

#include "support/files/text_file.h"

#include <string>
#include <string_view>

/// Texts that describe designs: sections "[name]" of one file, or a file of its own.

/// Moves behind the line "[name]". False when there is none.
bool find_description(line_source & lines, std::string_view name);

/// Most of a description that is shown, and that a package may bring; in bytes.
inline constexpr std::size_t longest_description = 65536;

/// The lines up to the next one that begins with "[", each with CR LF behind it; a line that ends in "_"
/// runs on into the next one instead. Of a longer text than can be shown the beginning, and an ellipsis.
std::string description_text(line_source & lines);
