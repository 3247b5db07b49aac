#pragma once

#include <string>
#include <string_view>

/// Whether a name that the user typed can be that of a file or a folder.

/// What the user is told when it can't, empty when it can: a name with a separator of either kind or a
/// control character in it leads elsewhere, one of more than `longest` bytes is refused by the system. `kind`
/// is what is named, with its article: "a photo list".
std::string typed_name_fault(std::string_view name, std::string_view kind, std::size_t longest);
