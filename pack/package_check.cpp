#include "pack/package_check.h"

#include "designs/catalogue/design_lines.h"
#include "support/files/archive.h"
#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

namespace {

std::string in_quotes(std::string_view text)
{
    return "'" + shown_in_message(text) + "'";
}

bool holds(const text_lines & lines, const std::string & text)
{
    return std::ranges::find(lines, text) != lines.end();
}

std::string at_line(std::size_t line, const std::string & problem)
{
    return "line " + std::to_string(line) + ": " + problem;
}

// What the import would take and the maker of a package can't have meant.
class manifest_walk {
public:
    explicit manifest_walk(const package_payload & files) : unused(files.names) {}

    text_lines run(const text_lines & manifest)
    {
        for (const numbered_line & line : unknown_commands(manifest))
            tell(line.line, "unknown command: " + in_quotes(line.text));
        const std::vector<manifest_command> commands = commands_of_manifest(manifest);
        if (std::ranges::none_of(commands, [](const manifest_command & command) {
                return command.step == manifest_step::title && !command.text.empty();
            }))
            problems.emplace_back("the package has no title");
        for (const manifest_command & command : commands)
            look_at(command);
        for (const manifest_command & command : commands)
            look_at_files(command);
        for (const std::string & file : unused)
            problems.push_back("no command uses the file " + in_quotes(file));
        return problems;
    }

private:
    void tell(std::size_t line, const std::string & problem) { problems.push_back(at_line(line, problem)); }
    void look_at(const manifest_command & command)
    {
        if (command.step == manifest_step::new_folder)
            own.push_back(first_folder(folder_place(command.target).value_or("")));
        else if (command.step == manifest_step::payload)
            take(command);
        else if (command.step == manifest_step::icon)
            look_at_icon(command);
        else if (command.step == manifest_step::section)
            look_at_section(command);
    }
    void take(const manifest_command & command)
    {
        std::erase(unused, command.text);
        if (const std::optional<std::string> place = payload_place(command.target, own))
            targets.push_back(*place);
    }
    void look_at_icon(const manifest_command & command)
    {
        if (command.lines.empty())
            tell(command.line, "the line of an icon is missing");
        else if (command.lines.front().find(' ') == std::string::npos)
            tell(command.line + 1, "this is no icon and its file: " + in_quotes(command.lines.front()));
    }
    void look_at_section(const manifest_command & command)
    {
        const auto begins = [&](std::string_view key) {
            return std::ranges::any_of(command.lines,
                                       [&](const std::string & line) { return line.starts_with(key); });
        };
        if (!begins("[Design"))
            tell(command.line, "a design has no header of its own");
        if (!begins("Name="))
            tell(command.line, "a design has no name");
        if (command.number < 1)
            tell(command.line, "a design has no number");
    }
    // What a design of the user's kind names has to come with it.
    void look_at_files(const manifest_command & command)
    {
        if (command.step != manifest_step::section || !holds(command.lines, "System=No"))
            return;
        text_lines section = command.lines;
        section.insert(section.begin(), design_header(first_own_number));
        for (const std::string & file : files_of_design(section, first_own_number))
            if (!holds(targets, file))
                tell(command.line, "a design names " + in_quotes(file) + ", which doesn't come with it");
    }

    text_lines unused, problems, targets;
    package_folders own;
};

// A folder that goes with all that was unpacked into it.
class work_folder {
public:
    work_folder() : place((std::filesystem::temp_directory_path() / "tessaloom_pack_XXXXXX").string())
    {
        if (::mkdtemp(place.data()) == nullptr)
            throw from_system(errno, place);
    }
    work_folder(const work_folder &) = delete;
    work_folder & operator=(const work_folder &) = delete;
    ~work_folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(place, ignored);
    }
    const std::string & path() const { return place; }

private:
    std::string place;
};

std::optional<std::string> unpacking_problem(const unpacking & unpacked)
{
    switch (unpacked.ended) {
        case unpacking::end::broken:
            return "the file is damaged or no zip file";
        case unpacking::end::not_allowed:
            return "the entry " + in_quotes(unpacked.entry) + " is not allowed";
        case unpacking::end::too_many:
            return "there are too many entries, from " + in_quotes(unpacked.entry) + " on";
        case unpacking::end::too_large:
            return "the package is too large, from " + in_quotes(unpacked.entry) + " on";
        default:
            return std::nullopt;
    }
}

package_payload payload_in(const std::string & folder)
{
    package_payload payload{.names = files_in(folder), .bytes = [folder](const std::string & name) {
                                return read_file(joined(folder, name));
                            }};
    std::erase(payload.names, "manifest");
    std::ranges::sort(payload.names);
    for (const std::string & inner : folders_in(folder))
        payload.names.push_back(inner + "/");
    return payload;
}

}  // namespace

text_lines manifest_problems(const text_lines & manifest, const package_payload & payload)
{
    text_lines problems;
    for (const package_refusal & refusal : package_refusals(manifest, payload, {}))
        problems.push_back(at_line(refusal.line, "the package " + refusal.why));
    const text_lines more = manifest_walk(payload).run(manifest);
    problems.insert(problems.end(), more.begin(), more.end());
    return problems;
}

text_lines package_problems(const std::string & package)
{
    const work_folder work;
    if (const auto problem = unpacking_problem(unpack_zip(package, work.path())))
        return {*problem};
    const std::string manifest = joined(work.path(), "manifest");
    if (!file_exists(manifest))
        return {"the manifest is missing"};
    return manifest_problems(manifest_lines(read_file(manifest)), payload_in(work.path()));
}

text_lines problems_of_bytes(const std::string & zip)
{
    const work_folder work;
    const std::string package = joined(work.path(), "package.zip");
    write_file(package, zip);
    return package_problems(package);
}
