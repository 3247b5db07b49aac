#include "recipes/kept_forces.h"

namespace {

std::string control_name(const control * held)
{
    return held == nullptr ? std::string() : held->name();
}

void note_forces(std::vector<recipe_force> & forces, const forced_settings & from, recipe_force::source by)
{
    for (const forced_setting & each : from.all())
        forces.push_back({.by = by,
                          .kind = static_cast<int>(each.kind),
                          .control = control_name(each.held),
                          .before = each.before,
                          .forced = each.forced,
                          .option_before = control_name(each.option_before)});
}

}  // namespace

std::vector<recipe_force> forces_of(const frmMain & main)
{
    std::vector<recipe_force> forces;
    note_forces(forces, main.collage.forced, recipe_force::source::design);
    note_forces(forces, main.collage.forced_by_style, recipe_force::source::style);
    return forces;
}

void take_forces(frmMain & main, const std::vector<recipe_force> & forces)
{
    std::vector<forced_setting> by_design, by_style;
    for (const recipe_force & each : forces) {
        control * const held = main.find(each.control);
        if (held == nullptr)
            continue;
        auto & noted = each.by == recipe_force::source::design ? by_design : by_style;
        noted.push_back({.kind = static_cast<forced_setting::how>(each.kind),
                         .held = held,
                         .before = each.before,
                         .forced = each.forced,
                         .option_before = dynamic_cast<option_button *>(main.find(each.option_before))});
    }
    main.collage.forced.take(std::move(by_design));
    main.collage.forced_by_style.take(std::move(by_style));
}
