#pragma once

#include <string>
#include <string_view>

/// Whether a saved photo list can have that name: the list is a file of its name, inside `piclists`.

/// What the user is told when it can't, empty when it can.
std::string list_name_fault(std::string_view name);

/// The name of the list at that path: the file's name without its ending.
std::string list_name(std::string_view path);

/// True for a file that is a saved list: its last four characters are ".pls", in either case, and it isn't
/// `__last__.pls`, which is never offered.
bool is_saved_list(std::string_view file_name);
