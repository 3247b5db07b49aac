#include "designs/package/package_import.h"

#include "designs/catalogue/catalogue.h"
#include "designs/package/package_lists.h"
#include "designs/package/package_rules.h"
#include "designs/templates/unfinished.h"
#include "support/files/archive.h"
#include "support/files/copies.h"
#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

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

package_payload payload_of(const frmMain & main)
{
    const std::string folder = unzipped(main);
    package_payload payload{.names = files_in(folder), .bytes = [folder](const std::string & name) {
                                return read_file(joined(folder, name));
                            }};
    std::erase(payload.names, "manifest");
    return payload;
}

// The first command that may not act where it wants to, here in this data folder: a link, a file or a folder
// of the user's may be in its way. An import stops at a missing file: what stands behind it is never carried
// out.
std::optional<package_refusal> refused_here(const frmMain & main,
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
            continue;
        }
        if (!place)
            return refused_path(command.line, command.target);
    }
    return std::nullopt;
}

std::optional<package_refusal> refusal_of(const frmMain & main, const text_lines & manifest,
                                          const std::vector<manifest_command> & commands)
{
    const std::vector<package_refusal> refusals =
        package_refusals(manifest, payload_of(main), owned_folders(main));
    std::optional<package_refusal> here = refused_here(main, commands);
    if (refusals.empty() || (here && here->line < refusals.front().line))
        return here;
    if (refusals.front().what == package_refusal::kind::missing)
        return std::nullopt;  // the import tells when it comes there
    return refusals.front();
}

void tell_refused(frmMain & main, const package_refusal & refusal)
{
    main.desk.message("This import package " + refusal.why + " (line " + std::to_string(refusal.line) +
                      " of its manifest).\r\n\r\nImport has been stoppped.");
}

// ---- the commands

// The target may lie on another disk, where a link of the user's leads: then the file is copied there.
void move_anywhere(const std::string & from, const std::string & to)
{
    try {
        move_file(from, to);
    } catch (const platform_error & error) {
        if (error.number != error_number::path_access)
            throw;
        copy_file(from, to);
        delete_file(from);
    }
}

progress make_new_folder(frmMain & main, const manifest_command & command)
{
    const std::optional<std::string> place = free_folder_place(main, command.target, owned_folders(main));
    if (!place) {
        tell_refused(main, refused_path(command.line, command.target));
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
        tell_refused(main, refused_path(command.line, command.target));
        return progress::stopped;
    }
    move_anywhere(joined(unzipped(main), command.text), in_data(main, *place));
    return progress::going_on;
}

progress merge_section(frmMain & main, package_lists & lists, const manifest_command & command)
{
    if (lists.merge(command))
        return progress::going_on;
    main.desk.message(
        "You are limited to 400 Designs.\r\nYou will need to remove one before you can save another.");
    return progress::stopped;
}

void add_icon(frmMain & main, package_lists & lists, const manifest_command & command)
{
    if (command.lines.empty())
        main.desk.message("Missing icon line!");
    else
        lists.add_icon(command.lines.front());
}

// Carries out the commands in turn; gives the title, or nothing when the import stopped.
std::optional<std::string> carry_out(frmMain & main, package_lists & lists,
                                     const std::vector<manifest_command> & commands)
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
            state = merge_section(main, lists, command);
        else
            add_icon(main, lists, command);
        if (state == progress::stopped)
            return std::nullopt;
    }
    return title;
}

std::optional<std::string> carried_out_whole(frmMain & main, const std::vector<manifest_command> & commands)
{
    put_back(main);
    try {
        package_lists lists(main);
        std::optional<std::string> title = carry_out(main, lists, commands);
        lists.write();
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

// The package is used up, but where it lies on a medium that can't be written.
void use_up(const std::string & package)
{
    try {
        delete_file(package);
    } catch (const platform_error &) {
        return;
    }
}

void import_commands(frmMain & main, const std::vector<manifest_command> & commands,
                     const std::string & package)
{
    const std::optional<std::string> title = carried_out_whole(main, commands);
    use_up(package);
    if (title)
        main.desk.message("\r\n" + *title + " has been successfully imported.\r\n");
}

void import_unpacked(frmMain & main, const std::string & package)
{
    const std::string path = joined(unzipped(main), "manifest");
    if (!file_exists(path)) {
        use_up(package);
        main.desk.message(
            "This design package is incomplete.\r\nIt is missing the manifest file.\r\n"
            "The new design was not imported.");
        return;
    }
    const text_lines manifest = manifest_lines(read_file(path));
    const std::vector<manifest_command> commands = commands_of_manifest(manifest);
    if (const std::optional<package_refusal> refusal = refusal_of(main, manifest, commands))
        tell_refused(main, *refusal);
    else
        import_commands(main, commands, package);
}

// The package stays when the disk or a folder is the trouble: it can be imported again when that is mended.
void tell_failed(frmMain & main, const platform_error & error)
{
    main.desk.message(told(error) + "\r\n\r\nThe new design was not imported.");
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
    try {
        with_platform_errors([&] {
            const busy pointer(main.desk);
            if (unpack(main, *package))
                import_unpacked(main, *package);
        });
    } catch (const platform_error & error) {
        tell_failed(main, error);
    }
}
