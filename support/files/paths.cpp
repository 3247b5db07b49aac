#include "support/files/paths.h"

#include "support/files/file_steps.h"
#include "support/platform_error.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

const char path_separator = static_cast<char>(fs::path::preferred_separator);

namespace {

constexpr std::int64_t nanoseconds = 1'000'000'000;

bool is_separator(char sign)
{
    return sign == '/' || sign == '\\';
}

// Runs `step` on a folder: what isn't found there is a folder, not a file.
template <typename Step>
auto with_folder_errors(Step step)
{
    try {
        return with_platform_errors(step);
    } catch (platform_error & error) {
        if (error.number == error_number::file_not_found)
            throw platform_error(error_number::path_not_found, "The folder does not exist.", error.path);
        throw;
    }
}

template <typename Wanted>
std::vector<std::string> names_in(const std::string & folder, Wanted wanted)
{
    return with_folder_errors([&] {
        std::vector<std::string> names;
        for (const auto & entry : fs::directory_iterator(folder)) {
            std::error_code unreadable;
            if (wanted(entry, unreadable))
                names.push_back(entry.path().filename().string());
        }
        return names;
    });
}

}  // namespace

std::string joined(const std::string & folder, std::string_view name)
{
    while (!name.empty() && is_separator(name.front()))
        name.remove_prefix(1);
    return folder + path_separator + with_platform_separators(name);
}

std::string with_platform_separators(std::string_view text)
{
    std::string path(text);
    std::replace_if(path.begin(), path.end(), is_separator, path_separator);
    return path;
}

std::size_t last_separator(std::string_view path)
{
    return path.find_last_of("/\\");
}

std::string folder_of(std::string_view path)
{
    const std::size_t at = last_separator(path);
    return at == std::string_view::npos ? std::string() : std::string(path.substr(0, at));
}

std::string name_of(std::string_view path)
{
    const std::size_t at = last_separator(path);
    return std::string(at == std::string_view::npos ? path : path.substr(at + 1));
}

bool is_under(std::string_view text, std::string_view folder)
{
    return text.size() > folder.size() && text.starts_with(folder) && is_separator(text[folder.size()]);
}

std::string lower_case(std::string_view text)
{
    std::string lower(text);
    for (char & sign : lower)
        if (sign >= 'A' && sign <= 'Z')
            sign = static_cast<char>(sign - 'A' + 'a');
    return lower;
}

std::string absolute_path(const std::string & path)
{
    std::string absolute = fs::absolute(path).lexically_normal().string();
    if (absolute.size() > 1 && is_separator(absolute.back()))
        absolute.pop_back();
    return absolute;
}

bool file_exists(const std::string & path)
{
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

bool folder_exists(const std::string & path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

std::vector<std::string> files_in(const std::string & folder)
{
    return names_in(folder, [](const fs::directory_entry & entry, std::error_code & unreadable) {
        return entry.is_regular_file(unreadable);
    });
}

std::vector<std::string> folders_in(const std::string & folder)
{
    return names_in(folder, [](const fs::directory_entry & entry, std::error_code & unreadable) {
        return entry.is_directory(unreadable);
    });
}

void make_folder(const std::string & path)
{
    pass_gate(file_step::make_folder, path);
    with_folder_errors([&] { fs::create_directory(path); });
}

void make_folders(const std::string & path)
{
    if (folder_exists(path))
        return;
    pass_gate(file_step::make_folder, path);
    with_folder_errors([&] { fs::create_directories(path); });
}

void remove_folder(const std::string & path)
{
    with_folder_errors([&] {
        pass_gate(file_step::remove, path);
        if (!fs::is_directory(path) || !fs::remove(path))
            throw platform_error(error_number::path_not_found, "The folder does not exist.", path);
    });
}

void delete_file(const std::string & path)
{
    with_platform_errors([&] {
        if (!file_exists(path))
            return;
        pass_gate(file_step::remove, path);
        fs::remove(path);
    });
}

void remove_tree(const std::string & path)
{
    with_folder_errors([&] {
        const fs::file_status status = fs::symlink_status(path);
        if (!fs::exists(status))
            return;
        if (fs::is_directory(status))
            for (const auto & entry : fs::directory_iterator(path))
                remove_tree(entry.path().string());
        pass_gate(file_step::remove, path);
        fs::remove(path);
    });
}

void rename_folder(const std::string & from, const std::string & to)
{
    with_folder_errors([&] {
        pass_gate(file_step::rename, to);
        fs::rename(from, to);
    });
}

bool is_newer(const std::string & path, const std::string & other)
{
    return with_platform_errors([&] { return fs::last_write_time(path) > fs::last_write_time(other); });
}

bool file_readable(const std::string & path)
{
    return file_exists(path) && ::faccessat(AT_FDCWD, path.c_str(), R_OK, AT_EACCESS) == 0;
}

bool is_closed_to_user(const std::string & path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), R_OK, AT_EACCESS) != 0 && errno == EACCES;
}

bool folder_writable(const std::string & folder)
{
    return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

void set_changed(const std::string & path, std::int64_t changed)
{
    const timespec times[] = {{.tv_sec = 0, .tv_nsec = UTIME_OMIT},
                              {.tv_sec = changed / nanoseconds, .tv_nsec = changed % nanoseconds}};
    if (::utimensat(AT_FDCWD, path.c_str(), times, 0) != 0)
        throw from_system(errno, path);
}

std::optional<file_stamp> stamp_of(const std::string & path)
{
    struct stat file {};
    if (::stat(path.c_str(), &file) != 0 || !S_ISREG(file.st_mode))
        return std::nullopt;
    return file_stamp{.changed = file.st_mtim.tv_sec * nanoseconds + file.st_mtim.tv_nsec,
                      .bytes = static_cast<std::uint64_t>(file.st_size),
                      .number = file.st_ino};
}
