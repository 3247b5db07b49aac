#include "quick/scatter/quick_scatter.h"

#include "quick/quick_tables.h"
#include "quick/scatter/scatter_plan.h"
#include "quick/template_text.h"

#include <algorithm>

namespace {

// A wider border that the user has chosen stays.
void force_border(frmMain & main, option_button & least)
{
    option_set & borders = main.border_options;
    const auto floor = std::find(borders.begin(), borders.end(), &least);
    for (auto smaller = borders.begin(); smaller != floor; ++smaller)
        (*smaller)->enable(false);
    if (std::none_of(floor, borders.end(), [](const option_button * each) { return each->selected(); }))
        main.collage.forced_by_style.select(main.border_options, **floor);
    main.collage.borders_free = false;
}

void fit_borders(frmMain & main, least_border least)
{
    const updating quiet(main);
    if (least == least_border::small)
        force_border(main, main.optSmall);
    if (least == least_border::medium)
        force_border(main, main.optMedium);
    if (least == least_border::large)
        force_border(main, main.optLarge);
}

}  // namespace

void write_quick_scatter(frmMain & main, const random_source & chance)
{
    const blank_run blanks = start_blanks(main, chance);
    main.collage.borders_free = true;
    const scatter_entry entry = scatter_entry_of(main.quick.scatter_line);
    const scatter_request request{
        .wanted = {.along = main.quick.quick_along, .cross = main.quick.quick_cross},
        .offered = entry.slots,
        .blanks = blanks};
    scatter_layout layout;
    with_table(main, "scatter_templates", [&](line_source & scatters) {
        const auto scatter = section_of(scatters, "[" + entry.name + "]");
        if (scatter)
            layout = scatter_plan(*scatter, request, chance);
        else
            main.desk.message("Shouldn't happen");
    });
    write_quick_template(main, layout.lines);
    fit_borders(main, border_for(layout.reach));
}
