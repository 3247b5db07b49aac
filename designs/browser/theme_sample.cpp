#include "designs/browser/theme_sample.h"

#include "designs/browser/description.h"
#include "designs/browser/sample_path.h"
#include "designs/browser/theme_listing.h"
#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/chosen_design.h"
#include "support/files/paths.h"

namespace {

void allow_turns(frmThemes & window, const design_record & design)
{
    const bool allowed = design.flip != "No";
    for (check_box * each : {&window.chkFlip, &window.chkMirror}) {
        if (!allowed)
            each->tick(false);
        each->enable(allowed);
    }
}

void show_sample(frmThemes & window, const frmMain & main)
{
    const std::string path = sample_path(main, view_of(window));
    window.picSample.show(!path.empty());
    if (!path.empty())
        window.picSample.load(path);
}

std::string description_of(const frmMain & main)
{
    const design_record & design = main.design_record;
    const std::string missing = "No description available";
    if (design.description.empty())
        return missing;
    const std::string own = joined(joined(base_folder(main), "descriptions"), design.description);
    if (design.system == "No" && file_exists(own)) {
        line_source lines(own);
        return description_text(lines);
    }
    const std::string list = joined(main.install_folder, "description_list");
    line_source lines = file_exists(list) ? line_source(list) : line_source();
    return find_description(lines, design.description) ? description_text(lines) : missing;
}

bool slot_shown(const frmThemes & window, int index)
{
    return index < slot_count && window.optDesign[static_cast<std::size_t>(index)].visible();
}

void allow_steps(frmThemes & window, int index)
{
    if (index > 0)
        window.cmdPrevious.enable(true);
    else if (!window.cmdPage_minus.enabled())
        window.cmdPrevious.enable(false);
    if (slot_shown(window, index + 1) || (index < right_column && slot_shown(window, right_column)))
        window.cmdNext.enable(true);
}

}  // namespace

void show_design(frmThemes & window, frmMain & main, int index)
{
    window.cmdOk.enable(true);
    window.selected_index = narrow(index);
    const auto slot = static_cast<std::size_t>(index);
    if (!find_section(main, window.optDesign[slot].tag, window.design_names[slot])) {
        window.cmdOk.enable(false);
        main.desk.message("Design is missing in designs.ini file.");
        return;
    }
    window.chkRandom.tick(false);
    settle_caption_clear(main.design_record);
    window.chkRandom.show(main.design_record.design == "Scatter");
    allow_turns(window, main.design_record);
    show_sample(window, main);
    window.txtDescription.set_text(description_of(main));
    window.txtDescription.show(true);
    allow_steps(window, index);
}
