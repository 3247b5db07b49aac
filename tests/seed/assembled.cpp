#include "tests/seed/assembled.h"

#include "support/MFreeImage.h"
#include "tests/seed/mask_parts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>

namespace {

int near(double value)
{
    return static_cast<int>(std::nearbyint(value));
}

/// Where rows or columns begin, counted from the first, and the codes they bear.
struct run {
    std::vector<int> starts;
    std::string codes;
};

using marks = std::vector<std::uint8_t>;

struct step_table {
    double even, odd, last;
    char first_code, last_code;
};

run steps(int count, int size, const jigsaw & puzzle, const step_table & table, double four)
{
    run found;
    int at = 0;
    for (int i = 0; i < count; ++i) {
        const bool straight = puzzle.edges == jigsaw::rim::straight;
        char code = i % 2 == 0 ? '1' : '2';
        double factor = i % 2 == 0 ? table.even : table.odd;
        if (straight && i == 0)
            code = table.first_code;
        else if (straight && i == count - 1) {
            code = table.last_code;
            factor = table.last;
        }
        if (puzzle.photos == jigsaw::cut::four)
            factor = four;
        if (i > 0)
            at = near(size * factor + at);
        found.starts.push_back(at);
        found.codes += code;
    }
    return found;
}

int size_of(const jigsaw & puzzle, int width, int height)
{
    const bool four = puzzle.photos == jigsaw::cut::four;
    const double factor = four ? 1.15 : puzzle.columns > 8 || puzzle.rows > 8 ? 1.5 : 1.25;
    int wide = std::min(near(1.0 * width / puzzle.columns * factor), width);
    int high = std::min(near(1.0 * height / puzzle.rows * factor), height);
    if (puzzle.columns < 4 || puzzle.rows < 4) {
        if (puzzle.columns * wide > width)
            wide = near(wide * 0.95);
        if (puzzle.rows * high > height)
            high = near(high * 0.95);
    }
    return std::min(wide, high);
}

/// For each pixel, the side of the largest square of marked pixels that ends there.
std::vector<int> squares(const marks & marked, int width)
{
    std::vector<int> side(marked.size());
    for (std::size_t at = 0; at < marked.size(); ++at) {
        if (!marked[at])
            continue;
        const auto across = static_cast<std::size_t>(width);
        const bool rim = at < across || at % across == 0;
        side[at] = rim ? 1 : 1 + std::min({side[at - 1], side[at - across], side[at - across - 1]});
    }
    return side;
}

/// What a bare square of nine pixels, pushed about from the corner of the poster, passes over.
marks outside(const covering & seen)
{
    constexpr int brush = 9;
    const auto across = static_cast<std::size_t>(seen.width);
    marks bare(seen.covered.size());
    for (std::size_t at = 0; at < bare.size(); ++at)
        bare[at] = seen.covered[at] == 0;
    const std::vector<int> side = squares(bare, seen.width);
    marks reached(bare.size()), swept(bare.size());
    std::vector<std::size_t> open{static_cast<std::size_t>(brush - 1) * across + brush - 1};
    reached[open.front()] = side[open.front()] >= brush;
    while (!open.empty()) {
        const std::size_t at = open.back();
        open.pop_back();
        for (const std::size_t next : {at - 1, at + 1, at - across, at + across})
            if (next < side.size() && side[next] >= brush && !reached[next]) {
                reached[next] = 1;
                open.push_back(next);
            }
    }
    for (std::size_t at = 0; at < reached.size(); ++at)
        for (std::size_t x = 0; reached[at] != 0 && x < brush; ++x)
            swept[at - x] = 1;
    reached = swept;
    for (std::size_t at = 0; at < reached.size(); ++at)
        for (std::size_t y = 0; reached[at] != 0 && y < brush; ++y)
            swept[at - y * across] = 1;
    return swept;
}

int largest(const marks & marked, int width)
{
    return std::ranges::max(squares(marked, width));
}

}  // namespace

laid_out laid(const jigsaw & puzzle)
{
    const bool wide = puzzle.shape == jigsaw::poster::landscape;
    const int width = wide ? 2900 : 1900, height = wide ? 1900 : 2900;
    const bool four = puzzle.photos == jigsaw::cut::four;
    laid_out found{.size = size_of(puzzle, width, height), .spots = {}};
    const int size = found.size;
    int top = near((height - (puzzle.rows - 1) * size * (four ? 0.78 : 0.62)) / 2);
    top = near(top - size / 2.0);
    int left = near(width + 100 - (puzzle.columns - 1) * size * (four ? 0.82 : 0.67));
    left = near((left - size) / 2.0);
    const run rows = steps(puzzle.rows, size, puzzle, {0.68, 0.62, 0.62, 't', 'b'}, 0.78);
    const run columns = steps(puzzle.columns, size, puzzle, {0.715, 0.638, 0.632, 'l', 'r'}, 0.82);
    for (std::size_t r = 0; r < rows.starts.size(); ++r)
        for (std::size_t c = 0; c < columns.starts.size(); ++c) {
            const std::string name =
                four ? "puzzle4" : std::string("puz_") + rows.codes[r] + columns.codes[c];
            found.spots.push_back(
                {top + rows.starts[r], left + columns.starts[c], "puzzle/" + name + ".gif"});
        }
    return found;
}

covering assembled(const jigsaw & puzzle)
{
    return assembled(puzzle, laid(puzzle));
}

covering assembled(const jigsaw & puzzle, const laid_out & pieces)
{
    const bool wide = puzzle.shape == jigsaw::poster::landscape;
    covering seen{.width = wide ? 3000 : 2000, .height = wide ? 2000 : 3000, .covered = {}, .inside = {}};
    seen.covered.resize(static_cast<std::size_t>(seen.width) * static_cast<std::size_t>(seen.height));
    seen.inside = seen.covered;
    std::map<std::string, bitmap> masks;
    for (const spot & one : pieces.spots) {
        bitmap & mask = masks[one.piece];
        if (!mask)
            mask = rescaled(load_picture(picture_format::gif, std::string(BUILT_SEED "/") + one.piece),
                            pieces.size, pieces.size);
        const rgb_triple ground(mask.row(0).front());
        for (int y = 0; y < mask.height(); ++y) {
            const auto row = mask.row(mask.height() - 1 - y);
            for (int x = 0; x < mask.width(); ++x) {
                const part seen_there = part_of(rgb_triple(row[static_cast<std::size_t>(x)]), ground);
                const int to_x = one.left + x, to_y = one.top + y;
                if (seen_there == part::ground || to_x < 0 || to_y < 0 || to_x >= seen.width ||
                    to_y >= seen.height)
                    continue;
                const std::size_t at = static_cast<std::size_t>(to_y) * static_cast<std::size_t>(seen.width) +
                                       static_cast<std::size_t>(to_x);
                ++seen.covered[at];
                if (seen_there == part::inside || seen_there == part::black_key)
                    ++seen.inside[at];
            }
        }
    }
    return seen;
}

measured measure(const covering & seen)
{
    const marks without = outside(seen);
    marks gap(without.size()), seam(without.size()), twice(without.size());
    measured found{.left = seen.width, .top = seen.height};
    double within = 0, once = 0;
    for (std::size_t at = 0; at < without.size(); ++at) {
        if (without[at])
            continue;
        const int x = static_cast<int>(at) % seen.width, y = static_cast<int>(at) / seen.width;
        found.left = std::min(found.left, x);
        found.right = std::max(found.right, x + 1);
        found.top = std::min(found.top, y);
        found.bottom = std::max(found.bottom, y + 1);
        within += 1;
        once += seen.covered[at] == 1 ? 1 : 0;
        gap[at] = seen.covered[at] == 0;
        seam[at] = seen.inside[at] == 0;
        twice[at] = seen.covered[at] > 1;
    }
    found.exactly_one = once / within;
    found.widest_gap = largest(gap, seen.width);
    found.widest_seam = largest(seam, seen.width);
    found.widest_overlap = largest(twice, seen.width);
    found.filled = within / (1.0 * (found.right - found.left) * (found.bottom - found.top));
    return found;
}
