#include "batch/report.h"

#include "designs/catalogue/catalogue_lines.h"
#include "designs/catalogue/mended_catalogue.h"
#include "desktop/program_folders.h"
#include "desktop/text_drawing.h"
#include "desktop/without_windows.h"
#include "recipes/recipe_shelf.h"
#include "support/cores.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "support/windows/display_faces.h"
#include "versions/archive_version.h"
#include "versions/page_versions.h"
#include "versions/picture_versions.h"
#include "versions/version.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>
#include <unistd.h>

namespace {

constexpr std::uintmax_t megabyte = 1024 * 1024;

std::string row(const std::string & what, const std::string & how)
{
    return what + ": " + how + "\n";
}

std::string counted(std::size_t count, const std::string & what)
{
    return std::to_string(count) + " " + what;
}

// What a step finds out, or why it can't; errors of the platform name paths, which have no place here.
template <typename Step>
std::string found_out(Step step)
{
    try {
        return with_platform_errors(step);
    } catch (const platform_error & error) {
        return std::string("can't be read (") + error.what() + ")";
    }
}

// ---- the system

std::optional<std::string> variable(const char * name)
{
    const char * const value = std::getenv(name);
    return value ? std::optional<std::string>(value) : std::nullopt;
}

std::string surroundings()
{
    std::string told;
    for (const char * name : {"LANG", "LC_ALL", "XDG_SESSION_TYPE", "XDG_CURRENT_DESKTOP"})
        if (const std::string value = variable(name).value_or(""); !value.empty())
            told += (told.empty() ? "" : ", ") + std::string(name) + "=" + value;
    for (const char * name : {"DISPLAY", "WAYLAND_DISPLAY"})
        if (variable(name))
            told += (told.empty() ? "" : ", ") + std::string(name) + " is set";
    return told.empty() ? "no desktop" : told;
}

// Those that this process may use, and where there are more, how many.
std::string cores_told()
{
    const auto usable = static_cast<unsigned>(usable_cores()), there = std::thread::hardware_concurrency();
    const std::string told = std::to_string(usable);
    return usable < there ? told + " of " + std::to_string(there) : told;
}

std::string fonts_told()
{
    const std::vector<std::string> fonts = installed_fonts();
    const std::string face = face_to_begin_with(fonts);
    return counted(fonts.size(), "families") + ", captions begin with " +
           (face.empty() ? first_caption_family() : face);
}

// ---- the folders

bool can_write(const std::string & folder)
{
    return ::access(folder.c_str(), W_OK) == 0;
}

std::string kind_of_place(const batch_folders & folders)
{
    if (!folders.data.use_public_folder)
        return "beside the program";
    const bool in_home = folders.data.public_folder == data_folder_choice().public_folder;
    return in_home ? "in the data home" : "another one, by --data";
}

std::string designs_told(const std::string & data)
{
    std::size_t supplied = 0, own = 0;
    for (const std::string & line : lines_of_file(joined(data, "designs.ini")))
        if (const std::optional<double> number = number_of_header(line))
            ++(*number < first_own_number ? supplied : own);
    return counted(supplied, "supplied") + ", " + counted(own, "of one's own");
}

std::string kept_told(const std::string & data)
{
    const std::vector<std::string> lists = files_in(joined(data, "piclists"));
    const auto is_list = [](const std::string & name) { return name.ends_with(".pls"); };
    return counted(static_cast<std::size_t>(std::ranges::count_if(lists, is_list)), "photo lists") + ", " +
           counted(folders_in(joined(data, "frames")).size(), "frame sets") + ", " +
           counted(files_in(joined(data, "user_images")).size(), "pictures") + ", " +
           counted(count_recipes(data), "recipes");
}

std::string room_told(const std::string & folder)
{
    return std::to_string(std::filesystem::space(folder).available / megabyte) + " MB";
}

std::string state_of_data(const std::string & data, const std::string & install)
{
    const std::string own = joined(data, "designs.ini"), supplied = joined(install, "designs.ini");
    if (!file_exists(joined(data, "3_1_install")) || !file_exists(own))
        return "not whole; the next start fills it";
    if (file_exists(supplied) && is_damaged(lines_of_file(own), lines_of_file(supplied)))
        return "whole but for its list of designs; the next start of the window mends it";
    return "whole";
}

std::string data_told(const std::string & data, const std::string & install)
{
    if (!folder_exists(data))
        return row("Data folder is", file_exists(data) ? "no folder; a file has its name"
                                                       : "not there; the first start makes it");
    return row("Data folder is", found_out([&] { return state_of_data(data, install); }) +
                                     (can_write(data) ? "" : ", write-protected")) +
           row("Designs", found_out([&] { return designs_told(data); })) +
           row("Kept", found_out([&] { return kept_told(data); })) +
           row("Room on its disk", found_out([&] { return room_told(data); }));
}

std::string programs_told(const std::string & install)
{
    const bool whole =
        file_exists(joined(install, "designs.ini")) && folder_exists(joined(install, "images"));
    return std::string(whole ? "its data beside it" : "NO data beside it") +
           (can_write(install) ? ", can be written" : "");
}

}  // namespace

std::vector<std::string> libraries_in_use()
{
    return {toolkit_version(), picture_version(), jpeg_version(),
            archive_version(), tiff_version(),    pdf_version()};
}

std::string report(const batch_folders & folders)
{
    const std::string data =
        folders.data.use_public_folder ? folders.data.public_folder : folders.install_folder;
    return version_told("tessaloom-batch", libraries_in_use()) + row("Built with", compiler()) +
           row("System", system_in_words()) + row("Surroundings", surroundings()) +
           row("Cores", cores_told()) + row("Fonts", fonts_told()) +
           row("Program", programs_told(folders.install_folder)) +
           row("Data folder", kind_of_place(folders)) + data_told(data, folders.install_folder);
}
