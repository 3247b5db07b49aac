#include "quick/shapes/shapes_plan.h"

#include "quick/gap.h"
#include "quick/shapes/shapes_tables.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr int fewest_cells = 6, most_cells = 200;
constexpr int kept_free = 70, kept_free_below_square = 50;
constexpr int least_lift = 20;  // of squares that stand at the top
constexpr int mix_unit = 4;     // pixels
constexpr int last_mix = 9;
constexpr int variants = 6;  // of leaves and puzzle pieces

bool is_squares(const shapes_request & request)
{
    return request.shape == squares_shape;
}

int poster_height_of(const shapes_request & request)
{
    return request.poster == poster_shape::square ? poster_width : poster_height;
}

shapes_grid_size grid_for(int last_photo)
{
    const int photos = std::clamp(last_photo, fewest_cells, most_cells);
    std::size_t k = 1;
    while (shapes_grid_sizes[k].cells <= photos)
        ++k;
    return shapes_grid_sizes[k - 1];
}

// At least one, and the bias follows, so that further clicks count from there.
double at_least_one(double count, double & bias)
{
    if (count >= 1)
        return count;
    ++bias;
    return 1;
}

void count_cells(const shapes_request & request, shapes_layout & plan)
{
    const shapes_grid_size grid = grid_for(request.last_photo);
    plan.row_bias = request.row_bias;
    plan.column_bias = request.column_bias;
    const int rows = grid.cells / grid.columns;
    plan.rows = at_least_one(rows + request.row_bias, plan.row_bias);
    plan.columns = at_least_one(grid.columns + request.column_bias, plan.column_bias);
}

// What is left of the poster for cells and gaps.
struct grid_room {
    int across = 0, down = 0;
};

grid_room room_of(const shapes_request & request)
{
    const int ornaments = is_squares(request) ? request.shadow + request.frame : 0;
    const int below = request.poster == poster_shape::square ? kept_free_below_square : 0;
    return {.across = poster_width - ornaments - kept_free,
            .down = poster_height_of(request) - below - ornaments - kept_free};
}

int cell_size(const shapes_request & request, const shapes_layout & plan)
{
    const grid_room room = room_of(request);
    const double across = room.across - (plan.columns - 1) * request.gap;
    const double down = room.down - (plan.rows - 1) * request.gap;
    return std::min(nearest(down) / nearest(plan.rows), nearest(across) / nearest(plan.columns));
}

// All cells have the same gap between them; where it leaves no cells, one for which both directions have
// room.
int gap_of(const shapes_request & request, const shapes_layout & plan)
{
    if (cell_size(request, plan) >= least_seen)
        return request.gap;
    const grid_room room = room_of(request);
    return std::min({request.gap, widest_gap(room.across, nearest(plan.columns) - 1),
                     widest_gap(room.down, nearest(plan.rows) - 1)});
}

// A mix makes some cells smaller, but leaves something to be seen of them.
int grown_cell(int size, int by)
{
    return std::max(size + by, std::min(size, least_seen));
}

struct grid_start {
    double top = 0, left = 0;
    double spare_down = 0;
};

double start_left(const shapes_request & request, double span, int size)
{
    const double left = (poster_width - span) / 2;
    // A mask is drawn one cell further left on a square poster.
    return request.poster == poster_shape::square && !is_squares(request) ? left + size : left;
}

double start_top(const shapes_request & request, double spare)
{
    const int ornaments = request.frame + request.shadow;
    if (request.align == shapes_align::center)
        return spare / 2 - ornaments / 2.0;
    return request.align == shapes_align::bottom ? spare - ornaments : 0;
}

grid_start start_of(const shapes_request & request, const shapes_layout & plan, int size)
{
    const double across = (plan.columns - 1) * request.gap + size * plan.columns;
    const double spare = poster_height_of(request) - ((plan.rows - 1) * request.gap + size * plan.rows);
    return {.top = start_top(request, spare), .left = start_left(request, across, size), .spare_down = spare};
}

// How much lower squares stand that would otherwise touch the edge.
double lift_of(const shapes_request & request, double spare)
{
    if (request.mix || !is_squares(request) || request.align != shapes_align::top)
        return 0;
    return nearest(std::min<double>(std::max(request.frame, least_lift), spare));
}

std::string mask_of(const std::string & shape)
{
    if (shape == squares_shape)
        return {};
    for (const shape_mask & each : shape_masks)
        if (each.shape == shape)
            return std::string(each.file);
    return std::string(heart_mask);
}

// Gives each leaf or piece a mask that its neighbour in front doesn't have.
class mask_walk {
public:
    explicit mask_walk(const std::string & shape) : own(mask_of(shape))
    {
        if (shape == leaves_shape)
            stem = "leaf_";
        if (shape == puzzle_shape)
            stem = "puzzle_";
    }

    std::string next(const random_source & random)
    {
        if (stem.empty())
            return own;
        int drawn = whole(random.next() * variants) + 1;
        if (drawn == last)
            drawn = drawn % variants + 1;
        last = drawn;
        return own = stem + std::to_string(drawn) + ".gif";
    }

    const std::string & file() const { return own; }

private:
    std::string own, stem;
    int last = 0;
};

// A shape's height is that of its mask, so its size stands in the place of the width alone.
location cell_at(double top, double left, double size, const std::string & mask)
{
    const int16 width = nearest16(size);
    return {.top = nearest16(top),
            .left = nearest16(left),
            .height = mask.empty() ? width : int16{0},
            .width = width,
            .frame = 0,
            .file = mask};
}

// Writes one row, whose first cell stands at (`top`, `left`).
class row_writer {
public:
    row_writer(const shapes_request & asked, shapes_layout & written, const random_source & chance)
        : request(asked), plan(written), random(chance), masks(asked.shape), blanks(asked.blanks)
    {}

    void write(double top, double left, int size)
    {
        int mix = nearest(random.next() * last_mix);
        for (int column = 0; column < plan.columns; ++column) {
            const shapes_mix & by = shapes_mixes[static_cast<std::size_t>(mix)];
            const int unit = request.mix ? mix_unit : 0;
            if (!is_blank(blanks))
                plan.places.push_back(cell_at(top + unit * by.down, left + unit * by.right,
                                              grown_cell(size, unit * by.growth), masks.next(random)));
            mix = mix == last_mix ? 1 : mix + 1;
            next_line(blanks, random);
            left += size + request.gap;
        }
        plan.file = masks.file();
    }

private:
    const shapes_request & request;
    shapes_layout & plan;
    const random_source & random;
    mask_walk masks;
    blank_run blanks;
};

}  // namespace

shapes_layout shapes_plan(const shapes_request & asked, const random_source & random)
{
    shapes_layout plan;
    shapes_request request = asked;
    count_cells(request, plan);
    request.gap = gap_of(request, plan);
    const int size = std::max(cell_size(request, plan), 1);
    const grid_start start = start_of(request, plan, size);
    double top = start.top + lift_of(request, start.spare_down);
    row_writer writer(request, plan, random);
    for (int row = 0; row < plan.rows; ++row) {
        writer.write(top, start.left, size);
        top += size + request.gap;
    }
    return plan;
}
