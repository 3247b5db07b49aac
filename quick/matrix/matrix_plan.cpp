#include "quick/matrix/matrix_plan.h"

#include "quick/matrix/matrix_patterns.h"
#include "quick/matrix/matrix_shapes.h"
#include "support/rectangle.h"

#include <algorithm>

namespace {

constexpr int largest_inset = 230;
constexpr int fewest_balanced = 17;       // cells
constexpr double mostly = 0.6;            // of one orientation: the other needn't be spread
constexpr double least_proportion = 0.7;  // of a tilted cell's short side
constexpr double double_share = 0.95;     // of a resized double cell
constexpr int none_yet = 99;              // pattern and tilt of the row before the first

// Where the cells of the grid stand.
struct grid_places {
    int top = 0, left = 0;  ///< of the first cell
    int cell_height = 0, cell_width = 0;
    int row_gap = 0, column_gap = 0;
};

// Along one direction: the size of a cell, and where the first begins, so that what is left over is shared.
struct track {
    int start = 0, cell = 0;
};

track track_of(int extent, int before, int after, int count, int gap)
{
    const int room = extent - (before + after);
    const int gaps = (count - 1) * gap;
    const int cell = nearest16((room - gaps) / static_cast<double>(count));
    return {.start = nearest16((room - (gaps + count * cell)) / 2.0 + before), .cell = cell};
}

grid_places places_of(const matrix_request & request)
{
    const matrix_grid & grid = request.grid;
    const int height = request.poster == poster_shape::square ? poster_width : poster_height;
    int top = grid.top_margin, bottom = grid.bottom_margin;
    // Turned, they are the left and the right margin.
    if (request.poster == poster_shape::landscape)
        top = bottom = nearest16((top + bottom) / 2.0);
    const int down = matrix_inset_down(request.inset), side = grid.side_margin + request.inset;
    const track rows = track_of(height, top + down, bottom + down, grid.rows, grid.row_gap);
    const track columns = track_of(poster_width, side, side, grid.columns, grid.column_gap);
    return {.top = rows.start,
            .left = columns.start,
            .cell_height = rows.cell,
            .cell_width = columns.cell,
            .row_gap = grid.row_gap,
            .column_gap = grid.column_gap};
}

const shake & pattern_at(int number)
{
    return matrix_patterns[static_cast<std::size_t>(number)];
}

// Walks the patterns so that neighbouring rows begin differently: with other patterns, and leaning to the
// other side.
class pattern_walk {
public:
    pattern_walk(int start, int offset, bool rotates) : counter(start), shift(offset), rotated(rotates) {}

    shake next(int row, int column)
    {
        int pattern = following(column);
        while (rotated && column == 0 && row > 0 && leans_alike(pattern_at(pattern).rotation))
            pattern = following(column);
        shake found = pattern_at(pattern);
        if (!rotated)
            found.rotation = 0;
        if (column == 0) {
            first_pattern = pattern;
            first_tilt = found.rotation;
        }
        return found;
    }

private:
    int following(int column)
    {
        constexpr int count = static_cast<int>(matrix_patterns.size());
        ++counter;
        const int pattern = (counter + shift) % count;
        if (column != 0 || pattern != first_pattern)
            return pattern;
        counter += 12;
        return pattern + 11 < count ? pattern + 11 : pattern - 10;
    }

    bool leans_alike(int tilt) const { return (tilt > 0) == (first_tilt > 0); }

    int counter, shift;
    bool rotated;
    int first_pattern = none_yet, first_tilt = none_yet;
};

struct cell_place {
    int row = 0, column = 0;
    bool two = false;  ///< the cell and its right neighbour
};

// Enlarged cells would leave the poster at its edges; at the lower one they may.
double scale_at(const cell_place & at, int columns, double scale)
{
    const int last = at.column + (at.two ? 1 : 0);
    const bool at_edge = at.row == 0 || at.column == 0 || last >= columns - 1;
    return scale > 1 && at_edge ? 1 : scale;
}

struct shift {
    int top = 0, left = 0;
};

shift shift_of(const matrix_request & request, const grid_places & grid, const shake & shaken)
{
    if (!request.shuffle)
        return {};
    const double unit = std::max(grid.cell_height, grid.cell_width) / 50.0;
    return {.top = nearest16(unit * shaken.top), .left = nearest16(unit * shaken.left)};
}

// The cell in its place, its middle where that of an unscaled one would be.
rectangle scaled_cell(const grid_places & grid, const cell_place & at, const shift & by, double scale)
{
    rectangle place{.left = (grid.column_gap + grid.cell_width) * at.column + grid.left + by.left,
                    .top = (grid.row_gap + grid.cell_height) * at.row + grid.top + by.top,
                    .width = nearest16(grid.cell_width * scale),
                    .height = nearest16(grid.cell_height * scale)};
    place.top = nearest16(place.top + (grid.cell_height - place.height) / 2.0);
    place.left = nearest16(place.left + (grid.cell_width - place.width) / 2.0);
    return place;
}

void widen(rectangle & place, const grid_places & grid, double scale, const matrix_request & request,
           int tilt)
{
    place.width = nearest16((2 * grid.cell_width + grid.column_gap) * scale);
    if (tilt != 0)
        place.height = std::max<int>(place.height, nearest16(place.width * least_proportion));
    if (request.resize) {
        place.width = nearest16(place.width * double_share);
        place.height = nearest16(place.height * double_share);
    }
}

// A tilted cell is never so slim that its photo would be a strip.
void keep_proportion(rectangle & place)
{
    const int least_width = nearest16(place.height * least_proportion);
    if (place.width < least_width)
        place.width = least_width;
    else
        place.height = std::max<int>(place.height, nearest16(place.width * least_proportion));
}

location cell_location(const matrix_request & request, const grid_places & grid, const cell_place & at,
                       const shake & shaken)
{
    const double scale = request.resize ? scale_at(at, request.grid.columns, shaken.scale) : 1;
    rectangle place = scaled_cell(grid, at, shift_of(request, grid, shaken), scale);
    if (at.two)
        widen(place, grid, scale, request, shaken.rotation);
    else if (shaken.rotation != 0)
        keep_proportion(place);
    return {.top = narrow(place.top),
            .left = narrow(place.left),
            .height = narrow(place.height),
            .width = narrow(place.width),
            .rotation = narrow(shaken.rotation)};
}

// Worth it in a grid of some size whose photos are mixed.
bool is_balanced(const matrix_request & request)
{
    return request.grid.rows * request.grid.columns >= fewest_balanced &&
           mostly * request.landscape < request.portrait && mostly * request.portrait < request.landscape;
}

matrix_shapes shapes_for(const matrix_request & request)
{
    const bool turned = request.poster == poster_shape::landscape;
    return {
        turned ? matrix_shapes::for_landscape(request.shapes) : request.shapes,
        request.portrait + request.landscape, request.grid.columns,
        is_balanced(request) ? matrix_shapes::row_starts::balanced : matrix_shapes::row_starts::as_they_come};
}

}  // namespace

int matrix_inset(int last_photo)
{
    return std::min(nearest(last_photo / 1.25), largest_inset);
}

int matrix_inset_down(int inset)
{
    return nearest(inset * 1.25);
}

int photos_shown(const matrix_request & request)
{
    matrix_shapes shapes = shapes_for(request);
    int single = 0, pairs = 0;
    for (int row = 0; row < request.grid.rows; ++row) {
        shapes.begin_row();
        for (int column = 0; column < request.grid.columns;) {
            const bool two = shapes.takes_two(column);
            (two ? pairs : single) += 1;
            column += two ? 2 : 1;
        }
    }
    const bool turned = request.poster == poster_shape::landscape;
    return std::min(single, turned ? request.landscape : request.portrait) +
           std::min(pairs, turned ? request.portrait : request.landscape);
}

std::vector<location> matrix_plan(const matrix_request & request, const random_source & random)
{
    const int photos = request.portrait + request.landscape;
    const bool turned = request.poster == poster_shape::landscape;
    const grid_places grid = places_of(request);
    matrix_shapes shapes = shapes_for(request);
    pattern_walk patterns(turned ? photos + 1 : 0, request.offset, request.rotate);
    blank_run blanks = request.blanks;
    std::vector<location> plan;
    for (cell_place at; at.row < request.grid.rows; ++at.row) {
        shapes.begin_row();
        for (at.column = 0; at.column < request.grid.columns;) {
            at.two = shapes.takes_two(at.column);
            const shake shaken = patterns.next(at.row, at.column);
            if (!is_blank(blanks))
                plan.push_back(cell_location(request, grid, at, shaken));
            at.column += at.two ? 2 : 1;
            // The last cell of a row takes no place in the run of blanks.
            if (at.column < request.grid.columns)
                next_line(blanks, random);
        }
    }
    return plan;
}
