#pragma once

#include "designs/catalogue/catalogue_lines.h"

/// The manifest of a design package: text, one command a line, known by the exact start of its line; other
/// lines are passed over.

enum class manifest_step {
    title,       ///< "$$$ MSG " and the package's title
    new_folder,  ///< "$$$ NEW  " and a folder
    payload,     ///< "$$$ NAME ", a file of six characters, any character, where it goes
    icon,        ///< "$$$ icons"; the next line is one of the list of icons
    section      ///< "$$$ designs.ini" and a number; the next lines, up to "$$$", are a section
};

struct manifest_command {
    manifest_step step = manifest_step::title;
    std::string text;    ///< the title, or the payload's name as it stands in its six columns
    std::string target;  ///< folder or file below the data folder, as it is written
    double number = 0;
    text_lines lines;      ///< of an icon one, or none where the manifest ends; of a section all
    std::size_t line = 0;  ///< where it stands in the manifest, from 1; its own lines follow
};

/// What a manifest may hold.
inline constexpr std::size_t most_commands = 20000, most_new_folders = 200, most_sections = 998;
inline constexpr std::size_t longest_line = 4096, longest_title = 200;  // bytes

/// The lines of a manifest. A byte-order mark in front of the first one is none of its letters.
text_lines manifest_lines(std::string bytes);

std::vector<manifest_command> commands_of_manifest(const text_lines & manifest);

/// A line and where it stands, from 1.
struct numbered_line {
    std::size_t line = 0;
    std::string text;
    bool operator==(const numbered_line &) const = default;
};

/// The lines that begin as a command does and are passed over, since they are none.
std::vector<numbered_line> unknown_commands(const text_lines & manifest);

/// The folders at the top of the data folder that packages have made for themselves.
using package_folders = text_lines;

/// Where a payload file may go: "designs/heart" for "designs\heart". Files go into the folders that hold
/// designs, samples, descriptions, lists, pictures, frames, icons, letters and pieces, or into a folder that
/// packages made; never over a file that the program keeps for itself. Nothing for any other place.
std::optional<std::string> payload_place(std::string_view target, const package_folders & own);

/// The same for a folder that is to be made new: one below the folders told above, or one beside them whose
/// name the program has no use for.
std::optional<std::string> folder_place(std::string_view target);

/// True for the file of a design that the program numbers itself: "designs/saved602". Packages may bring one
/// that is there already, but no folder of that name.
bool is_file_of_ours(std::string_view place);

/// True for a place that lies below no folder of the program's own: packages may renew it only when one of
/// them made it.
bool stands_beside_ours(std::string_view place);

/// The first path by which an icon's line, or a value of a section, leads out of its folder with "..", as it
/// is written, and its line; nothing when none does.
std::optional<numbered_line> way_out(const manifest_command & command);
/// The same for the pictures of a template.
std::optional<std::string> way_out_of_template(const text_lines & lines);

/// The first folder of a place: "designs" of "designs/heart".
std::string first_folder(std::string_view place);
