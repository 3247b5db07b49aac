#pragma once

#include "support/numbers.h"

#include <array>
#include <string>

/// One place of a template, in pixels of the upright collage (2000 wide, 3000 high, y down; a landscape
/// template is 3000 wide and 2000 high). The fields stand in the order of the file: top before left, height
/// before width.
struct location {
    int16 top = 0, left = 0, height = 0, width = 0;
    int16 rotation = 0;  ///< whole degrees, clockwise as seen
    int16 frame = -1;    ///< pixels; negative: the size chosen in the window
    int16 shadow = -1;   ///< pixels; negative: the size chosen in the window
    int16 spare = 0;     ///< colour code of a shape, 0 to 7; 0 fills it with a photo
    std::string file{};  ///< fixed picture or shape mask; empty: the next photo
    bool operator==(const location &) const = default;
};

/// The table of a run's locations. A fixed array, so that index `count`, one past the last location, is
/// always there: several steps walk it inclusively. The record behind the last location is blank.
struct location_table {
    static constexpr int capacity = 1002;
    std::array<location, capacity> places{};
    int16 count = 0;

    /// Raises subscript (9) outside 0 to 1001.
    location & operator[](int index);
    const location & operator[](int index) const;
    /// Adds behind the last. Raises subscript (9) when the table is full.
    void add(const location & place);
    /// Forgets all locations; every record is blank again.
    void clear();
};

/// One shuffle of a table, as chance had it: dealt into `step` + 1 runs, put back from dealt location `first`
/// on.
struct order_turn {
    int step = 0, first = 0;
};
