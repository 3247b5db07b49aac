#include "designers/matrix/matrix_layout.h"

#include "designers/poster_area.h"
#include "frames/sets/deal_frames.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr double frame_ratio = 0.66;  // the shorter side of a frame's picture over the longer one
constexpr int smallest_cell = 10;     // below that nothing of a photo is left in a preview

// Room for shaking, by the number of cells above which it shrinks.
struct crowd {
    int above;
    double share;
};
constexpr crowd crowds[] = {{45, 0.7}, {35, 0.75}, {25, 0.8}, {15, 0.9}};

// How a photo lies on its frame, in shares of the cell.
struct frame_insets {
    const char * prefix;
    double height, width, top, left;
};
constexpr frame_insets upright_insets{"pframe", 0.79, 0.89, 0.04, 0.06};
constexpr frame_insets wide_insets{"lframe", 0.75, 0.83, 0.051, 0.13};

int room_for_shaking(const matrix_choices & choices)
{
    int need = 0;
    if (choices.rotate)
        need = choices.photos == matrix_photos::both ? 200 : 150;
    if (choices.resize)
        need += 100;
    for (const crowd & each : crowds)
        if (choices.rows * choices.columns > each.above)
            return nearest(need * each.share);
    return need;
}

poster_borders widened(poster_borders borders, int need)
{
    const int missing = need - std::min({borders.top, borders.bottom, borders.left, borders.right});
    if (missing > 0)
        for (int * each : {&borders.top, &borders.bottom, &borders.left, &borders.right})
            *each += missing;
    return borders;
}

// One direction of the grid.
struct course {
    int count = 0, gap = 0, cell = 0;
};

int span_of(const course & along)
{
    return (along.count - 1) * along.gap + along.count * along.cell;
}

course divided(int room, int count, int gap)
{
    return {.count = count, .gap = gap, .cell = nearest((room - (count - 1.0) * gap) / count)};
}

// The span stays, so the gap gives way.
void take_cell(course & along, int cell, const char * complaint, std::vector<std::string> & complaints)
{
    const int gap = along.count < 2
                        ? along.gap
                        : nearest((span_of(along) - along.count * 1.0 * cell) / (along.count - 1));
    if (gap < 0 && cell > along.cell)
        complaints.emplace_back(complaint);
    else
        along.gap = gap;
    along.cell = cell;
}

void take_shape_of_frames(course & across, course & down, std::vector<std::string> & complaints)
{
    if (down.cell > across.cell)
        take_cell(across, nearest(down.cell * frame_ratio), "Should not happen 1 ?", complaints);
    else
        take_cell(down, nearest(across.cell * frame_ratio), "Shouldnothappen 2?", complaints);
}

// The room between two borders, and how far a grid in its middle reaches beyond it without leaving the
// poster.
struct bordered_room {
    int room = 0, border = 0;
};

// A grid whose gaps couldn't give way any further may leave the poster. Both directions shrink alike then, so
// that the cells keep the shape of the frames, until it stands between the borders. What only reaches into a
// border stays.
void scale_to_fit(course & along, course & other, const bordered_room & within)
{
    const int span = span_of(along), room = within.room;
    if (room < 1 || span <= room + 2 * within.border)
        return;
    for (course * each : {&along, &other}) {
        each->cell = static_cast<int>(static_cast<double>(each->cell) * room / span);
        each->gap = static_cast<int>(static_cast<double>(each->gap) * room / span);
    }
}

int centred(int room, const course & along, int border)
{
    return nearest((room - span_of(along)) / 2.0 + border);
}

// A grid stands in two locations: its corner, its rows and columns and how it may be shaken; its gaps and its
// cells.
std::vector<location> grid_locations(const matrix_choices & choices, const matrix_layout & layout)
{
    const bool both = choices.photos == matrix_photos::both;
    const location start{.top = narrow(layout.top),
                         .left = narrow(layout.left),
                         .height = narrow(layout.rows),
                         .width = narrow(layout.columns),
                         .rotation = narrow(both ? 1 : 0),
                         .frame = narrow(choices.rotate ? 1 : 0),
                         .shadow = narrow(choices.resize ? 1 : 0)};
    const location cells{.top = narrow(layout.gap_v),
                         .left = narrow(layout.gap_h),
                         .height = narrow(layout.cell_height),
                         .width = narrow(layout.cell_width)};
    return {start, cells};
}

location bare_location(const rectangle & area, const std::string & file)
{
    return {.top = narrow(area.top),
            .left = narrow(area.left),
            .height = narrow(area.height),
            .width = narrow(area.width),
            .frame = 0,
            .shadow = 0,
            .file = file};
}

framed_cell cell_at(const matrix_layout & layout, int row, int column)
{
    const rectangle area{.left = layout.left + column * (layout.cell_width + layout.gap_h),
                         .top = layout.top + row * (layout.cell_height + layout.gap_v),
                         .width = layout.cell_width,
                         .height = layout.cell_height};
    const frame_insets & insets = area.height > area.width ? upright_insets : wide_insets;
    return {.area = area,
            .photo = {.left = area.left + nearest(area.width * insets.left),
                      .top = area.top + nearest(area.height * insets.top),
                      .width = nearest(area.width * insets.width),
                      .height = nearest(area.height * insets.height)},
            .file = insets.prefix};
}

// With a list the caption of the cell's photo, as it comes to cells of that shape; else the next in turn.
// Frame 00 is the one of the default caption.
int caption_of(const worn_frames & frames, std::string & order, char letter, std::size_t cell)
{
    const int photo = take_next_photo(order, letter);
    if (photo > 0)
        return photo <= frames.captions ? photo : 0;
    return frames.captions > 0 ? static_cast<int>(cell) % frames.captions + 1 : 0;
}

bool are_too_small(const matrix_layout & layout)
{
    return std::min(layout.cell_height, layout.cell_width) < smallest_cell ||
           std::min(layout.cell_height + layout.gap_v, layout.cell_width + layout.gap_h) < 1;
}

}  // namespace

matrix_layout matrix_layout_of(const matrix_choices & choices, run_size size)
{
    matrix_layout layout{.rows = choices.rows, .columns = choices.columns};
    const poster_borders borders =
        size == run_size::preview ? widened(choices.borders, room_for_shaking(choices)) : choices.borders;
    const poster_area poster = whole_poster(choices.poster);
    const int across_room = poster.width - (borders.left + borders.right);
    const int down_room = poster.height - (borders.top + borders.bottom);
    course across = divided(across_room, choices.columns, choices.gap_h);
    course down = divided(down_room, choices.rows, choices.gap_v);
    if (choices.frames) {
        take_shape_of_frames(across, down, layout.complaints);
        scale_to_fit(across, down, {.room = across_room, .border = std::min(borders.left, borders.right)});
        scale_to_fit(down, across, {.room = down_room, .border = std::min(borders.top, borders.bottom)});
    }
    layout.cell_width = across.cell;
    layout.cell_height = down.cell;
    layout.gap_h = across.gap;
    layout.gap_v = down.gap;
    layout.left = centred(across_room, across, borders.left);
    layout.top = centred(down_room, down, borders.top);
    return layout;
}

std::string matrix_fault(const matrix_choices & choices)
{
    if (choices.rows < 1 || choices.columns < 1)
        return "Please choose at least one row and one column.";
    if (choices.frames && 2 * choices.rows * choices.columns > most_lines)
        return "A frame set has room for  " + std::to_string(most_lines / 2) +
               "  photos.\r\nPlease choose fewer rows or columns.";
    for (const run_size size : {run_size::preview, run_size::full})
        if (are_too_small(matrix_layout_of(choices, size)))
            return "There is no room for the photos.\r\n\r\nPlease choose smaller borders and gaps, or fewer "
                   "rows and columns.";
    return {};
}

std::vector<framed_cell> framed_cells(const matrix_choices & choices, const matrix_layout & layout)
{
    std::vector<framed_cell> cells;
    if (!choices.frames)
        return cells;
    std::string order = choices.frames->order;
    for (int row = 0; row < layout.rows; ++row)
        for (int column = 0; column < layout.columns; ++column) {
            framed_cell cell = cell_at(layout, row, column);
            const int number = caption_of(*choices.frames, order, cell.file.front(), cells.size());
            cell.file = "frames\\" + choices.frames->set + "\\" + cell.file + formatted(number, 2) + ".jpg";
            cells.push_back(std::move(cell));
        }
    return cells;
}

std::vector<location> matrix_locations(const matrix_choices & choices, const matrix_layout & layout)
{
    if (!choices.frames)
        return grid_locations(choices, layout);
    std::vector<location> places;
    for (const framed_cell & cell : framed_cells(choices, layout)) {
        places.push_back(bare_location(cell.area, cell.file));
        places.push_back(bare_location(cell.photo, {}));
    }
    return places;
}
