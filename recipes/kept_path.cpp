#include "recipes/kept_path.h"

#include "support/files/paths.h"

#include <algorithm>
#include <array>

namespace {

struct marked_folder {
    std::string_view mark;
    std::string known_folders::*folder;
};

constexpr std::array<marked_folder, 3> marked_folders{{{"here:", &known_folders::here},
                                                       {"data:", &known_folders::data},
                                                       {"program:", &known_folders::program}}};

bool has_control_character(std::string_view text)
{
    return std::ranges::any_of(text, [](char sign) { return static_cast<unsigned char>(sign) < 32; });
}

// Each part between separators has to be a name of its own.
bool climbs_or_stands(std::string_view path)
{
    const std::string all = std::string("/") + std::string(path) + "/";
    return all.find("/../") != std::string::npos || all.find("/./") != std::string::npos ||
           all.find("//") != std::string::npos;
}

}  // namespace

std::string kept_path(const std::string & path, const known_folders & folders)
{
    for (const marked_folder & each : marked_folders) {
        const std::string & folder = folders.*each.folder;
        if (!folder.empty() && path.starts_with(folder + path_separator))
            return std::string(each.mark) + path.substr(folder.size() + 1);
    }
    return path;
}

std::optional<std::string> path_named(std::string_view text, const known_folders & folders)
{
    if (has_control_character(text))
        return std::nullopt;
    if (text.starts_with(path_separator))
        return climbs_or_stands(text.substr(1)) ? std::nullopt : std::optional<std::string>(text);
    for (const marked_folder & each : marked_folders) {
        const std::string & folder = folders.*each.folder;
        if (!text.starts_with(each.mark) || folder.empty())
            continue;
        const std::string_view below = text.substr(each.mark.size());
        return climbs_or_stands(below) ? std::nullopt
                                       : std::optional(folder + path_separator + std::string(below));
    }
    return std::nullopt;
}
