#pragma once

#include "quick/blank_run.h"
#include "quick/scatter/scatter_match.h"

#include <string>
#include <vector>

/// A scatter: photos thrown on the poster, each tilted by its own angle.

struct scatter_request {
    slot_counts wanted{};   ///< slots that the photos need
    slot_counts offered{};  ///< slots that the scatter has: tall cells lie along the poster
    blank_run blanks{};
};

/// How far the cells that were turned reach, in pixels of the upright poster; 0 where none does.
struct scatter_extremes {
    int min_top = 0, max_bottom = 0, min_left = 0, max_right = 0;
    bool operator==(const scatter_extremes &) const = default;
};

struct scatter_layout {
    std::vector<std::string> lines;
    scatter_extremes reach;
};

/// The template lines of a scatter. `scatter` holds its lines, "any:top:left:height:width:tilt" and comments,
/// in pixels of the upright poster. Cells are turned in the order of the file until the counts fit; a square
/// one never is, and one that is left out counts all the same. Raises subscript (9) for a line with too few
/// fields and for a tilt beyond 35 degrees, overflow (6).
scatter_layout scatter_plan(const std::vector<std::string> & scatter, const scatter_request & request,
                            const random_source & random);

/// The least border that keeps turned cells on the poster.
enum class least_border { any, small, medium, large };

/// The border for cells that reach so far. A square poster is measured as if it were as high as the others.
least_border border_for(const scatter_extremes & reach);
