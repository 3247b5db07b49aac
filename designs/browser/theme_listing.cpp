#include "designs/browser/theme_listing.h"

#include "designs/browser/sample_path.h"
#include "designs/catalogue/catalogue.h"
#include "support/for_now.h"

#include <map>

namespace {

constexpr std::string_view ratio_in_force = "2x3";

design_family family_of(const frmThemes & window)
{
    if (window.optScatter.selected())
        return design_family::scatter;
    if (window.optBlock.selected())
        return design_family::block;
    if (window.optTheme.selected())
        return design_family::theme;
    if (window.optSaved.selected())
        return design_family::saved;
    return window.optFrames.selected() ? design_family::frame : design_family::all;
}

void show_count_list(frmThemes & window, std::vector<std::string> counts)
{
    window.cmbDesign.set_items(std::move(counts));
    const for_now quiet(window.settling, true);
    window.cmbDesign.set_text(std::string(any_number));
}

void empty_slots(frmThemes & window)
{
    for (option_button & slot : window.optDesign) {
        slot.show(false);
        slot.select(false);
        slot.set_caption("");
        slot.tag.clear();
    }
    for (picture & beside : window.picDesign) {
        beside.show(false);
        beside.load("");
    }
}

void clear_page(frmThemes & window)
{
    window.chkRandom.show(false);
    window.chkRandom.tick(false);
    window.selected_index = -1;
    empty_slots(window);
    for (button * each : {&window.cmdPage_plus, &window.cmdPage_minus, &window.cmdOk})
        each->enable(false);
    window.txtDescription.show(false);
    window.picSample.show(false);
}

// The walk of a listing, with the photo counts it meets.
struct listing {
    design_family family;
    orientation view;
    count_list kept;
    std::string wanted_count;
    std::vector<std::string> counts{};
    std::vector<theme_designs> designs{};
    std::vector<listed_design> walked{};  // all of the catalogue
};

bool passes_count(listing & made, const design_record & design)
{
    const std::string label = count_label(design.count);
    if (label.empty())
        return true;
    if (made.kept == count_list::made_anew && !count_in_list(made.counts, label))
        made.counts.push_back(label);
    return made.wanted_count == label || made.wanted_count == any_number;
}

void add_passing(listing & made, const frmMain & main)
{
    const design_record & design = main.design_record;
    if (is_offered(design.name) && design_passes_family(design, made.family) &&
        fits_ratio(design, ratio_in_force) && fits_orientation(design, made.view) &&
        passes_count(made, design))
        made.designs.push_back(
            {design.name, design.section, design.help_tip, design.name, sample_path(main, made.view)});
}

// A design of the same name tells apart wherever it stands: in another family, on another page.
void tell_apart(listing & made)
{
    std::map<std::pair<std::string, std::string>, std::string> shown;
    for (const listed_design & design : told_apart(std::move(made.walked)))
        shown[{design.section, design.name}] = design.shown;
    for (theme_designs & design : made.designs)
        design.Name = shown[{design.Number, design.own_name}];
}

// A catalogue without a section gives one blank record, which is no design.
void walk_catalogue(frmMain & main, listing & made)
{
    bool more = true;
    for (catalogue_start start = catalogue_start::first; more; start = catalogue_start::next) {
        more = read_design(main, start);
        if (main.design_record.section.empty())
            continue;
        made.walked.push_back({.section = main.design_record.section, .name = main.design_record.name});
        add_passing(made, main);
    }
    tell_apart(made);
}

void fill_slots(frmThemes & window, const listing & made, int count)
{
    int next = window.page_start;
    for (const int index : filled_slots(count)) {
        const theme_designs & design = made.designs[static_cast<std::size_t>(next++)];
        option_button & slot = window.optDesign[static_cast<std::size_t>(index)];
        slot.set_caption(design.Name);
        window.design_names[static_cast<std::size_t>(index)] = design.own_name;
        slot.tag = design.Number;
        slot.set_tool_tip(design.Help_Tip);
        slot.show(true);
        window.picDesign[static_cast<std::size_t>(index)].load(design.sample);
        window.picDesign[static_cast<std::size_t>(index)].show(!design.sample.empty());
    }
}

void show_page(frmThemes & window, const listing & made)
{
    const browser_page page = page_of(static_cast<int>(made.designs.size()), window.page_start);
    const bool has_page_before = window.page_start > 0;
    window.cmdPage_minus.enable(has_page_before);
    window.cmdPage_plus.enable(page.more);
    fill_slots(window, made, page.count);
    window.cmdNext.enable(page.count > 0);
    if (page.count > 0)
        window.optDesign[0].select();
    window.cmdPrevious.enable(has_page_before);
    window.more_pages = page.more;
    if (page.more)
        window.page_start = narrow(window.page_start + page.count);
}

}  // namespace

orientation view_of(const frmThemes & window)
{
    return window.optPortrait.selected() ? orientation::portrait : orientation::landscape;
}

void GetDesigns(frmThemes & window, frmMain & main, count_list counts)
{
    clear_page(window);
    listing made{.family = family_of(window),
                 .view = view_of(window),
                 .kept = counts,
                 .wanted_count = window.cmbDesign.text()};
    if (counts == count_list::made_anew) {
        made.wanted_count = any_number;
        made.counts = {made.wanted_count};
    }
    walk_catalogue(main, made);
    if (counts == count_list::made_anew)
        show_count_list(window, std::move(made.counts));
    show_page(window, made);
}
