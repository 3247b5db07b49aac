#pragma once

#include "designers/puzzle/puzzle_choices.h"
#include "designs/templates/location.h"
#include "support/random.h"

#include <string>
#include <vector>

/// From the choices for a puzzle to the template of its pieces.

/// Side of a piece's picture in pixels. Rows and columns are 1 or more.
int piece_size(const puzzle_choices & choices);

/// Why there can be no such puzzle, as the user is told; empty when there can.
std::string puzzle_fault(const puzzle_choices & choices);

/// The template, a line a piece, row by row. Up to nine missing pieces are spread over the puzzle, one for
/// each run of pieces; for more, each piece is left out by chance, so that none at all may be left. Raises
/// overflow (6) beyond 16 bits.
std::vector<location> puzzle_plan(const puzzle_choices & choices, const random_source & random);

/// What a change of one count does to the other.
enum class grid_lead { rows, columns };

struct puzzle_grid {
    int rows = 0, columns = 0;
    bool operator==(const puzzle_grid &) const = default;
};

/// The counts as the poster's shape asks for, one of them leading; rows that go with the columns stay. Rows
/// come in fours where four pieces share a photo, and in twos with straight edges.
puzzle_grid fit_grid(const puzzle_choices & choices, grid_lead lead);
