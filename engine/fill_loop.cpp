#include "engine/fill_loop.h"

#include "designs/templates/location_line.h"
#include "engine/layout/cell_geometry.h"
#include "engine/layout/worn_ornaments.h"
#include "engine/photo/lay_photo.h"
#include "engine/photo/look_at_files.h"
#include "engine/photo/photo_steps.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr line_digits saved_digits{.place = 2, .rotation = 2};

// One layer on its way.
struct grid_walk {
    grid layer;
    grid_limits limits;
    sign_of_life sign;
    int photo = 0;
    int cell = 0;
    bool one_fitted = false;
    std::optional<line_writer> saved;  // the places of the tilted photos
};

struct cell_photo {
    run_photo photo;
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
    if (main.collage.matrix_resize || main.collage.matrix_rotate || main.collage.matrix_both)
        walk.saved.emplace(path, line_writer::mode::fresh);
}

void next_in_table(frmMain & main, grid_walk & walk)
{
    if (++walk.photo <= main.table.last_photo)
        return;
    ask_reshuffle(main);
    walk.photo = 0;
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
    tell_no_match(main, "You don't have any photos that match this design.");
    const updating no_preview(main);
    main.chkMatch.tick(false);
}

bool fits(frmMain & main, const grid_walk & walk, int photo)
{
    const std::optional<picture_size> size =
        is_left_out(main, photo) ? std::nullopt : size_of_photo(main, main.table[photo]);
    return size && fits_cell(walk.layer, size->height, size->width);
}

// The photo that has fitted so far may be the one that is left out now: without another one the search would
// go round for ever.
void look_again_for_one_that_fits(frmMain & main, grid_walk & walk)
{
    for (int photo = 0; walk.one_fitted && photo <= main.table.last_photo; ++photo)
        if (fits(main, walk, photo))
            return;
    walk.one_fitted = false;
}

// The place of a photo in the cell as it is drawn.
photo_place drawn_place(const frmMain & main, const grid_walk & walk, grid_position at, const shaken & by)
{
    return {.area = main.chkCaption.ticked() ? upright_area(walk.layer, at) : photo_area(walk.layer, at, by),
            .rotation = by.rotation,
            .worn = worn_in_grid(main, main.design_locations[1], by.rotation)};
}

const shake & shake_of(const frmMain & main, int cell)
{
    return shake_table.at(static_cast<std::size_t>(main.shake_start + cell) % shake_table.size());
}

// A cell that is to be filled, and what its shaking depends on.
struct cell_to_fill {
    grid_position at;
    int number = 0;
    row_lean lean = row_lean::none;  // of its row so far
};

// The lean of the row follows.
shaken shaken_in(const frmMain & main, const grid_walk & walk, cell_to_fill & cell)
{
    return shaken_cell(walk.layer, cell.at, shake_of(main, cell.number),
                       {.resize = main.collage.matrix_resize, .rotate = main.collage.matrix_rotate},
                       cell.lean);
}

place_of_photo fitted_to(const frmMain & main, const grid_walk & walk, cell_to_fill cell)
{
    const shaken by = shaken_in(main, walk, cell);
    return [&main, at = drawn_place(main, walk, cell.at, by)](picture_size own) {
        return fitted_size(main, at, own);
    };
}

// The cells that a photo of that size takes from this column on; nothing for one that lies the other way.
std::optional<cell_span> span_of(const frmMain & main, const grid_walk & walk, picture_size photo, int column)
{
    if (!main.chkMatch.ticked() || fits_cell(walk.layer, photo.height, photo.width))
        return cell_span::single;
    const bool takes_two = main.collage.matrix_both && has_right_neighbour(walk.layer, column);
    return takes_two ? std::optional(cell_span::twice) : std::nullopt;
}

// The photo at hand as this cell would take it; empty for one that can't be read or doesn't fit.
cell_photo taken_photo(frmMain & main, grid_walk & walk, cell_to_fill cell)
{
    const std::string & path = main.table[walk.photo];
    const std::optional<picture_size> size = size_of_photo(main, path);
    const std::optional<cell_span> span =
        size ? span_of(main, walk, *size, cell.at.column) : std::optional(cell_span::single);
    if (!span)
        return {};
    cell.at.span = *span;
    run_photo photo = size ? load_photo(main, path, fitted_to(main, walk, cell)) : run_photo();
    if (!photo) {
        leave_out(main, path);
        look_again_for_one_that_fits(main, walk);
        return {};
    }
    walk.one_fitted = walk.one_fitted || (*span == cell_span::single && main.chkMatch.ticked());
    return {.photo = std::move(photo), .span = cell.at.span};
}

// The photo for the cell; empty when there is none at all. Those that lie the other way are
// told by their headers and not loaded.
cell_photo next_photo(frmMain & main, grid_walk & walk, const cell_to_fill & cell)
{
    while (has_usable_photo(main)) {
        cell_photo taken = is_left_out(main, walk.photo) ? cell_photo{} : taken_photo(main, walk, cell);
        if (taken.photo)
            return taken;
        if (main.chkMatch.ticked())
            pass_over(main, walk);
        else
            next_in_table(main, walk);
    }
    return {};
}

// On to the cell behind, in this row or the next.
void step_on(const frmMain & main, const grid_walk & walk, cell_to_fill & cell)
{
    shaken_in(main, walk, cell);
    ++cell.number;
    cell.at.column += columns_of(cell.at.span);
    if (row_ends(walk.layer, cell.at.column, walk.limits)) {
        cell.at = {.row = cell.at.row + 1, .column = 0};
        cell.lean = row_lean::none;
    }
}

// The photos that the cells behind this one will take, as far as can be told.
void read_upcoming(frmMain & main, const grid_walk & walk, cell_to_fill cell)
{
    std::vector<wanted_photo> next;
    step_on(main, walk, cell);
    for (int photo = walk.photo + 1;
         photo <= main.table.last_photo && !grid_ends(walk.layer, cell.at.row, walk.limits) &&
         std::ssize(next) < main.workers.count();
         ++photo) {
        const std::optional<picture_size> size =
            is_left_out(main, photo) ? std::nullopt : size_of_photo(main, main.table[photo]);
        const auto span = size ? span_of(main, walk, *size, cell.at.column) : std::nullopt;
        if (!span)
            continue;
        cell.at.span = *span;
        if (std::optional<wanted_photo> wanted =
                wanted_at(main, main.table[photo], fitted_to(main, walk, cell)))
            next.push_back(std::move(*wanted));
        step_on(main, walk, cell);
    }
    read_ahead(main, next);
}

void draw_cell(frmMain & main, grid_walk & walk, grid_position at, cell_photo taken, const shaken & by)
{
    const photo_place place = drawn_place(main, walk, at, by);
    if (main.chkCaption.ticked()) {
        lay_card(main, std::move(taken.photo), place);
        return;
    }
    lay_photo(main, std::move(taken.photo), place);
    if (walk.saved && by.rotation != 0)
        walk.saved->write_line(
            location_text(location_of_cell(place.area, by.rotation, main.run.collage_margin), saved_digits));
}

// False for a photo that turns out too long for the cell: it is left out of the run.
bool is_drawn(frmMain & main, grid_walk & walk, grid_position at, cell_photo taken, const shaken & by)
{
    try {
        draw_cell(main, walk, at, std::move(taken), by);
        return true;
    } catch (const photo_too_long &) {
        leave_out(main, main.table[walk.photo], photo_fault::too_long);
        look_again_for_one_that_fits(main, walk);
        return false;
    }
}

// Puts the next photo that can be used into the cell, which stays empty without one; gives what it took.
cell_span put_photo(frmMain & main, grid_walk & walk, grid_position at, row_lean & lean)
{
    for (;;) {
        cell_to_fill cell{.at = at, .number = walk.cell, .lean = lean};
        cell_photo taken = next_photo(main, walk, cell);
        cell.at.span = taken.span;
        if (taken.photo)
            read_upcoming(main, walk, cell);
        const shaken by = shaken_in(main, walk, cell);
        main.design_locations[1].rotation = narrow(by.rotation);
        if (!taken.photo || is_drawn(main, walk, cell.at, std::move(taken), by)) {
            lean = cell.lean;
            return cell.at.span;
        }
    }
}

// Fills the cell and gives the number of columns it took.
int fill_cell(frmMain & main, grid_walk & walk, grid_position at, row_lean & lean)
{
    fire(walk.sign);
    main.run.image_number = narrow(main.run.image_number + 1);
    const cell_span span = put_photo(main, walk, at, lean);
    ++walk.cell;
    next_in_table(main, walk);
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

void fill_loop(frmMain & main, const sign_of_life & sign)
{
    look_anew(main);
    // A template that wasn't found has no rows.
    if (main.design_locations.count >= 2 && main.table.last_photo >= 0) {
        grid_walk walk{.layer = layer_of(main),
                       .limits = limits_of(main),
                       .sign = sign,
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
