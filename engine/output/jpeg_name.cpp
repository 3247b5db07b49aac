#include "engine/output/jpeg_name.h"

#include "support/files/paths.h"

namespace {

// With its point, in small letters; empty for none.
std::string ending_of(const std::string & name)
{
    const std::size_t point = name.rfind('.');
    const bool has_one = point != std::string::npos && point > 0 && point + 1 < name.size() &&
                         name.find_first_of(" \t", point) == std::string::npos;
    return has_one ? lower_case(name.substr(point)) : std::string();
}

}  // namespace

std::optional<std::string> jpeg_path(const std::string & named)
{
    const std::string ending = ending_of(name_of(named));
    if (ending.empty())
        return named + ".jpg";
    return ending == ".jpg" || ending == ".jpeg" ? std::optional(named) : std::nullopt;
}
