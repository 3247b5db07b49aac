#include "pack/package_check.h"

#include "designs/design_lines.h"
#include "designs/manifest.h"
#include "support/archive.h"
#include "support/inner_path.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

namespace {

constexpr std::size_t payload_length = 6;

std::string in_quotes(std::string_view text)
{
    return "'" + shown_in_message(text) + "'";
}

bool holds(const text_lines & lines, const std::string & text)
{
    return std::ranges::find(lines, text) != lines.end();
}

// A walk over the commands, as the import would carry them out.
class manifest_walk {
public:
    explicit manifest_walk(const text_lines & files) : payload(files) {}

    text_lines run(const text_lines & manifest)
    {
        for (const std::string & line : unknown_commands(manifest))
            problems.push_back("unknown command: " + in_quotes(line));
        const std::vector<manifest_command> commands = commands_of_manifest(manifest);
        if (std::ranges::none_of(commands, [](const manifest_command & command) {
                return command.step == manifest_step::title && !command.text.empty();
            }))
            problems.emplace_back("the package has no title");
        for (const manifest_command & command : commands)
            look_at(command);
        for (const manifest_command & command : commands)
            look_at_files(command);
        for (const std::string & file : payload)
            if (!holds(used, file))
                problems.push_back("no command uses the file " + in_quotes(file));
        return problems;
    }

private:
    void look_at(const manifest_command & command)
    {
        if (command.step == manifest_step::new_folder)
            look_at_folder(command);
        else if (command.step == manifest_step::payload)
            look_at_payload(command);
        else if (command.step == manifest_step::icon)
            look_at_icon(command);
        else if (command.step == manifest_step::section)
            look_at_section(command);
        if (const std::optional<std::string> path = way_out(command))
            problems.push_back("packages may not use " + in_quotes(*path));
    }
    void look_at_folder(const manifest_command & command)
    {
        const std::optional<std::string> place = folder_place(command.target);
        if (place)
            own.push_back(first_folder(*place));
        else
            problems.push_back("packages may not have the folder " + in_quotes(command.target));
    }
    void look_at_payload(const manifest_command & command)
    {
        if (command.text.size() != payload_length || !holds(payload, command.text))
            problems.push_back("the file " + in_quotes(command.text) + " is missing");
        else if (holds(used, command.text))
            problems.push_back("the file " + in_quotes(command.text) + " is used twice");
        used.push_back(command.text);
        const std::optional<std::string> place = payload_place(command.target, own);
        if (place)
            targets.push_back(*place);
        else
            problems.push_back("packages may not use " + in_quotes(command.target));
    }
    void look_at_icon(const manifest_command & command)
    {
        if (command.lines.empty())
            problems.emplace_back("the line of an icon is missing");
        else if (command.lines.front().find(' ') == std::string::npos)
            problems.push_back("this is no icon and its file: " + in_quotes(command.lines.front()));
    }
    void look_at_section(const manifest_command & command)
    {
        const auto begins = [&](std::string_view key) {
            return std::ranges::any_of(command.lines,
                                       [&](const std::string & line) { return line.starts_with(key); });
        };
        if (!begins("[Design"))
            problems.emplace_back("a design has no header of its own");
        if (!begins("Name="))
            problems.emplace_back("a design has no name");
        if (command.number < 1)
            problems.emplace_back("a design has no number");
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
                problems.push_back("a design names " + in_quotes(file) + ", which doesn't come with it");
    }

    const text_lines & payload;
    text_lines problems, used, targets;
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

// The first picture that the command's file, a template, names outside.
std::optional<std::string> picture_outside(const manifest_command & command, const text_lines & payload,
                                           const std::string & unpacked)
{
    const std::optional<std::string> place = payload_place(command.target, {});
    if (command.step != manifest_step::payload || !place || first_folder(*place) != "designs" ||
        !holds(payload, command.text))
        return std::nullopt;
    return way_out_of_template(lines_of_file(joined(unpacked, command.text)));
}

}  // namespace

text_lines manifest_problems(const text_lines & manifest, const text_lines & payload)
{
    return manifest_walk(payload).run(manifest);
}

text_lines package_problems(const std::string & package)
{
    const work_folder work;
    if (const auto problem = unpacking_problem(unpack_zip(package, work.path())))
        return {*problem};
    const std::string manifest = joined(work.path(), "manifest");
    if (!file_exists(manifest))
        return {"the manifest is missing"};
    text_lines payload = files_in(work.path());
    std::erase(payload, "manifest");
    std::ranges::sort(payload);
    for (const std::string & folder : folders_in(work.path()))
        payload.push_back(folder + "/");
    text_lines problems = manifest_problems(lines_of_file(manifest), payload);
    for (const manifest_command & command : commands_of_manifest(lines_of_file(manifest)))
        if (const std::optional<std::string> path = picture_outside(command, payload, work.path()))
            problems.push_back("packages may not use " + in_quotes(*path));
    return problems;
}
