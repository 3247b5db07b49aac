#include "designs/package_import.h"

#include "designs/catalogue.h"
#include "designs/manifest.h"
#include "designs/unfinished.h"
#include "support/archive.h"
#include "support/inner_path.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

#include <algorithm>
#include <filesystem>

namespace {

enum class progress { going_on, stopped };

std::string in_data(const frmMain & main, std::string_view name)
{
    return joined(main.data_folder, name);
}

std::string unzipped(const frmMain & main)
{
    return in_data(main, "tmp/unzipped");
}

// ---- what packages own

std::string ownership_path(const frmMain & main)
{
    return in_data(main, "package_folders");
}

package_folders owned_folders(const frmMain & main)
{
    const std::string path = ownership_path(main);
    return file_exists(path) ? lines_of_file(path) : package_folders();
}

bool is_owned(const package_folders & own, const std::string & folder)
{
    return std::ranges::find(own, folder) != own.end();
}

void note_owned(const frmMain & main, const std::string & folder)
{
    package_folders own = owned_folders(main);
    if (is_owned(own, folder))
        return;
    own.push_back(folder);
    replace_file(ownership_path(main), text_of(own));
}

// ---- where a command may act

// True when no link on the way leads out of the folder that the place starts with: that one may be a link of
// the user's.
bool is_reached_inside(const frmMain & main, const std::string & place)
{
    namespace fs = std::filesystem;
    std::error_code failed;
    const fs::path top = fs::weakly_canonical(in_data(main, first_folder(place)), failed);
    const fs::path way = fs::weakly_canonical(fs::path(in_data(main, place)).parent_path(), failed);
    const auto apart = std::mismatch(top.begin(), top.end(), way.begin(), way.end());
    return !failed && (apart.first == top.end() || place == first_folder(place));
}

std::optional<std::string> free_payload_place(const frmMain & main, const std::string & target,
                                              const package_folders & own)
{
    const std::optional<std::string> place = payload_place(target, own);
    if (!place || folder_exists(in_data(main, *place)) || !is_reached_inside(main, *place))
        return std::nullopt;
    return place;
}

// A folder beside ours that no package made may be anything.
std::optional<std::string> free_folder_place(const frmMain & main, const std::string & target,
                                             const package_folders & own)
{
    const std::optional<std::string> place = folder_place(target);
    if (!place || !is_reached_inside(main, *place))
        return std::nullopt;
    const std::string first = first_folder(*place);
    const bool is_free = !stands_beside_ours(*place) || is_owned(own, first) ||
                         !std::filesystem::exists(std::filesystem::symlink_status(in_data(main, first)));
    const bool is_file = file_exists(in_data(main, *place));
    return is_free && !is_file ? place : std::nullopt;
}

bool has_payload(const frmMain & main, const std::string & name)
{
    return is_plain_name(name) && file_exists(joined(unzipped(main), name));
}

// A template may name pictures by any path.
std::optional<std::string> way_out_of_payload(const frmMain & main, const manifest_command & command,
                                              const std::string & place)
{
    if (command.step != manifest_step::payload || first_folder(place) != "designs")
        return std::nullopt;
    return way_out_of_template(lines_of_file(joined(unzipped(main), command.text)));
}

// The first path of a command that may not act where it wants to, or that leads out of its folder. An import
// stops at a missing file: what stands behind it is never carried out.
std::optional<std::string> refused_target(const frmMain & main,
                                          const std::vector<manifest_command> & commands)
{
    package_folders own = owned_folders(main), renewed;
    const auto is_renewed = [&](const std::string & place) {
        return std::ranges::any_of(renewed, [&](const std::string & made) { return is_under(place, made); });
    };
    for (const manifest_command & command : commands) {
        std::optional<std::string> place;
        if (command.step == manifest_step::new_folder) {
            place = free_folder_place(main, command.target, own);
            own.push_back(first_folder(place.value_or("")));
            renewed.push_back(place.value_or(""));
        } else if (command.step == manifest_step::payload) {
            if (!has_payload(main, command.text))
                return std::nullopt;
            place = payload_place(command.target, own);
            if (place && !is_renewed(*place))
                place = free_payload_place(main, command.target, own);
        } else {
            if (std::optional<std::string> path = way_out(command))
                return path;
            continue;
        }
        if (!place)
            return command.target;
        if (std::optional<std::string> path = way_out_of_payload(main, command, *place))
            return path;
    }
    return std::nullopt;
}

void tell_refused(frmMain & main, const std::string & target)
{
    main.desk.message("This import package may not use '" + shown_in_message(target) +
                      "'.\r\n\r\nImport has been stoppped.");
}

// ---- the commands

progress make_new_folder(frmMain & main, const manifest_command & command)
{
    const std::optional<std::string> place = free_folder_place(main, command.target, owned_folders(main));
    if (!place) {
        tell_refused(main, command.target);
        return progress::stopped;
    }
    if (stands_beside_ours(*place))
        note_owned(main, first_folder(*place));
    // Gone for good once the import is at its end: until then a crash or a full disk brings it back.
    set_aside(main, *place);
    make_folders(in_data(main, *place));
    return progress::going_on;
}

progress move_payload(frmMain & main, const manifest_command & command)
{
    if (!has_payload(main, command.text)) {
        main.desk.message("This import package is missing the '" + shown_in_message(command.text) +
                          "' file.\r\n\r\nImport has been stoppped.");
        return progress::stopped;
    }
    const std::optional<std::string> place = free_payload_place(main, command.target, owned_folders(main));
    if (!place) {
        tell_refused(main, command.target);
        return progress::stopped;
    }
    move_file(joined(unzipped(main), command.text), in_data(main, *place));
    return progress::going_on;
}

// The file under construction takes the place of the old one, which is kept as the one backup: a copy, so
// that the file itself is never missing.
void swap_in(const std::string & path, const std::string & fresh, const std::string & backup)
{
    copy_file(path, backup);
    move_file(fresh, path);
}

void add_icon(frmMain & main, const std::string & line)
{
    const std::string list = in_data(main, "icons/icons"), fresh = list + ".new";
    text_lines lines = lines_of_file(list);
    if (std::ranges::find(lines, line) == lines.end())
        lines.push_back(line);
    replace_file(fresh, text_of(lines));
    swap_in(list, fresh, list + ".bbb");
}

progress merge_section(frmMain & main, const manifest_command & command)
{
    close_catalogue(main);
    const std::optional<text_lines> merged =
        with_section(lines_of_file(catalogue_path(main)), command.number, command.lines);
    if (!merged) {
        main.desk.message(
            "You are limited to 400 Designs.\r\nYou will need to remove one before you can save another.");
        return progress::stopped;
    }
    const std::string fresh = in_data(main, "designs.new");
    replace_file(fresh, text_of(*merged));
    swap_in(catalogue_path(main), fresh, in_data(main, "designs.bbb"));
    return progress::going_on;
}

// Carries out the commands in turn; gives the title, or nothing when the import stopped.
std::optional<std::string> carry_out(frmMain & main, const std::vector<manifest_command> & commands)
{
    std::string title = "Unamed import";
    progress state = progress::going_on;
    for (const manifest_command & command : commands) {
        if (command.step == manifest_step::title)
            title = command.text;
        else if (command.step == manifest_step::new_folder)
            state = make_new_folder(main, command);
        else if (command.step == manifest_step::payload)
            state = move_payload(main, command);
        else if (command.step == manifest_step::section)
            state = merge_section(main, command);
        else if (!command.lines.empty())
            add_icon(main, command.lines.front());
        else
            main.desk.message("Missing icon line!");
        if (state == progress::stopped)
            return std::nullopt;
    }
    return title;
}

std::optional<std::string> carried_out_whole(frmMain & main, const std::vector<manifest_command> & commands)
{
    put_back(main);
    try {
        std::optional<std::string> title = carry_out(main, commands);
        forget_set_aside(main);
        return title;
    } catch (const platform_error &) {
        put_back(main);
        throw;
    }
}

// ---- the package

std::string refusal_of(const unpacking & unpacked)
{
    const std::string entry = "'" + shown_in_message(unpacked.entry) + "'";
    switch (unpacked.ended) {
        case unpacking::end::not_allowed:
            return "This design package may not hold the entry " + entry + ".";
        case unpacking::end::too_many:
            return "This design package has too many entries, from " + entry + " on.";
        case unpacking::end::too_large:
            return "This design package is too large, from the entry " + entry + " on.";
        default:
            return {};
    }
}

bool unpack(frmMain & main, const std::string & package)
{
    remove_tree(unzipped(main));
    make_folder(unzipped(main));
    const unpacking unpacked = unpack_zip(package, unzipped(main));
    if (unpacked.ended == unpacking::end::broken)
        main.desk.message("Something is wrong with the zip file");
    else if (unpacked.ended != unpacking::end::whole)
        main.desk.message(refusal_of(unpacked) + "\r\nThe new design was not imported.");
    return unpacked.ended == unpacking::end::whole;
}

void import_unpacked(frmMain & main, const std::string & package)
{
    const std::string manifest = joined(unzipped(main), "manifest");
    const bool is_complete = file_exists(manifest);
    const std::vector<manifest_command> commands =
        commands_of_manifest(is_complete ? lines_of_file(manifest) : text_lines());
    if (const std::optional<std::string> refused = refused_target(main, commands)) {
        tell_refused(main, *refused);
        return;
    }
    delete_file(package);
    if (!is_complete) {
        main.desk.message(
            "This design package is incomplete.\r\nIt is missing the manifest file.\r\n"
            "The new design was not imported.");
        return;
    }
    if (const std::optional<std::string> title = carried_out_whole(main, commands))
        main.desk.message("\r\n" + *title + " has been successfully imported.\r\n");
}

}  // namespace

void import_package(frmMain & main)
{
    const std::optional<std::string> package = main.desk.choose_file({.title = "D e s i g n   P a c k a g e",
                                                                      .filter = "Design packages |*.zip",
                                                                      .folder = {},
                                                                      .extension = {}});
    if (!package || package->empty())
        return;
    const busy pointer(main.desk);
    if (unpack(main, *package))
        import_unpacked(main, *package);
}
