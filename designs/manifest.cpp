#include "designs/manifest.h"

#include "support/inner_path.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view title_start = "$$$ MSG ", folder_start = "$$$ NEW  ", payload_start = "$$$ NAME ",
                           icon_start = "$$$ icons", section_start = "$$$ designs.ini", section_end = "$$$";
constexpr std::size_t payload_length = 6;
constexpr std::size_t fields_of_a_location = 9;  // the last one is its picture

// Where packages put files, and may have folders of their own.
constexpr std::array<std::string_view, 9> shared_folders{
    "designs", "descriptions", "samples", "piclists", "user_images", "frames", "icons", "alpha", "puzzle"};
// What else stands beside them, in the data folder or beside the program.
constexpr std::array<std::string_view, 4> closed_folders{"tmp", "images", "help", "bin"};
constexpr std::array<std::string_view, 8> own_files{
    "icons/icons",           "icons/icons.new",         "icons/icons.bbb",    "samples/not_yet.jpg",
    "piclists/__last__.pls", "piclists/_work_file.pls", "frames/_named_.not", "piclists/last_photos.pls"};

template <std::size_t Count>
bool holds(const std::array<std::string_view, Count> & names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

// The path, its first folder spelled as ours is when it differs in case alone.
std::optional<std::string> place_of(std::string_view target)
{
    std::optional<std::string> path = inner_path(target);
    if (!path)
        return std::nullopt;
    const std::string first = lower_case(first_folder(*path));
    if (holds(shared_folders, first) || holds(closed_folders, first))
        path->replace(0, first.size(), first);
    return path;
}

bool has_folder(std::string_view place)
{
    return place.find('/') != std::string_view::npos;
}

// Files that are being rewritten end so, and are swept away at a start; work files of designs begin so.
bool is_ours(std::string_view place)
{
    const std::string path = lower_case(place);
    return holds(own_files, path) || path.ends_with(".part") || path.starts_with("designs/__") ||
           path.starts_with("frames/_named_.not");
}

bool leads_out(std::string_view path)
{
    for (const std::string & name : split(with_platform_separators(path), path_separator, path.size() + 1))
        if (name == "..")
            return true;
    return false;
}

std::string behind(std::string_view line, char sign)
{
    const std::size_t at = line.find(sign);
    return at == std::string_view::npos ? std::string() : std::string(line.substr(at + 1));
}

std::string from_column(std::string_view line, std::size_t column)
{
    return line.size() < column ? std::string() : std::string(line.substr(column - 1));
}

manifest_command payload_of(std::string_view line)
{
    return {.step = manifest_step::payload,
            .text = from_column(line, payload_start.size() + 1).substr(0, payload_length),
            .target = from_column(line, payload_start.size() + payload_length + 2),
            .number = 0,
            .lines = {}};
}

double number_of(std::string_view text)
{
    try {
        return leading_number(text);
    } catch (const platform_error &) {
        return last_own_number + 1;  // too large for any number: behind all sections
    }
}

// Reads on in the manifest where a command takes more than its line.
class manifest_reader {
public:
    explicit manifest_reader(const text_lines & manifest) : lines(manifest) {}

    bool at_end() const { return next == lines.size(); }
    const std::string & last_line() const { return lines[next - 1]; }
    std::optional<manifest_command> read()
    {
        const std::string & line = lines[next++];
        if (line.starts_with(title_start))
            return manifest_command{.text = line.substr(title_start.size()), .target = {}, .lines = {}};
        if (line.starts_with(folder_start))
            return manifest_command{.step = manifest_step::new_folder,
                                    .text = {},
                                    .target = line.substr(folder_start.size()),
                                    .lines = {}};
        if (line.starts_with(payload_start))
            return payload_of(line);
        if (line.starts_with(icon_start))
            return icon();
        if (line.starts_with(section_start))
            return section(line.substr(section_start.size()));
        return std::nullopt;
    }

private:
    manifest_command icon()
    {
        manifest_command command{.step = manifest_step::icon, .text = {}, .target = {}, .lines = {}};
        if (!at_end())
            command.lines.push_back(lines[next++]);
        return command;
    }
    manifest_command section(const std::string & number)
    {
        manifest_command command{.step = manifest_step::section,
                                 .text = {},
                                 .target = {},
                                 .number = number_of(number),
                                 .lines = {}};
        while (!at_end()) {
            const std::string & line = lines[next++];
            if (line == section_end)
                break;
            command.lines.push_back(line);
        }
        return command;
    }

    const text_lines & lines;
    std::size_t next = 0;
};

}  // namespace

std::vector<manifest_command> commands_of_manifest(const text_lines & manifest)
{
    std::vector<manifest_command> commands;
    for (manifest_reader reader(manifest); !reader.at_end();)
        if (std::optional<manifest_command> command = reader.read())
            commands.push_back(std::move(*command));
    return commands;
}

text_lines unknown_commands(const text_lines & manifest)
{
    text_lines unknown;
    for (manifest_reader reader(manifest); !reader.at_end();)
        if (!reader.read() && reader.last_line().starts_with(section_end))
            unknown.push_back(reader.last_line());
    return unknown;
}

std::optional<std::string> way_out(const manifest_command & command)
{
    if (command.step != manifest_step::icon && command.step != manifest_step::section)
        return std::nullopt;
    const char sign = command.step == manifest_step::icon ? ' ' : '=';
    for (const std::string & line : command.lines)
        if (std::string path = behind(line, sign); leads_out(path))
            return path;
    return std::nullopt;
}

std::optional<std::string> way_out_of_template(const text_lines & lines)
{
    for (const std::string & line : lines)
        if (std::string path = split(line, ':', fields_of_a_location).back(); leads_out(path))
            return path;
    return std::nullopt;
}

std::string first_folder(std::string_view place)
{
    return std::string(place.substr(0, place.find('/')));
}

bool stands_beside_ours(std::string_view place)
{
    const std::string first = lower_case(first_folder(place));
    return !holds(shared_folders, first) && !holds(closed_folders, first);
}

std::optional<std::string> payload_place(std::string_view target, const package_folders & own)
{
    std::optional<std::string> place = place_of(target);
    if (!place || !has_folder(*place) || is_ours(*place))
        return std::nullopt;
    const std::string first = first_folder(*place);
    const bool may = holds(shared_folders, first) || std::ranges::find(own, first) != own.end();
    return may ? place : std::nullopt;
}

std::optional<std::string> folder_place(std::string_view target)
{
    std::optional<std::string> place = place_of(target);
    if (!place || is_ours(*place))
        return std::nullopt;
    const bool may =
        stands_beside_ours(*place) || (holds(shared_folders, first_folder(*place)) && has_folder(*place));
    return may ? place : std::nullopt;
}
