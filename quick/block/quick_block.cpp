#include "quick/block/quick_block.h"

#include "quick/block/block_plan.h"
#include "quick/quick_match.h"
#include "quick/quick_tables.h"
#include "quick/template_text.h"
#include "session/window_state.h"

void write_quick_block(frmMain & main, const random_source & chance)
{
    const blank_run blanks = start_blanks(main, chance);
    find_block_match(main);
    notice_reduced(main);
    const block_request request{.poster = selected_shape(main),
                                .gap = spacing_in(main),
                                .doubled = main.quick.block_doubled,
                                .split = main.quick.block_split,
                                .blanks = blanks};
    std::vector<location> places;
    with_table(main, "block_templates", [&](line_source & blocks) {
        const auto block = section_of(blocks, main.quick.block_name);
        if (block)
            places = block_plan(*block, request, chance);
        else
            main.desk.message("Shouldn't happen");
    });
    write_quick_template(main, template_lines(places, block_digits));
}
