#include "quick/matrix/quick_matrix.h"

#include "quick/matrix/matrix_grid.h"
#include "quick/matrix/matrix_plan.h"
#include "quick/quick_tables.h"
#include "session/window_state.h"

namespace {

constexpr int last_pattern = 23;

matrix_request request_for(const frmMain & main, const matrix_grid & grid)
{
    return {.grid = grid,
            .poster = selected_shape(main),
            .portrait = main.quick.photos_portrait,
            .landscape = main.quick.photos_landscape,
            .shapes = main.quick.photo_shapes};
}

int shown_in(const frmMain & main, const std::string & line)
{
    return photos_shown(request_for(main, matrix_grid_of(line)));
}

// A smaller grid is worth a click where it shows fewer photos.
std::string offer_fewer(frmMain & main, const matrix_lines & found)
{
    const bool offered =
        !found.previous.empty() && shown_in(main, found.previous) < shown_in(main, found.line);
    const bool fewer = offered && main.cmdMore.tag == "fewer";
    main.cmdMore.set_caption(fewer ? "More photos" : "Fewer photos");
    main.cmdMore.enable(offered);
    return fewer ? found.previous : found.line;
}

int cells_wanted(const frmMain & main, int spared_landscapes)
{
    return 2 * (main.quick.photos_landscape - spared_landscapes) + main.quick.photos_portrait;
}

void tell_smaller(frmMain & main)
{
    if (!main.quick.matrix_notice_done)
        main.desk.message(
            "There are no portraits in this group of photos.\r\n\r\nMaking a smaller matrix to match the "
            "photos...");
    main.quick.matrix_notice_done = true;
}

matrix_grid grid_for_photos(frmMain & main)
{
    const matrix_grid grid = matrix_grid_of(find_matrix_line(main, cells_wanted(main, 0)));
    if (grid.columns % 2 == 0 || main.quick.photos_portrait != 0)
        return grid;
    tell_smaller(main);
    return matrix_grid_of(find_matrix_line(main, cells_wanted(main, grid.rows)));
}

// A shaken preview leaves room for what hangs over, since its canvas has little beyond its edges.
int inset_of(const frmMain & main)
{
    const bool shaken = main.chkRotate.ticked() || main.chkResize.ticked();
    const bool room = main.optMatrix.selected() && main.optPreview.selected() && shaken;
    return room ? matrix_inset(main.table.last_photo) : 0;
}

int chosen_offset(frmMain & main)
{
    if (main.quick.matrix_offset == -1) {
        main.random.reseed();
        main.quick.matrix_offset = nearest16(main.random.next() * last_pattern);
    }
    return main.quick.matrix_offset;
}

}  // namespace

std::string find_matrix_line(frmMain & main, int wanted)
{
    std::string line;
    with_table(main, "quick_matrix.ini", [&](line_source & table) {
        const matrix_lines found = find_matrix(table, selected_shape(main), wanted);
        if (found.corrupt)
            main.desk.message("Corrupt quick_matrix file??");
        matrix_grid_of(found.line);  // a fault is told here, with the name of the table
        line = found.corrupt ? found.line : offer_fewer(main, found);
    });
    return line;
}

void write_quick_matrix(frmMain & main, const random_source & chance)
{
    if (!main.optMatrix.selected())
        main.desk.message("write_design not for quick matrix");
    const blank_run blanks = start_blanks(main, chance);
    matrix_request request = request_for(main, grid_for_photos(main));
    request.rotate = main.chkRotate.ticked();
    request.resize = main.chkResize.ticked();
    request.shuffle = main.chkShuffle.ticked();
    request.inset = inset_of(main);
    request.blanks = blanks;
    main.quick.preview_inset = nearest16(matrix_inset_down(request.inset) / 8.0);
    request.offset = chosen_offset(main);
    write_quick_template(main, template_lines(matrix_plan(request, chance), matrix_digits));
}

void offer_fewer_photos(frmMain & main)
{
    grid_for_photos(main);
}
