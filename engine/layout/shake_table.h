#pragma once

#include <array>

/// How one cell of a shaken grid differs from an upright one.
struct shake {
    double scale = 1;
    int rotation = 0;       ///< degrees, clockwise as seen
    int top = 0, left = 0;  ///< fiftieths of the cell's longer side
};

/// Walked cell by cell and round again, from a start that is drawn once for a selection of photos.
inline constexpr std::array<shake, 17> shake_table{{{1.10, -5, -3, -3},
                                                    {0.90, 10, 3, 5},
                                                    {1.15, -15, 2, -5},
                                                    {0.85, 5, -2, 2},
                                                    {1.00, -10, 0, 0},
                                                    {0.95, 10, 1, 4},
                                                    {1.30, -5, -2, -5},
                                                    {0.90, 5, 3, 4},
                                                    {1.15, -15, -5, -2},
                                                    {0.85, 10, 3, 5},
                                                    {1.20, -10, -2, -2},
                                                    {0.90, 5, 4, 5},
                                                    {1.15, -15, 2, -7},
                                                    {0.85, 10, 4, 3},
                                                    {1.00, -10, -1, -1},
                                                    {0.95, 5, 2, 1},
                                                    {1.20, 15, 5, 6}}};
