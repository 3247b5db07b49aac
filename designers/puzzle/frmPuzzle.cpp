#include "designers/puzzle/frmPuzzle.h"

#include "designers/number_lists.h"
#include "designers/puzzle/puzzle_plan.h"
#include "designers/work_template.h"
#include "designs/catalogue/chosen_design.h"
#include "designs/templates/location_line.h"
#include "session/start/start_up.h"
#include "session/windows.h"
#include "support/for_now.h"

#include <algorithm>

// The puzzle designer.

namespace {

constexpr int most_offered = 30;  // rows and columns
constexpr puzzle_choices start_choices;

puzzle_choices puzzle_of(const frmPuzzle & window)
{
    return {.rows = number_of(window.cmbRows),
            .columns = number_of(window.cmbColumns),
            .missing = std::max(number_of(window.cmbBlanks), 0),
            .edges = window.chkEdges.ticked(),
            .pieces = window.optFour.selected() ? puzzle_pieces::four : puzzle_pieces::one,
            .shape = window.optLandscape.selected() ? poster_shape::landscape : poster_shape::portrait};
}

// A rim has two sides.
void offer_counts(frmPuzzle & window)
{
    const for_now quiet(window.settling, true);
    const int least = window.chkEdges.ticked() && window.optOne.selected() ? 2 : 1;
    for (combo_box * list : {&window.cmbRows, &window.cmbColumns}) {
        offer_numbers(*list, {.first = least, .last = most_offered});
        set_number(*list, std::max(number_of(*list), least));
    }
}

void set_start_values(frmPuzzle & window)
{
    const for_now quiet(window.settling, true);
    window.chkEdges.tick(start_choices.edges);
    window.chkBest.tick(false);
    window.optOne.select();
    window.optPortrait.select();
    window.cmbRows.set_text(formatted(start_choices.rows));
    window.cmbColumns.set_text(formatted(start_choices.columns));
    window.cmbBlanks.set_text(formatted(start_choices.missing));
    offer_numbers(window.cmbBlanks, {.first = 0, .last = most_offered});
    offer_counts(window);
}

// Who is typing a count keeps what he has typed so far.
enum class change { chosen, typed };

void count_changed(frmPuzzle & window, grid_lead lead, change how)
{
    const puzzle_choices choices = puzzle_of(window);
    const int leading = lead == grid_lead::rows ? choices.rows : choices.columns;
    if (window.settling || !window.chkBest.ticked() || leading < 1)
        return;
    const puzzle_grid grid = fit_grid(choices, lead);
    const for_now quiet(window.settling, true);
    if (lead == grid_lead::columns || how == change::chosen)
        set_number(window.cmbRows, grid.rows);
    if (lead == grid_lead::rows)
        set_number(window.cmbColumns, grid.columns);
}

void kind_changed(frmPuzzle & window)
{
    if (window.settling)
        return;
    offer_counts(window);
    count_changed(window, grid_lead::columns, change::chosen);
}

void take_puzzle(frmMain & main, poster_shape shape)
{
    clear_matrix_design(main);
    const updating quiet(main);
    take_design(main, {.section = "Puzzle", .name = "Puzzle", .shape = shape});
    main.design_record.file = "__puzzle";
    main.frmBorder.enable(false);
    main.picSample.show(false);
}

void cmdOk_click(windows & all)
{
    frmMain & main = all.main;
    const puzzle_choices choices = puzzle_of(all.puzzle);
    const std::string fault = puzzle_fault(choices);
    if (!fault.empty()) {
        main.desk.message(fault);
        return;
    }
    const std::vector<std::string> lines = template_lines(puzzle_plan(choices, main.random));
    if (lines.empty()) {
        main.desk.message("There would be no pieces left.\r\n\r\nPlease choose fewer missing pieces.");
        return;
    }
    write_work_template(main, "__puzzle", lines);
    take_puzzle(main, choices.shape);
    all.puzzle.unload();
}

void connect_count(frmPuzzle & window, combo_box & list, grid_lead lead)
{
    list.on_click = [&window, lead] { count_changed(window, lead, change::chosen); };
    list.on_typed = [&window, lead] { count_changed(window, lead, change::typed); };
}

}  // namespace

void connect_frmPuzzle(windows & all)
{
    frmPuzzle & window = all.puzzle;
    window.on_load = [&window] { set_start_values(window); };
    connect_count(window, window.cmbRows, grid_lead::rows);
    connect_count(window, window.cmbColumns, grid_lead::columns);
    for (check_box * box : {&window.chkBest, &window.chkEdges})
        box->on_change = [&window] { kind_changed(window); };
    for (option_button * option :
         {&window.optOne, &window.optFour, &window.optPortrait, &window.optLandscape})
        option->on_click = [&window] { kind_changed(window); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
