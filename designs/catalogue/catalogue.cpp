#include "designs/catalogue/catalogue.h"

#include "designs/catalogue/design_lines.h"
#include "support/files/paths.h"
#include "support/files/profile.h"

#include <algorithm>

namespace {

constexpr int first_saved = 600;
constexpr int end_of_saved = 999;

enum class line_kind { of_this_section, of_the_next };

line_kind read_catalogue_line(frmMain & main, const std::string & line)
{
    const std::optional<std::string> section = design_section(line);
    if (!section) {
        read_design_line(main.design_record, line);
        return line_kind::of_this_section;
    }
    if (main.design_record.section.empty()) {
        main.design_record.section = *section;
        return line_kind::of_this_section;
    }
    main.catalogue.next_section = *section;
    return line_kind::of_the_next;
}

// Reads from the top until the record is the wanted one; false when there is none.
template <typename Wanted>
bool walked_to(frmMain & main, Wanted is_wanted)
{
    bool more = read_design(main, catalogue_start::first);
    while (!is_wanted()) {
        if (!more)
            return false;
        more = read_design(main, catalogue_start::next);
    }
    return true;
}

}  // namespace

std::string catalogue_path(const frmMain & main)
{
    return work_path(main, "designs.ini");
}

void open_catalogue(frmMain & main)
{
    close_catalogue(main);
    main.catalogue.catalogue_stream = line_source(catalogue_path(main));
    main.catalogue.catalogue_at_end = true;
}

void close_catalogue(frmMain & main)
{
    if (main.catalogue.catalogue_at_end)
        main.catalogue = {};
}

void clear_design_record(frmMain & main)
{
    main.design_record = {};
}

bool read_design(frmMain & main, catalogue_start start)
{
    if (start == catalogue_start::first)
        open_catalogue(main);
    clear_design_record(main);
    line_source & lines = main.catalogue.catalogue_stream;
    if (main.catalogue.next_section.starts_with("Design"))
        main.design_record.section = main.catalogue.next_section;
    while (!lines.at_end())
        if (read_catalogue_line(main, lines.read_line()) == line_kind::of_the_next && !lines.at_end())
            return true;
    close_catalogue(main);
    return false;
}

bool find_design(frmMain & main, std::string_view name)
{
    return walked_to(main, [&] { return main.design_record.name == name; });
}

bool find_section(frmMain & main, std::string_view section, std::string_view name)
{
    return walked_to(
        main, [&] { return main.design_record.section == section && main.design_record.name == name; });
}

std::vector<listed_design> listed_designs(frmMain & main)
{
    std::vector<listed_design> designs;
    walked_to(main, [&] {
        if (!main.design_record.section.empty())
            designs.push_back({.section = main.design_record.section, .name = main.design_record.name});
        return false;
    });
    return told_apart(std::move(designs));
}

found_design find_shown_design(frmMain & main, std::string_view text)
{
    const listed_design * found = nullptr;
    const std::vector<listed_design> designs = listed_designs(main);
    for (const listed_design & design : designs)
        if (design.shown == text || (found == nullptr && design.section == text))
            found = &design;
    if (found != nullptr)
        return find_section(main, found->section, found->name) ? found_design::one : found_design::none;
    const bool is_shared = std::ranges::find(designs, text, &listed_design::name) != designs.end();
    return is_shared ? found_design::several : found_design::none;
}

std::string GetNextDesign(frmMain & main)
{
    const profile designs(catalogue_path(main));
    for (int number = first_saved; number < end_of_saved; ++number) {
        std::string section = "Design" + formatted(number, 3);
        if (!designs.value(section, "Name").empty())
            continue;
        main.next_design_number = narrow(number);
        return section;
    }
    return {};
}

std::string GetDesignString(const frmMain & main, std::string_view section, std::string_view key)
{
    return profile(catalogue_path(main)).value(section, key);
}
