#include "photos/list_name.h"

#include "support/paths.h"

#include <algorithm>
#include <array>

namespace {

// A file name of 255 bytes, less the endings of the list and of the file that is written beside it.
constexpr std::size_t longest_name = 246;

// The session keeps these for itself and would delete or hide a list of the user's.
constexpr std::array<std::string_view, 3> own_lists{"last_photos", "_work_file", "__last__"};

bool is_control_character(char sign)
{
    const auto code = static_cast<unsigned char>(sign);
    return code < 32 || code == 127;
}

}  // namespace

std::string list_name_fault(std::string_view name)
{
    if (name.find_first_of("/\\") != std::string_view::npos)
        return "The name of a photo list can't have a \"/\" or a \"\\\" in it.";
    if (std::ranges::any_of(name, is_control_character))
        return "The name of a photo list can't have a line break or a tab in it.";
    if (name.size() > longest_name)
        return "That name is too long for a photo list.";
    if (std::ranges::find(own_lists, lower_case(name)) != own_lists.end())
        return "The name \"" + std::string(name) + "\" is used by the program itself.";
    return {};
}

std::string list_name(std::string_view path)
{
    const std::string file = name_of(path);
    return file.substr(0, file.rfind('.'));
}

bool is_saved_list(std::string_view file_name)
{
    return lower_case(file_name).ends_with(".pls") && file_name != "__last__.pls";
}
