#include "support/typed_name.h"

#include <algorithm>

namespace {

bool is_control_character(char sign)
{
    const auto code = static_cast<unsigned char>(sign);
    return code < 32 || code == 127;
}

}  // namespace

std::string typed_name_fault(std::string_view name, std::string_view kind, std::size_t longest)
{
    const std::string named(kind);
    if (name.find_first_of("/\\") != std::string_view::npos)
        return "The name of " + named + " can't have a \"/\" or a \"\\\" in it.";
    if (std::ranges::any_of(name, is_control_character))
        return "The name of " + named + " can't have a line break or a tab in it.";
    if (name.size() > longest)
        return "That name is too long for " + named + ".";
    return {};
}
