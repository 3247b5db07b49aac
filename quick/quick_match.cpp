#include "quick/quick_match.h"

#include "quick/block/block_match.h"
#include "quick/quick_tables.h"
#include "quick/scatter/scatter_match.h"
#include "session/window_state.h"

namespace {

constexpr int fewest_in_block = 3;

bool is_landscape(const frmMain & main)
{
    return main.optLandscape.selected();
}

block_counts wanted_by_block(const frmMain & main)
{
    if (is_landscape(main))
        return {.portrait = main.quick.quick_cross, .landscape = main.quick.quick_along};
    return {.portrait = main.quick.quick_along, .landscape = main.quick.quick_cross};
}

// True when the search has found a block to use; says what the table lacks.
bool told_block_search(frmMain & main, block_search result)
{
    if (result == block_search::found || result == block_search::substituted)
        return true;
    const char * const fault = "should not happen 88";
    if (result == block_search::no_section)
        main.desk.message(fault);
    main.desk.message(fault);
    return false;
}

bool told_scatter_search(frmMain & main, const scatter_match & match)
{
    if (match.squares_missing)
        main.desk.message("Should not happen");
    if (match.result == scatter_search::substituted)
        main.desk.message("Perfect scatter match not found.\r\n\r\nWe'll use a template for  " +
                          match.line.substr(0, match.line.find(':')) + "  photos.");
    return match.result != scatter_search::none;
}

}  // namespace

void note_photos(frmMain & main)
{
    quick_state & quick = main.quick;
    quick.photos_portrait = main.table.portrait_count;
    quick.photos_landscape = main.table.landscape_count;
    quick.photo_shapes = main.table.orientation_list;
    quick.matrix_offset = -1;
    quick.matrix_notice_done = false;
}

void count_slots(frmMain & main)
{
    quick_state & quick = main.quick;
    const bool landscape = is_landscape(main);
    quick.quick_along = landscape ? quick.photos_landscape : quick.photos_portrait;
    quick.quick_cross = landscape ? quick.photos_portrait : quick.photos_landscape;
}

void clamp_block_counts(frmMain & main)
{
    const block_counts wanted = wanted_by_block(main);
    const block_counts held = clamped_for_blocks(wanted, selected_shape(main));
    if (held == wanted)
        return;
    main.quick.quick_along = narrow(is_landscape(main) ? held.landscape : held.portrait);
    main.quick.quick_cross = narrow(is_landscape(main) ? held.portrait : held.landscape);
    ++main.quick.quick_reduced;
}

void clamp_scatter_counts(frmMain & main)
{
    quick_state & quick = main.quick;
    const clamped_slots clamped =
        clamped_for_scatter({.along = quick.quick_along, .cross = quick.quick_cross}, quick.quick_max);
    quick.quick_along = narrow(clamped.slots.along);
    quick.quick_cross = narrow(clamped.slots.cross);
    quick.quick_reduced = narrow(quick.quick_reduced + clamped.reduced);
}

bool find_block_match(frmMain & main)
{
    quick_state & quick = main.quick;
    clamp_block_counts(main);
    block_match match{
        .name = quick.block_name, .doubled = quick.block_doubled_file, .split = quick.block_split_file};
    block_search result = block_search::ran_out;
    with_table(main, "quick_block.ini", [&](line_source & table) {
        result = find_block(table, selected_shape(main), wanted_by_block(main), match);
    });
    quick.block_name = match.name;
    quick.block_doubled = quick.block_doubled_file = match.doubled;
    quick.block_split = quick.block_split_file = match.split;
    return told_block_search(main, result);
}

bool find_scatter_match(frmMain & main)
{
    clamp_scatter_counts(main);
    scatter_match match;
    with_table(main, "quick_scatter.ini", [&](line_source & table) {
        match = find_scatter(table, selected_shape(main),
                             {.along = main.quick.quick_along, .cross = main.quick.quick_cross});
        if (match.result != scatter_search::none)
            scatter_entry_of(match.line);  // a fault is told here, with the name of the table
    });
    main.quick.scatter_line = match.line;
    return told_scatter_search(main, match);
}

void notice_reduced(frmMain & main)
{
    quick_state & quick = main.quick;
    if (quick.quick_reduced != 1)
        return;
    ++quick.quick_reduced;
    main.desk.message("Perfect block match not found.\r\n\r\nWe'll use a template for  " +
                      formatted(quick.quick_along + quick.quick_cross, 2) + "  photos.");
}

bool match_quick_style(frmMain & main)
{
    if (main.updating_controls)
        return true;
    count_slots(main);
    if (main.optBlock.selected() && main.quick.quick_along + main.quick.quick_cross < fewest_in_block)
        main.optScatter.select();
    if (main.optScatter.selected())
        return find_scatter_match(main);
    const bool found = find_block_match(main);
    notice_reduced(main);
    return found;
}
