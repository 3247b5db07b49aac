#include "designs/catalogue/catalogue_parts.h"

#include <algorithm>

namespace {

void ends_with_blank_line(text_lines & lines)
{
    if (!lines.empty() && !lines.back().empty())
        lines.emplace_back();
}

}  // namespace

catalogue_parts parts_of(const text_lines & catalogue)
{
    catalogue_parts parts(1);
    for (const std::string & line : catalogue) {
        if (const std::optional<double> number = number_of_header(line, 3))
            parts.push_back({.number = nearest(*number), .lines = {}});
        parts.back().lines.push_back(line);
    }
    return parts;
}

text_lines lines_of_parts(const catalogue_parts & parts)
{
    text_lines lines;
    for (const catalogue_part & part : parts)
        lines.insert(lines.end(), part.lines.begin(), part.lines.end());
    return lines;
}

text_lines without_blank_end(text_lines lines)
{
    while (!lines.empty() && lines.back().find_first_not_of(" \t") == std::string::npos)
        lines.pop_back();
    return lines;
}

const catalogue_part * with_number(const catalogue_parts & parts, std::optional<int> number)
{
    const auto found = std::ranges::find(parts, number, &catalogue_part::number);
    return !number || found == parts.end() ? nullptr : &*found;
}

std::string_view value_in(const catalogue_part & part, std::string_view key)
{
    for (const std::string_view line : part.lines)
        if (line.starts_with(key))
            return line.substr(key.size());
    return {};
}

bool has_name(const catalogue_parts & parts, std::string_view name)
{
    return std::ranges::any_of(parts,
                               [&](const catalogue_part & part) { return value_in(part, "Name=") == name; });
}

void put_in(catalogue_parts & parts, catalogue_part fresh)
{
    const auto above = std::ranges::find_if(
        parts, [&](const catalogue_part & part) { return part.number.value_or(0) > *fresh.number; });
    if (above != parts.begin())
        ends_with_blank_line((above - 1)->lines);
    if (above != parts.end())
        ends_with_blank_line(fresh.lines);
    parts.insert(above, std::move(fresh));
}
