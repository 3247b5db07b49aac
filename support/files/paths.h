#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Paths are bytes, compared as bytes. Folders carry no separator at their end.

/// The platform's separator between folders.
extern const char path_separator;

/// `folder` and `name` with one separator between them; separators of either kind at the start of `name` are
/// dropped, those inside it become the platform's.
std::string joined(const std::string & folder, std::string_view name);

/// The text with every separator, of either kind, turned into the platform's.
std::string with_platform_separators(std::string_view text);

/// Position of the last separator of either kind, npos when there is none.
std::size_t last_separator(std::string_view path);

/// The part in front of the last separator (empty without one) and the part behind it.
std::string folder_of(std::string_view path);
std::string name_of(std::string_view path);

/// True when the text starts with `folder` and a separator of either kind: is_under("images\\a.jpg",
/// "images").
bool is_under(std::string_view text, std::string_view folder);

/// The text in lower case, ASCII letters only.
std::string lower_case(std::string_view text);

/// The path made absolute, without "." and ".." in it; links stay as they are.
std::string absolute_path(const std::string & path);

bool file_exists(const std::string & path);
bool folder_exists(const std::string & path);

/// True for a file that the user can read.
bool file_readable(const std::string & path);

/// True for a file that the user may not read, and for one in a folder that keeps even its being there from
/// the user.
bool is_closed_to_user(const std::string & path);

/// Names of the plain files in a folder, in the file system's order. Raises path_not_found (76) or 70.
std::vector<std::string> files_in(const std::string & folder);

/// Names of the folders in a folder, in the file system's order. Raises 70, 76.
std::vector<std::string> folders_in(const std::string & folder);

/// Makes one folder. Raises 70, 75, 76.
void make_folder(const std::string & path);

/// Makes a folder and those on the way to it that are missing. Raises 70, 75, 76.
void make_folders(const std::string & path);

/// Deletes a file if it is there, a write-protected one too. Raises 70, 75.
void delete_file(const std::string & path);

/// Removes a folder that is empty. Raises 70, 75, 76.
void remove_folder(const std::string & path);

/// Deletes a file or a folder with all that lies in it, if it is there; a link goes, what it leads to stays.
/// Raises 70, 75.
void remove_tree(const std::string & path);

/// Gives a folder another name that no folder with anything in it has. Raises 70, 75, 76.
void rename_folder(const std::string & from, const std::string & to);

/// True when the user can make files in the folder.
bool folder_writable(const std::string & folder);

/// True when `path` was last changed after `other`. Both have to exist. Raises 53.
bool is_newer(const std::string & path, const std::string & other);

/// Tells one state of a file from another.
struct file_stamp {
    std::int64_t changed = 0;  ///< when, in nanoseconds since 1970
    std::uint64_t bytes = 0;
    std::uint64_t number = 0;  ///< of the file: one that takes another's place has another
    bool operator==(const file_stamp &) const = default;
};

/// Gives a file that time of change, in nanoseconds since 1970. Raises 53, 70, 75.
void set_changed(const std::string & path, std::int64_t changed);

/// The stamp of a file as it is now, nothing when it isn't there.
std::optional<file_stamp> stamp_of(const std::string & path);
