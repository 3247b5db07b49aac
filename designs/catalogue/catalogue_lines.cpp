#include "designs/catalogue/catalogue_lines.h"

#include "designs/catalogue/design_lines.h"
#include "support/files/inner_path.h"
#include "support/files/profile.h"
#include "support/letter_case.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

constexpr std::string_view header_start = "[Design";
constexpr std::size_t header_length = 11;  // "[Design600]"
constexpr double end_of_supplied = 499;

struct file_key {
    std::string_view key, folder;
};
constexpr std::array file_keys{file_key{"File=", "designs/"}, file_key{"Sample=", "samples/"},
                               file_key{"Description=", "descriptions/"}};

bool is_header(std::string_view line)
{
    return line.starts_with(header_start);
}

bool is_blank(std::string_view line)
{
    return line.find_first_not_of(" \t") == std::string_view::npos;
}

// The file that a line of a section names, empty for none.
std::string file_of_line(std::string_view line)
{
    for (const file_key & known : file_keys) {
        if (!line.starts_with(known.key))
            continue;
        const std::string_view name = line.substr(known.key.size());
        const bool is_there = name.find("not_yet") == std::string_view::npos && is_plain_name(name);
        return is_there ? std::string(known.folder) + std::string(name) : std::string();
    }
    return {};
}

enum class side { of_the_number, of_the_others };

// The lines of the sections of that number, or all others.
text_lines lines_on(side wanted, const text_lines & catalogue, int number)
{
    text_lines lines;
    side here = side::of_the_others;
    for (const std::string & line : catalogue) {
        if (is_header(line))
            here = number_of_header(line, 3) == number ? side::of_the_number : side::of_the_others;
        if (here == wanted)
            lines.push_back(line);
    }
    return lines;
}

// Blank lines in front of the header stay there.
text_lines with_one_header(text_lines section, int number)
{
    const auto own = std::ranges::find_if(section, is_header);
    const bool leads = own != section.end() && std::all_of(section.begin(), own, is_blank);
    const auto place = leads ? own - section.begin() : 0;
    std::erase_if(section, is_header);
    section.insert(section.begin() + place, design_header(number));
    return section;
}

void append(text_lines & lines, std::span<const std::string> more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

// As it stands, or as a list shows it.
bool is_named(const listed_design & design, std::string_view name)
{
    return design.name == name || profile_text(design.name) == name;
}

int number_of_section(std::string_view section)
{
    return nearest(leading_number(section.substr(header_start.size() - 1)));
}

// What two designs have in common that show the same: name and files. Nothing for one without a template.
std::optional<text_lines> name_and_files(std::span<const std::string> section)
{
    design_record design;
    for (const std::string & line : section)
        read_design_line(design, line);
    if (design.name.empty() || design.file.empty())
        return std::nullopt;
    return text_lines{design.name, design.file, design.sample, design.description};
}

// The numbers of the user's designs with that name and those files, in the order of the catalogue.
std::vector<int> numbers_of_copies(const text_lines & catalogue, const text_lines & section)
{
    std::vector<int> numbers;
    const std::optional<text_lines> wanted = name_and_files(section);
    auto header = std::ranges::find_if(catalogue, is_header);
    while (wanted && header != catalogue.end()) {
        const auto next = std::find_if(header + 1, catalogue.end(), is_header);
        const double number = *number_of_header(*header);
        const bool is_plain = header->substr(0, header_length) == design_header(nearest(number));
        if (number > end_of_supplied && is_plain && name_and_files(std::span(header, next)) == wanted)
            numbers.push_back(nearest(number));
        header = next;
    }
    return numbers;
}

bool has_header(const text_lines & catalogue, const std::string & header)
{
    return std::ranges::any_of(
        catalogue, [&](const std::string & line) { return line.substr(0, header_length) == header; });
}

text_lines with_section_instead(const text_lines & catalogue, const std::string & header,
                                const text_lines & section)
{
    text_lines merged;
    auto line = catalogue.begin();
    for (; line->substr(0, header_length) != header; ++line)
        merged.push_back(*line);
    append(merged, section);
    line = std::find_if(line + 1, catalogue.end(), is_header);
    merged.insert(merged.end(), line, catalogue.end());
    return merged;
}

// The same design once more: in the place of the first, and of no other.
text_lines with_section_once(const text_lines & catalogue, std::span<const int> copies,
                             const text_lines & section)
{
    text_lines merged = with_section_instead(catalogue, design_header(copies.front()),
                                             with_one_header(section, copies.front()));
    for (const int copy : copies.subspan(1))
        if (copy != copies.front())
            merged = without_design(merged, copy);
    return merged;
}

// The last number in the file and then, where numbers are out of order, the next that is free.
int number_behind(const text_lines & catalogue)
{
    double last = 0;
    for (const std::string & line : catalogue)
        last = number_of_header(line).value_or(last);
    int number = nearest(std::clamp(last, double{first_own_number}, double{last_own_number})) + 1;
    while (number <= last_own_number && has_header(catalogue, design_header(number)))
        ++number;
    return number;
}

}  // namespace

std::string design_header(int number)
{
    return std::string(header_start) + formatted(number, 3) + "]";
}

std::optional<double> number_of_header(std::string_view line, std::size_t signs)
{
    if (!is_header(line))
        return std::nullopt;
    return leading_number(line.substr(line.size() - 4).substr(0, signs));
}

bool holds_name(const text_lines & catalogue, std::string_view name)
{
    const std::string wanted = "NAME=" + upper_case(name);
    return std::ranges::any_of(catalogue,
                               [&](const std::string & line) { return upper_case(line) == wanted; });
}

text_lines saved_section(const design_to_save & design)
{
    const std::string file = "saved" + formatted(design.number, 3);
    const bool is_matrix = design.kind == design_to_save::layout::matrix;
    text_lines lines{"",
                     design_header(design.number),
                     "Name=" + design.name,
                     "Ratio=2x3",
                     "File=" + file,
                     "System=No",
                     "Design=Saved",
                     is_matrix ? "Style=Matrix" : "Style=Place"};
    if (design.kind == design_to_save::layout::quick_shape)
        append(lines, std::array<std::string, 2>{"Frames=No", "Quick Shape=Yes"});
    const bool is_wide = design.background == orientation::landscape;
    append(lines, std::array<std::string, 3>{"Match=Yes", "Turn BG=No",
                                             is_wide ? "Background=Landscape" : "Background=Portrait"});
    if (design.sample == design_to_save::part::present)
        lines.push_back("Sample=" + file + ".jpg");
    if (design.description == design_to_save::part::present)
        lines.push_back("Description=" + file);
    return lines;
}

std::vector<listed_design> designs_of_users(const text_lines & catalogue)
{
    constexpr std::string_view key = "Name=";
    std::vector<listed_design> designs;
    double number = 0;
    for (const std::string & line : catalogue) {
        number = number_of_header(line, 3).value_or(number);
        if (number > end_of_supplied && line.starts_with(key))
            designs.push_back(
                {.section = "Design" + formatted(nearest(number), 3), .name = line.substr(key.size())});
    }
    return told_apart(std::move(designs));
}

std::optional<int> number_of_design(const text_lines & catalogue, std::string_view name)
{
    for (const listed_design & design : designs_of_users(catalogue))
        if (is_named(design, name))
            return number_of_section(design.section);
    return std::nullopt;
}

std::optional<int> number_of_design(const text_lines & catalogue, const listed_design & wanted)
{
    for (const listed_design & design : designs_of_users(catalogue))
        if (design.section == wanted.section && is_named(design, wanted.name))
            return number_of_section(design.section);
    return std::nullopt;
}

text_lines without_design(const text_lines & catalogue, int number)
{
    return lines_on(side::of_the_others, catalogue, number);
}

text_lines section_of(const text_lines & catalogue, int number)
{
    return lines_on(side::of_the_number, catalogue, number);
}

text_lines files_of_design(const text_lines & catalogue, int number)
{
    const text_lines others = without_design(catalogue, number);
    text_lines files;
    for (const std::string & line : section_of(catalogue, number)) {
        const std::string file = file_of_line(line);
        if (!file.empty() && !names_file(others, file))
            files.push_back(file);
    }
    return files;
}

bool names_file(const text_lines & catalogue, std::string_view path)
{
    return std::ranges::any_of(catalogue,
                               [&](const std::string & line) { return file_of_line(line) == path; });
}

std::optional<text_lines> with_section(const text_lines & catalogue, double number, text_lines section)
{
    // No number above three digits has a section; those below have the number nearest to what was written.
    const int wanted = nearest(std::clamp(number, 0.0, 1000.0));
    const std::string header = design_header(wanted);
    if (wanted > last_own_number)
        if (const std::vector<int> copies = numbers_of_copies(catalogue, section); !copies.empty())
            return with_section_once(catalogue, copies, section);
    const text_lines headed = with_one_header(section, wanted);
    if (has_header(catalogue, header))
        return with_section_instead(catalogue, header, headed);
    const auto above = std::ranges::find_if(
        catalogue, [&](const std::string & line) { return number_of_header(line).value_or(0) > wanted; });
    const bool is_inside = above != catalogue.end();
    const int given = is_inside ? wanted : number_behind(catalogue);
    if (given > last_own_number)
        return std::nullopt;
    text_lines merged(catalogue.begin(), above);
    append(merged, is_inside ? headed : with_one_header(std::move(section), given));
    merged.insert(merged.end(), above, catalogue.end());
    return merged;
}
