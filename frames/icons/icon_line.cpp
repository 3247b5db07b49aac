#include "frames/icons/icon_line.h"

#include "support/files/paths.h"

std::optional<icon_entry> icon_of_line(std::string_view line)
{
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos || blank == 0)
        return std::nullopt;
    return icon_entry{.name = std::string(line.substr(0, blank)),
                      .file = std::string(line.substr(blank + 1))};
}

std::string icon_name_fault(std::string_view name)
{
    if (name.find(' ') != std::string_view::npos)
        return "The name of an icon can't have a blank in it.\r\nPlease enter one word.";
    if (name.find_first_of("\r\n") != std::string_view::npos)
        return "The name of an icon can't have a line break in it.";
    return {};
}

std::optional<std::string> icon_file_name(std::string_view picture_path, std::string_view suffix)
{
    constexpr std::size_t extension = 4;
    const std::string name = name_of(picture_path);
    if (name.size() <= extension)
        return std::nullopt;
    return name.substr(0, name.size() - extension) + std::string(suffix) + ".bmp";
}
