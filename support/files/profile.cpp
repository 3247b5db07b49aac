#include "support/files/profile.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view unquoted(std::string_view text)
{
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

using keys = std::map<std::string, std::string>;

// In lower case.
std::string section_name(std::string_view line)
{
    return lower_case(trimmed(line.substr(1, line.find(']') - 1)));
}

std::string key_name(std::string_view line)
{
    return lower_case(trimmed(line.substr(0, line.find('='))));
}

// The keys of a section, or nullptr for a section that was there before: the first of a name counts.
keys * begun_section(std::map<std::string, keys> & sections, std::string_view line)
{
    const auto [place, fresh] = sections.try_emplace(section_name(line));
    return fresh ? &place->second : nullptr;
}

void add_key(keys & section, std::string_view line)
{
    const std::size_t sign = line.find('=');
    if (sign != std::string_view::npos)
        section.try_emplace(key_name(line), unquoted(trimmed(line.substr(sign + 1))));
}

std::vector<std::string> lines_of(std::string_view text)
{
    std::vector<std::string> lines;
    for (line_source source = line_source::of_text(std::string(text)); !source.at_end();)
        lines.push_back(source.read_line());
    return lines;
}

using line_place = std::vector<std::string>::iterator;

bool begins_section(const std::string & line)
{
    return trimmed(line).starts_with('[');
}

// The first line behind the header of the section; the section is added when it isn't there.
line_place first_line_of(std::vector<std::string> & lines, std::string_view section)
{
    const auto header = std::ranges::find_if(lines, [&](const std::string & line) {
        return begins_section(line) && section_name(trimmed(line)) == lower_case(section);
    });
    if (header != lines.end())
        return header + 1;
    lines.push_back("[" + std::string(section) + "]");
    return lines.end();
}

bool has_key(const std::string & line, std::string_view key)
{
    const std::string_view text = trimmed(line);
    return !text.starts_with(';') && text.find('=') != std::string_view::npos &&
           key_name(text) == lower_case(key);
}

}  // namespace

profile::profile(const std::string & path)
{
    if (!file_readable(path))
        return;
    line_source lines(path);
    keys * section = nullptr;
    while (!lines.at_end()) {
        const std::string whole_line = lines.read_line();
        const std::string_view line = trimmed(whole_line);
        if (line.starts_with('['))
            section = begun_section(sections, line);
        else if (section != nullptr && !line.starts_with(';'))
            add_key(*section, line);
    }
}

std::string profile::value(std::string_view section, std::string_view key, std::string_view fallback,
                           std::size_t limit) const
{
    const auto found = sections.find(lower_case(section));
    std::string text(fallback);
    if (found != sections.end()) {
        const auto entry = found->second.find(lower_case(key));
        if (entry != found->second.end())
            text = entry->second;
    }
    return text.substr(0, std::min(text.size(), limit - 1));
}

std::string profile_text(std::string_view written, std::size_t limit)
{
    return std::string(unquoted(trimmed(written)).substr(0, limit - 1));
}

std::string with_profile_value(std::string_view text, std::string_view section, std::string_view key,
                               std::string_view value)
{
    std::vector<std::string> lines = lines_of(text);
    const line_place first = first_line_of(lines, section);
    line_place end = std::find_if(first, lines.end(), begins_section);
    const line_place place =
        std::find_if(first, end, [&](const std::string & line) { return has_key(line, key); });
    std::string written = std::string(key) + "=" + std::string(value);
    std::ranges::replace_if(
        written, [](char sign) { return sign == '\r' || sign == '\n'; }, ' ');
    if (place != end) {
        *place = written;
    } else {
        while (end != first && trimmed(*(end - 1)).empty())
            --end;
        lines.insert(end, written);
    }
    return text_of(lines);
}
