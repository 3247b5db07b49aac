#pragma once

#include "designs/templates/poster_shape.h"

/// One photo for each piece, or one piece that looks like four for each photo.
enum class puzzle_pieces { one, four };

/// What the user chooses for a puzzle.
struct puzzle_choices {
    int rows = 6, columns = 4;
    int missing = 0;     ///< pieces that are left out, more or less
    bool edges = false;  ///< straight sides on the rim; counts with single pieces only
    puzzle_pieces pieces = puzzle_pieces::one;
    poster_shape shape = poster_shape::portrait;  ///< upright or landscape
};
