#pragma once

#include "designs/templates/location_line.h"
#include "designs/templates/poster_shape.h"
#include "quick/blank_run.h"

#include <string>
#include <vector>

/// A block: a poster covered from wall to wall with rectangles.

/// What is done to the rectangles of a block.
struct block_request {
    poster_shape poster = poster_shape::portrait;
    int gap = 0;      ///< pixels that each side of a rectangle gives up, less where nothing of the rectangle
                      ///< would be seen; negative: they overlap
    int doubled = 0;  ///< so many rectangles, from the first on, become twice as high
    int split = 0;    ///< so many, behind those, are cut in two
    blank_run blanks{};
};

/// How the locations of a block are written.
inline constexpr line_digits block_digits{.place = 2};

/// The locations of a block. `block` holds its lines, "top:left:height:width" and comments, in pixels of
/// the upright poster; a comment takes a place in the run of blanks. A landscape poster is turned later, so
/// it is cut across. Raises subscript (9) for a line with too few fields, overflow (6).
std::vector<location> block_plan(const std::vector<std::string> & block, const block_request & request,
                                 const random_source & random);
