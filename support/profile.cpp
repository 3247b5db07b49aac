#include "support/profile.h"

#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

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

// The keys of a section, or nullptr for a section that was there before: the first of a name counts.
keys * begun_section(std::map<std::string, keys> & sections, std::string_view line)
{
    const std::size_t end = line.find(']');
    const auto [place, fresh] = sections.try_emplace(lower_case(trimmed(line.substr(1, end - 1))));
    return fresh ? &place->second : nullptr;
}

void add_key(keys & section, std::string_view line)
{
    const std::size_t sign = line.find('=');
    if (sign != std::string_view::npos)
        section.try_emplace(lower_case(trimmed(line.substr(0, sign))),
                            unquoted(trimmed(line.substr(sign + 1))));
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
