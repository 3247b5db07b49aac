#pragma once

#include <optional>
#include <string>
#include <string_view>

/// A line of the list of icons: the icon's name, one blank, the name of its file. The name ends at the first
/// blank.

struct icon_entry {
    std::string name, file;
    bool operator==(const icon_entry &) const = default;
};

/// The icon of a line; none for a line without a blank, or with nothing in front of it.
std::optional<icon_entry> icon_of_line(std::string_view line);

/// Why no line of the list could hold an icon of that name, as the user is told; empty when one can.
std::string icon_name_fault(std::string_view name);

/// The name that an icon's file has in the icons folder: the picture's file name less its last four
/// characters, `suffix` and ".bmp". Nothing for a file name of four characters or fewer.
std::optional<std::string> icon_file_name(std::string_view picture_path, std::string_view suffix);
