#include "photos/lists/list_name.h"

#include "support/files/paths.h"
#include "support/typed_name.h"

#include <algorithm>
#include <array>

namespace {

// A file name of 255 bytes, less the endings of the list and of the file that is written beside it.
constexpr std::size_t longest_name = 246;

// The session keeps these for itself and would delete or hide a list of the user's.
constexpr std::array<std::string_view, 3> own_lists{"last_photos", "_work_file", "__last__"};

}  // namespace

std::string list_name_fault(std::string_view name)
{
    std::string fault = typed_name_fault(name, "a photo list", longest_name);
    if (!fault.empty())
        return fault;
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
