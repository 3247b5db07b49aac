#include "designs/catalogue/mended_catalogue.h"

#include "designs/catalogue/catalogue_parts.h"
#include "designs/catalogue/supplied_designs.h"

#include <algorithm>
#include <array>

namespace {

// Found by their names: the first by the quick styles, the others by them and the designers.
constexpr std::array<std::string_view, 6> reserved_names{"Match",        "Quick matrix", "Matrix grid",
                                                         "Frame_matrix", "Lettering",    "Puzzle"};
constexpr int first_of_users = 500;

bool holds_zero_byte(const text_lines & lines)
{
    return std::ranges::any_of(lines,
                               [](const std::string & line) { return line.find('\0') != std::string::npos; });
}

bool is_of_use(const text_lines & supplied)
{
    return parts_of(supplied).size() > 1 && !holds_zero_byte(supplied);
}

bool lacks_reserved(const catalogue_parts & own, const catalogue_parts & supplied)
{
    return std::ranges::any_of(reserved_names, [&](std::string_view name) {
        return has_name(supplied, name) && !has_name(own, name);
    });
}

// It is the other one without its end.
bool is_beginning_of(const catalogue_part & part, const catalogue_part & whole)
{
    const text_lines lines = without_blank_end(part.lines), all = without_blank_end(whole.lines);
    if (lines.empty() || lines.size() > all.size() || lines == all)
        return false;
    return std::equal(lines.begin(), lines.end() - 1, all.begin()) &&
           all[lines.size() - 1].starts_with(lines.back());
}

bool ends_in_the_middle(const catalogue_parts & own, const catalogue_parts & supplied)
{
    const catalogue_part * const whole = with_number(supplied, own.back().number);
    return whole != nullptr && whole != &supplied.back() && is_beginning_of(own.back(), *whole);
}

bool is_text(std::string_view line)
{
    const auto is_control = [](unsigned char sign) { return sign < ' ' && sign != '\t'; };
    const bool is_blank = line.find_first_not_of(" \t") == std::string_view::npos;
    return std::ranges::none_of(line, is_control) &&
           (is_blank || line.starts_with('[') || line.starts_with(';') ||
            line.find('=') != std::string_view::npos);
}

// Up to the first line that is no text: what follows may be another section's.
catalogue_part readable(catalogue_part part)
{
    part.lines.erase(std::ranges::find_if_not(part.lines, is_text), part.lines.end());
    return part;
}

bool is_design(const catalogue_part & part)
{
    return part.number && !part.lines.empty() && part.lines.front() == design_header(*part.number) &&
           !value_in(part, "Name=").empty() && !value_in(part, "File=").empty();
}

catalogue_parts readable_parts(const text_lines & own, const catalogue_parts & supplied)
{
    catalogue_parts parts(1);
    for (const catalogue_part & part : parts_of(own)) {
        const catalogue_part * const whole = with_number(supplied, part.number);
        if (catalogue_part read = readable(part);
            is_design(read) && !(whole != nullptr && is_beginning_of(read, *whole)))
            parts.push_back(std::move(read));
    }
    return parts;
}

int free_number(const catalogue_parts & parts)
{
    int number = 1;
    while (with_number(parts, number) != nullptr)
        ++number;
    return number;
}

void add_reserved(catalogue_parts & parts, const catalogue_parts & supplied)
{
    for (catalogue_part part : supplied) {
        const std::string_view name = value_in(part, "Name=");
        if (std::ranges::find(reserved_names, name) == reserved_names.end() || has_name(parts, name))
            continue;
        part.number = free_number(parts);
        part.lines.front() = design_header(*part.number);
        put_in(parts, std::move(part));
    }
}

bool has_template(const catalogue_parts & parts, std::string_view file)
{
    return std::ranges::any_of(parts,
                               [&](const catalogue_part & part) { return value_in(part, "File=") == file; });
}

void add_from_backup(catalogue_parts & parts, const traces_of_designs & traces)
{
    for (const catalogue_part & old : parts_of(traces.backup)) {
        catalogue_part part = readable(old);
        const bool is_own = is_design(part) && *part.number >= first_of_users;
        if (is_own && with_number(parts, part.number) == nullptr &&
            !has_name(parts, value_in(part, "Name=")) && !has_template(parts, value_in(part, "File=")) &&
            std::ranges::find(traces.templates, value_in(part, "File=")) != traces.templates.end())
            put_in(parts, std::move(part));
    }
}

// Under its old number, or the next design that is saved would take its files.
void add_saved(catalogue_parts & parts, const traces_of_designs & traces)
{
    for (design_to_save design : traces.saved) {
        const std::string number = formatted(design.number, 3);
        if (with_number(parts, design.number) != nullptr || has_template(parts, "saved" + number))
            continue;
        design.name = "Saved design " + number;
        text_lines lines = saved_section(design);
        lines.erase(lines.begin());  // an empty one
        put_in(parts, {.number = design.number, .lines = std::move(lines)});
    }
}

}  // namespace

bool is_damaged(const text_lines & own, const text_lines & supplied)
{
    if (!is_of_use(supplied))
        return false;
    const catalogue_parts parts = parts_of(own), all = parts_of(supplied);
    return parts.size() == 1 || holds_zero_byte(own) || ends_in_the_middle(parts, all) ||
           (lacks_reserved(parts, all) && !std::ranges::all_of(own, is_text));
}

text_lines mended_catalogue(const text_lines & own, const text_lines & supplied,
                            const traces_of_designs & traces)
{
    const catalogue_parts all = parts_of(supplied);
    const text_lines whole = with_supplied(lines_of_parts(readable_parts(own, all)), {}, supplied);
    catalogue_parts parts = parts_of(whole);
    add_reserved(parts, all);
    add_from_backup(parts, traces);
    add_saved(parts, traces);
    return lines_of_parts(parts);
}
