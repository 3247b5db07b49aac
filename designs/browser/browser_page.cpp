#include "designs/browser/browser_page.h"

#include <algorithm>

namespace {

constexpr std::string_view own_names[] = {"Quick matrix", "Frame_matrix", "Lettering", "Puzzle"};
constexpr std::string_view reserved_files[] = {"__matrix", "__match", "__quick"};

bool holds(std::span<const std::string_view> texts, std::string_view wanted)
{
    return std::ranges::find(texts, wanted) != texts.end();
}

std::string_view key_of(design_family family)
{
    switch (family) {
        case design_family::scatter:
            return "Scatter";
        case design_family::block:
            return "Block";
        case design_family::theme:
            return "Theme";
        case design_family::saved:
            return "Saved";
        default:
            return "Frame";
    }
}

}  // namespace

bool is_offered(std::string_view name)
{
    return !holds(own_names, name);
}

bool design_passes_family(const design_record & design, design_family family)
{
    if (holds(reserved_files, design.file))
        return false;
    return family == design_family::all || design.design == key_of(family);
}

bool fits_ratio(const design_record & design, std::string_view ratio)
{
    return design.ratio == ratio || (design.distort == "Yes" && ratio == "3x4");
}

bool fits_orientation(const design_record & design, orientation view)
{
    const std::string_view in_force = view == orientation::portrait ? "Portrait" : "Landscape";
    return design.background == in_force || design.turn_bg == "Yes";
}

std::string count_label(std::string_view count)
{
    if (count.empty())
        return {};
    return (count.size() == 1 ? " " : "") + std::string(count) + " images";
}

bool count_in_list(std::span<const std::string> list, std::string_view text)
{
    return std::ranges::find(list, text) != list.end();
}

browser_page page_of(int total, int start)
{
    const int left = std::max(0, total - start);
    return {.count = std::min(left, designs_on_page), .more = left > designs_on_page};
}

int start_of_page_before(int start, bool more_pages)
{
    return std::max(0, start - (more_pages ? 2 : 1) * designs_on_page);
}

std::vector<int> filled_slots(int count)
{
    const int left_column = (count + 1) / 2;
    std::vector<int> slots;
    for (int i = 0; i < count; ++i)
        slots.push_back(i < left_column ? i : right_column + i - left_column);
    return slots;
}

std::string sample_name(const design_record & design, orientation view)
{
    if (design.sample.empty())
        return {};
    const std::string_view other = view == orientation::portrait ? "Landscape" : "Portrait";
    return design.background == other ? design.sample + "_" : design.sample;
}
