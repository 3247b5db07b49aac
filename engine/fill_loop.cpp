#include "engine/cell_geometry.h"
#include "engine/draw_captioned_photo.h"
#include "engine/draw_photo.h"
#include "engine/draw_rotated_photo.h"
#include "engine/ornament_sizes.h"
#include "engine/photo_steps.h"
#include "engine/placement_loops.h"
#include "photos/photo_list.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/text_file.h"

#include <optional>
#include <utility>

namespace {

// One layer on its way.
struct grid_walk {
    grid layer;
    grid_limits limits;
    int photo = 0;
    int cell = 0;
    bool one_fitted = false;
    std::optional<line_writer> saved;  // the places of the tilted photos
};

struct cell_photo {
    bitmap image;
    cell_span span = cell_span::single;
};

int columns_of(cell_span span)
{
    return span == cell_span::twice ? 2 : 1;
}

void start_shaking(frmMain & main)
{
    if (main.shake_start != -1)
        return;
    main.random.reseed();
    main.shake_start = nearest16(main.random.next() * 16);
}

void open_saved_matrix(frmMain & main, grid_walk & walk)
{
    const std::string path = work_path(main, "tmp/saved_matrix");
    delete_file(path);
    if (main.matrix_resize || main.matrix_rotate || main.matrix_both)
        walk.saved.emplace(path, line_writer::mode::fresh);
}

void set_ornament_sizes(frmMain & main, const location & cells)
{
    apply_frame_size(main, cells.frame);
    apply_shadow_size(main, cells.shadow);
    if (!main.in_preview)
        return;
    main.run.frame_size = narrow(bounded_in_preview(main.run.frame_size));
    main.run.shadow_size = narrow(bounded_in_preview(main.run.shadow_size));
}

void pass_over(frmMain & main, grid_walk & walk)
{
    if (++walk.photo <= main.table.last_photo)
        return;
    walk.photo = 0;
    if (walk.one_fitted) {
        ask_reshuffle(main);
        return;
    }
    main.desk.message("You don't have any photos that match this design.");
    const updating no_preview(main);
    main.chkMatch.tick(false);
}

// The photo for the cell at this column. Those that lie the other way are told by their headers and not
// loaded.
cell_photo next_photo(frmMain & main, grid_walk & walk, int column)
{
    const auto loaded = [&] { return load_photo(main, main.table[walk.photo]); };
    while (main.chkMatch.ticked()) {
        const picture_size size = jpeg_size(main.table[walk.photo]).value_or(picture_size{});
        if (fits_cell(walk.layer, size.height, size.width)) {
            walk.one_fitted = true;
            return {.image = loaded()};
        }
        if (main.matrix_both && has_right_neighbour(walk.layer, column))
            return {.image = loaded(), .span = cell_span::twice};
        pass_over(main, walk);
    }
    return {.image = loaded()};
}

// The photo that the cells behind this one will take, as far as can be told.
void read_upcoming(frmMain & main, const grid_walk & walk)
{
    const bool takes_any = !main.chkMatch.ticked() || main.matrix_both;
    for (int photo = walk.photo + 1; photo <= main.table.last_photo; ++photo) {
        const picture_size size =
            takes_any ? picture_size{} : jpeg_size(main.table[photo]).value_or(picture_size{});
        if (takes_any || fits_cell(walk.layer, size.height, size.width)) {
            read_ahead(main, main.table[photo]);
            return;
        }
    }
}

bool is_last(const grid_walk & walk, grid_position at, cell_span span)
{
    return row_ends(walk.layer, at.column + columns_of(span), walk.limits) &&
           grid_ends(walk.layer, at.row + 1, walk.limits);
}

void draw_tilted(frmMain & main, grid_walk & walk, bitmap image, const cell_area & area, int rotation)
{
    if (walk.saved)
        walk.saved->write_line(matrix_line(area, rotation, main.run.collage_margin));
    draw_rotated_photo(main, std::move(image), area.width, area.height, area.top, area.left, rotation,
                       fitting::to_fit);
}

void draw_cell(frmMain & main, grid_walk & walk, grid_position at, cell_photo photo, const shaken & by)
{
    // A photo that can't be read leaves its cell empty.
    if (!photo.image)
        return;
    if (main.chkCaption.ticked()) {
        const cell_area card = upright_area(walk.layer, at, photo.span);
        draw_captioned_photo(main, photo.image, card.width, card.height, card.top, card.left, by.rotation);
        return;
    }
    const cell_area area = photo_area(walk.layer, at, photo.span, by);
    if (by.rotation != 0) {
        draw_tilted(main, walk, std::move(photo.image), area, by.rotation);
        return;
    }
    main.run.shape_color = 0;
    draw_photo(main, photo.image, area.width, area.height, area.top, area.left);
}

void next_cell(frmMain & main, grid_walk & walk)
{
    ++walk.cell;
    if (++walk.photo <= main.table.last_photo)
        return;
    ask_reshuffle(main);
    walk.photo = 0;
}

// Fills the cell and gives the number of columns it took.
int fill_cell(frmMain & main, grid_walk & walk, grid_position at, row_lean & lean)
{
    location & cells = main.design_locations[1];
    show_image_number(main);
    main.desk.pump();
    main.run.image_number = narrow(main.run.image_number + 1);
    set_ornament_sizes(main, cells);
    cell_photo photo = next_photo(main, walk, at.column);
    const cell_span span = photo.span;
    if (!is_last(walk, at, span))
        read_upcoming(main, walk);
    const shake & by =
        shake_table.at(static_cast<std::size_t>(main.shake_start + walk.cell) % shake_table.size());
    const shaken cell = shaken_cell(walk.layer, at, span, by,
                                    {.resize = main.matrix_resize, .rotate = main.matrix_rotate}, lean);
    cells.rotation = narrow(cell.rotation);
    draw_cell(main, walk, at, std::move(photo), cell);
    next_cell(main, walk);
    return columns_of(span);
}

void fill_row(frmMain & main, grid_walk & walk, int row)
{
    row_lean lean = row_lean::none;
    int column = 0;
    do {
        column += fill_cell(main, walk, {.row = row, .column = column}, lean);
    } while (!row_ends(walk.layer, column, walk.limits));
}

grid layer_of(const frmMain & main)
{
    const grid layer = grid_of(main.design_locations[0], main.design_locations[1], main.run.collage_margin);
    if (is_endless(layer))
        throw platform_error(error_number::overflow, "The cells of the grid have no size.");
    return layer;
}

grid_limits limits_of(const frmMain & main)
{
    const int margin = main.run.collage_margin;
    return {.right = margin + main.collage_width, .bottom = margin + main.collage_height};
}

}  // namespace

void fill_loop(frmMain & main)
{
    // A template that wasn't found has no rows.
    if (main.design_locations.count >= 2 && main.table.last_photo >= 0) {
        grid_walk walk{.layer = layer_of(main),
                       .limits = limits_of(main),
                       .photo = main.run.photo_cursor,
                       .saved = std::nullopt};
        open_saved_matrix(main, walk);
        start_shaking(main);
        int row = 0;
        do {
            fill_row(main, walk, row);
        } while (!grid_ends(walk.layer, ++row, walk.limits));
        if (walk.saved)
            walk.saved->close();
        main.run.photo_cursor = narrow(walk.photo);
    }
    main.picSample.show(true);
}
