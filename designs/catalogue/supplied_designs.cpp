#include "designs/catalogue/supplied_designs.h"

#include <algorithm>

namespace {

// A section with the blank lines behind it, or what stands in front of the first one: that has no number.
struct catalogue_part {
    std::optional<int> number;
    text_lines lines;
};

using catalogue_parts = std::vector<catalogue_part>;

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

text_lines without_blank_end(text_lines lines)
{
    while (!lines.empty() && lines.back().find_first_not_of(" \t") == std::string::npos)
        lines.pop_back();
    return lines;
}

bool same_text(const catalogue_part & one, const catalogue_part & other)
{
    return without_blank_end(one.lines) == without_blank_end(other.lines);
}

const catalogue_part * with_number(const catalogue_parts & parts, std::optional<int> number)
{
    const auto found = std::ranges::find(parts, number, &catalogue_part::number);
    return !number || found == parts.end() ? nullptr : &*found;
}

std::string_view name_in(const catalogue_part & part)
{
    constexpr std::string_view key = "Name=";
    for (const std::string_view line : part.lines)
        if (line.starts_with(key))
            return line.substr(key.size());
    return {};
}

// What was supplied and left as it was becomes what is supplied now.
catalogue_parts brought_up(catalogue_parts own, const catalogue_parts & last, const catalogue_parts & now)
{
    std::erase_if(own, [&](catalogue_part & part) {
        const catalogue_part * const before = with_number(last, part.number);
        if (before == nullptr || !same_text(part, *before))
            return false;
        const catalogue_part * const today = with_number(now, part.number);
        if (today != nullptr && !same_text(*today, part))
            part.lines = today->lines;
        return today == nullptr;
    });
    return own;
}

bool is_wanted(const catalogue_part & fresh, const catalogue_parts & own, const catalogue_parts & last)
{
    const auto has_its_name = [&](const catalogue_part & part) { return name_in(part) == name_in(fresh); };
    return fresh.number && with_number(last, fresh.number) == nullptr &&
           with_number(own, fresh.number) == nullptr && std::ranges::none_of(own, has_its_name);
}

void ends_with_blank_line(text_lines & lines)
{
    if (!lines.empty() && !lines.back().empty())
        lines.emplace_back();
}

void put_in(catalogue_parts & own, catalogue_part fresh)
{
    const auto above = std::ranges::find_if(
        own, [&](const catalogue_part & part) { return part.number.value_or(0) > *fresh.number; });
    if (above != own.begin())
        ends_with_blank_line((above - 1)->lines);
    if (above != own.end())
        ends_with_blank_line(fresh.lines);
    own.insert(above, std::move(fresh));
}

}  // namespace

text_lines with_supplied(const text_lines & own, const text_lines & last, const text_lines & now)
{
    const catalogue_parts before = parts_of(last), today = parts_of(now);
    if (today.size() == 1)
        return own;
    catalogue_parts parts = brought_up(parts_of(own), before, today);
    for (const catalogue_part & fresh : today)
        if (is_wanted(fresh, parts, before))
            put_in(parts, fresh);
    text_lines lines;
    for (const catalogue_part & part : parts)
        lines.insert(lines.end(), part.lines.begin(), part.lines.end());
    return lines;
}
