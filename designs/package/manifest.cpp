#include "designs/package/manifest.h"

#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view title_start = "$$$ MSG ", folder_start = "$$$ NEW  ", payload_start = "$$$ NAME ",
                           icon_start = "$$$ icons", section_start = "$$$ designs.ini", section_end = "$$$";
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::size_t payload_length = 6;        // characters
constexpr std::size_t fields_of_a_location = 9;  // the last one is its picture

// Where packages put files, and may have folders of their own.
constexpr std::array<std::string_view, 9> shared_folders{
    "designs", "descriptions", "samples", "piclists", "user_images", "frames", "icons", "alpha", "puzzle"};
// What else stands beside them, in the data folder or beside the program, as a folder or as a file.
constexpr std::array<std::string_view, 28> closed_names{"tmp",
                                                        "images",
                                                        "help",
                                                        "bin",
                                                        "scratch",
                                                        "lock",
                                                        "filling",
                                                        "portable",
                                                        "designs.ini",
                                                        "designs.new",
                                                        "designs.bbb",
                                                        "designs.supplied",
                                                        "designs.seed",
                                                        "3_1_install",
                                                        "4_2_install",
                                                        "package_folders",
                                                        "design_list",
                                                        "description_list",
                                                        "frames.zip",
                                                        "rotate.ini",
                                                        "block_templates",
                                                        "scatter_templates",
                                                        "quick_block.ini",
                                                        "quick_matrix.ini",
                                                        "quick_scatter.ini",
                                                        "tessaloom",
                                                        "tessaloom-batch",
                                                        "tessaloom-pack"};
constexpr std::array<std::string_view, 8> own_files{
    "icons/icons",           "icons/icons.new",         "icons/icons.bbb",    "samples/not_yet.jpg",
    "piclists/__last__.pls", "piclists/_work_file.pls", "frames/_named_.not", "piclists/last_photos.pls"};
// Where the program has files of its own names, a folder of such a name would be in their way: "saved602".
struct numbered_names {
    std::string_view start, end;
};
constexpr std::array numbered_files{
    numbered_names{"designs/saved", ""}, numbered_names{"samples/saved", ".jpg"},
    numbered_names{"samples/saved", ".jpg_"}, numbered_names{"descriptions/saved", ""}};

template <std::size_t Count>
bool holds(const std::array<std::string_view, Count> & names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

bool is_closed(std::string_view first)
{
    return holds(closed_names, first) || first.ends_with(".new") || first.ends_with(".bbb") ||
           first.ends_with(".set_aside");
}

// The path, its first folder spelled as ours is when it differs in case alone.
std::optional<std::string> place_of(std::string_view target)
{
    std::optional<std::string> path = inner_path(target);
    if (!path)
        return std::nullopt;
    const std::string first = lower_case(first_folder(*path));
    if (holds(shared_folders, first) || is_closed(first))
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

}  // namespace

bool is_file_of_ours(std::string_view place)
{
    const std::string path = lower_case(place);
    return path == "user_images/custom_shape.gif" ||
           std::ranges::any_of(numbered_files, [&](const numbered_names & known) {
               if (!path.starts_with(known.start) || !path.ends_with(known.end) ||
                   path.size() <= known.start.size() + known.end.size())
                   return false;
               const std::string_view number = std::string_view(path).substr(
                   known.start.size(), path.size() - known.start.size() - known.end.size());
               return std::ranges::all_of(number, [](char sign) { return sign >= '0' && sign <= '9'; });
           });
}

namespace {

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

// How many bytes the letter takes with which the text begins; 1 where it isn't UTF-8.
std::size_t letter_length(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0xC2 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 1;
    if (text.size() < length)
        return 1;
    const std::string_view rest = text.substr(1, length - 1);
    const bool is_whole = std::ranges::all_of(
        rest, [](char sign) { return (static_cast<unsigned char>(sign) & 0xC0U) == 0x80U; });
    return is_whole ? length : 1;
}

// How many bytes the first six characters of the text take: of UTF-8, or each byte one where it is none.
std::size_t length_of_payload_name(std::string_view text)
{
    std::size_t bytes = 0;
    for (std::size_t letters = 0; letters < payload_length && bytes < text.size(); ++letters)
        bytes += letter_length(text.substr(bytes));
    return bytes;
}

manifest_command payload_of(std::string_view line)
{
    const std::string_view text = line.substr(payload_start.size());
    const std::size_t length = length_of_payload_name(text);
    return {.step = manifest_step::payload,
            .text = std::string(text.substr(0, length)),
            .target = from_column(text, length + 2),
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
    numbered_line last_line() const { return {.line = next, .text = lines[next - 1]}; }
    std::optional<manifest_command> read()
    {
        const std::size_t at = next;
        std::optional<manifest_command> command = read_command();
        if (command)
            command->line = at + 1;
        return command;
    }

private:
    std::optional<manifest_command> read_command()
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

std::vector<numbered_line> unknown_commands(const text_lines & manifest)
{
    std::vector<numbered_line> unknown;
    for (manifest_reader reader(manifest); !reader.at_end();)
        if (!reader.read() && reader.last_line().text.starts_with(section_end))
            unknown.push_back(reader.last_line());
    return unknown;
}

text_lines manifest_lines(std::string bytes)
{
    if (bytes.starts_with(byte_order_mark))
        bytes.erase(0, byte_order_mark.size());
    return lines_of_text(std::move(bytes));
}

std::optional<numbered_line> way_out(const manifest_command & command)
{
    if (command.step != manifest_step::icon && command.step != manifest_step::section)
        return std::nullopt;
    const char sign = command.step == manifest_step::icon ? ' ' : '=';
    for (std::size_t i = 0; i < command.lines.size(); ++i)
        if (std::string path = behind(command.lines[i], sign); leads_out(path))
            return numbered_line{.line = command.line + 1 + i, .text = std::move(path)};
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
    return !holds(shared_folders, first) && !is_closed(first);
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
    if (!place || is_ours(*place) || is_file_of_ours(*place))
        return std::nullopt;
    const bool may =
        stands_beside_ours(*place) || (holds(shared_folders, first_folder(*place)) && has_folder(*place));
    return may ? place : std::nullopt;
}
