#include "designers/puzzle/puzzle_plan.h"

#include "designers/poster_area.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr int few = 4;              // rows or columns below which pieces are held inside the area
constexpr int many = 8;             // above which they are larger
constexpr int spread_missing = 9;   // up to so many are spread evenly
constexpr int smallest_piece = 30;  // a preview still shows knobs
constexpr double held_inside = 0.95;

// How a row or column follows the one before it, as a share of a piece's size.
struct step {
    const char * code;
    double factor;
};

// The pieces of one direction, and the distances by which their start is reckoned.
struct direction_steps {
    double four, start_four, start_one;
    step first, last, even, odd;
};
constexpr direction_steps down_steps{.four = 0.78,
                                     .start_four = 0.78,
                                     .start_one = 0.62,
                                     .first = {"t", 0},
                                     .last = {"b", 0.62},
                                     .even = {"1", 0.68},
                                     .odd = {"2", 0.62}};
constexpr direction_steps across_steps{.four = 0.82,
                                       .start_four = 0.82,
                                       .start_one = 0.67,
                                       .first = {"l", 0},
                                       .last = {"r", 0.632},
                                       .even = {"1", 0.715},
                                       .odd = {"2", 0.638}};

step step_at(const puzzle_choices & choices, const direction_steps & steps, int index, int count)
{
    if (choices.pieces == puzzle_pieces::four)
        return {"", steps.four};
    if (choices.edges && index == 0)
        return steps.first;
    if (choices.edges && index == count - 1)
        return steps.last;
    return index % 2 == 0 ? steps.even : steps.odd;
}

double start_factor(const puzzle_choices & choices, const direction_steps & steps)
{
    return choices.pieces == puzzle_pieces::four ? steps.start_four : steps.start_one;
}

std::string image_of(const puzzle_choices & choices, const step & row, const step & column)
{
    if (choices.pieces == puzzle_pieces::four)
        return "/puzzle/puzzle4.gif";
    return std::string("puzzle/puz_") + row.code + column.code + ".gif";
}

// Decides piece by piece which are missing.
class missing_pieces {
public:
    missing_pieces(const puzzle_choices & choices, const random_source & chance)
        : wanted(choices.missing), pieces(choices.rows * choices.columns), random(chance)
    {
        if (wanted > 0)
            each = std::max(nearest(static_cast<double>(pieces) / wanted) - 1, each);
        run_count = each;
    }
    bool next_is_missing()
    {
        if (wanted > spread_missing)
            draw(pieces / wanted);
        else if (wanted > 0 && run_count == each)
            draw(each + 1);
        else if (wanted > 0)
            ++run_count;
        return run_count == skip_at;
    }

private:
    void draw(int run)
    {
        random.reseed();
        skip_at = whole(run * random.next());
        run_count = 0;
    }

    int wanted, pieces;
    const random_source & random;
    int each = 2, run_count = 2, skip_at = -1;
};

int first_top(const puzzle_choices & choices, int piece)
{
    const double span = (choices.rows - 1) * piece * start_factor(choices, down_steps);
    return nearest(nearest((work_area(choices.shape).height - span) / 2) - piece / 2.0);
}

// A piece lands its own width further left on a landscape poster, which is made up for here.
int first_left(const puzzle_choices & choices, int piece)
{
    const double span = (choices.columns - 1) * piece * start_factor(choices, across_steps);
    const int room = nearest(work_area(choices.shape).width + 100 - span);
    const int left = nearest((room - piece) / 2.0);
    return choices.shape == poster_shape::landscape ? left + piece : left;
}

location piece_at(int top, int left, int piece, const std::string & image)
{
    return {.top = narrow(top), .left = narrow(left), .width = narrow(piece), .file = image};
}

int two_thirds(int count)
{
    return std::max(nearest(count / 3.0 * 2), 1);
}

int three_halves(int count)
{
    return std::max(nearest(count / 2.0 * 3), 1);
}

int rounded_down(int count, int multiple)
{
    return std::max(count / multiple * multiple, 4);
}

}  // namespace

int piece_size(const puzzle_choices & choices)
{
    const int rows = choices.rows, columns = choices.columns;
    const poster_area area = work_area(choices.shape);
    const double single = columns > many || rows > many ? 1.5 : 1.25;
    const double factor = choices.pieces == puzzle_pieces::four ? 1.15 : single;
    int width = std::min(nearest(static_cast<double>(area.width) / columns * factor), area.width);
    int height = std::min(nearest(static_cast<double>(area.height) / rows * factor), area.height);
    if (columns < few || rows < few) {
        if (columns * width > area.width)
            width = nearest(width * held_inside);
        if (rows * height > area.height)
            height = nearest(height * held_inside);
    }
    return std::min(width, height);
}

std::string puzzle_fault(const puzzle_choices & choices)
{
    if (choices.rows < 1 || choices.columns < 1)
        return "Please choose at least one row and one column.";
    if (choices.rows > most_lines || choices.columns > most_lines ||
        choices.rows * choices.columns > most_lines || piece_size(choices) < smallest_piece)
        return "There is no room for so many pieces.\r\n\r\nPlease choose fewer rows and columns.";
    return {};
}

std::vector<location> puzzle_plan(const puzzle_choices & choices, const random_source & random)
{
    const int piece = piece_size(choices);
    missing_pieces missing(choices, random);
    std::vector<location> pieces;
    int top = first_top(choices, piece);
    for (int r = 0; r < choices.rows; ++r) {
        const step row = step_at(choices, down_steps, r, choices.rows);
        if (r > 0)
            top = nearest(piece * row.factor + top);
        int left = first_left(choices, piece);
        for (int c = 0; c < choices.columns; ++c) {
            const step column = step_at(choices, across_steps, c, choices.columns);
            if (c > 0)
                left = nearest(piece * column.factor + left);
            if (!missing.next_is_missing())
                pieces.push_back(piece_at(top, left, piece, image_of(choices, row, column)));
        }
    }
    return pieces;
}

puzzle_grid fit_grid(const puzzle_choices & choices, grid_lead lead)
{
    puzzle_grid grid{.rows = choices.rows, .columns = choices.columns};
    const bool upright = choices.shape != poster_shape::landscape;
    const int columns = upright ? two_thirds(grid.rows) : three_halves(grid.rows);
    if (lead == grid_lead::rows)
        grid.columns = columns;
    else if (grid.columns != columns)
        grid.rows = upright ? three_halves(grid.columns) : two_thirds(grid.columns);
    if (choices.pieces == puzzle_pieces::four)
        grid.rows = rounded_down(grid.rows, 4);
    else if (choices.edges)
        grid.rows = rounded_down(grid.rows, 2);
    return grid;
}
