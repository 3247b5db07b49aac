#include "designs/package/package_rules.h"

#include "designs/browser/description.h"
#include "support/files/inner_path.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <set>

namespace {

package_refusal refused(std::size_t line, std::string why)
{
    return {.line = line, .why = std::move(why)};
}

std::string in_quotes(std::string_view text)
{
    return "'" + shown_in_message(text) + "'";
}

// ---- what the whole manifest may be

void look_at_lines(const text_lines & manifest, std::vector<package_refusal> & found)
{
    for (std::size_t i = 0; i < manifest.size(); ++i)
        if (manifest[i].size() > longest_line) {
            found.push_back(
                refused(i + 1, "has a line of more than " + std::to_string(longest_line) + " bytes"));
            return;
        }
}

struct count_limit {
    std::size_t most;
    const char * what;
    std::size_t count = 0;
};

// Names the first line that is one too many.
void count_up(count_limit & limit, const manifest_command & command, std::vector<package_refusal> & found)
{
    if (++limit.count == limit.most + 1)
        found.push_back(
            refused(command.line, "has more than " + std::to_string(limit.most) + " " + limit.what));
}

void look_at_counts(const std::vector<manifest_command> & commands, std::vector<package_refusal> & found)
{
    count_limit all{.most = most_commands, .what = "commands"};
    count_limit folders{.most = most_new_folders, .what = "folders"};
    count_limit sections{.most = most_sections, .what = "designs"};
    for (const manifest_command & command : commands) {
        count_up(all, command, found);
        if (command.step == manifest_step::new_folder)
            count_up(folders, command, found);
        if (command.step == manifest_step::section)
            count_up(sections, command, found);
    }
}

// ---- the commands in turn

class command_check {
public:
    command_check(const package_payload & files, package_folders folders,
                  std::vector<package_refusal> & problems)
        : payload(files),
          own(std::move(folders)),
          found(problems),
          unused(files.names.begin(), files.names.end())
    {}

    void look_at(const manifest_command & command)
    {
        switch (command.step) {
            case manifest_step::title:
                look_at_title(command);
                return;
            case manifest_step::new_folder:
                look_at_folder(command);
                return;
            case manifest_step::payload:
                look_at_payload(command);
                return;
            default:
                look_at_texts(command);
        }
    }

private:
    void refuse(std::size_t line, std::string why) { found.push_back(refused(line, std::move(why))); }
    void look_at_title(const manifest_command & command)
    {
        if (command.text.size() > longest_title)
            refuse(command.line, "has a title of more than " + std::to_string(longest_title) + " bytes");
        if (!is_one_line(command.text))
            refuse(command.line, "has a title with control characters");
    }
    void look_at_folder(const manifest_command & command)
    {
        if (const std::optional<std::string> place = folder_place(command.target))
            own.push_back(first_folder(*place));
        else
            found.push_back(refused_path(command.line, command.target));
    }
    void look_at_payload(const manifest_command & command)
    {
        if (unused.erase(command.text) == 0 || !is_plain_name(command.text)) {
            const bool twice = payload.holds(command.text);
            found.push_back({.line = command.line,
                             .why = (twice ? "uses the file " : "is missing the file ") +
                                    in_quotes(command.text) + (twice ? " twice" : ""),
                             .what = package_refusal::kind::missing,
                             .about = command.text});
            return;
        }
        const std::optional<std::string> place = payload_place(command.target, own);
        if (!place)
            found.push_back(refused_path(command.line, command.target));
        else
            look_at_content(command, *place);
    }
    // A template may name pictures by any path; a description is shown whole.
    void look_at_content(const manifest_command & command, const std::string & place)
    {
        const std::string folder = first_folder(place);
        if (folder == "designs") {
            if (const auto path = way_out_of_template(lines_of_text(payload.bytes(command.text))))
                found.push_back(refused_path(command.line, *path));
        } else if (folder == "descriptions" && payload.bytes(command.text).size() > longest_description) {
            refuse(command.line, "has a description of more than " + std::to_string(longest_description) +
                                     " bytes, " + in_quotes(command.text));
        }
    }
    void look_at_texts(const manifest_command & command)
    {
        if (const std::optional<numbered_line> path = way_out(command))
            found.push_back(refused_path(path->line, path->text));
        for (std::size_t i = 0; i < command.lines.size(); ++i) {
            const std::string & line = command.lines[i];
            const bool is_name = command.step == manifest_step::icon || line.starts_with("Name=");
            if (is_name && !is_one_line(line))
                refuse(command.line + 1 + i, "has a name with control characters, " + in_quotes(line));
        }
    }

    const package_payload & payload;
    package_folders own;
    std::vector<package_refusal> & found;
    std::set<std::string> unused;
};

}  // namespace

bool package_payload::holds(const std::string & name) const
{
    return std::ranges::find(names, name) != names.end();
}

package_refusal refused_path(std::size_t line, std::string_view path)
{
    return refused(line, "may not use " + in_quotes(path));
}

std::vector<package_refusal> package_refusals(const text_lines & manifest, const package_payload & payload,
                                              const package_folders & own)
{
    std::vector<package_refusal> found;
    const std::vector<manifest_command> commands = commands_of_manifest(manifest);
    look_at_lines(manifest, found);
    look_at_counts(commands, found);
    command_check check(payload, own, found);
    for (const manifest_command & command : commands)
        check.look_at(command);
    return found;
}
