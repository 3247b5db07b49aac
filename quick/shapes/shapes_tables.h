#pragma once

#include <array>
#include <string_view>

/// Tables of the quick shapes.

/// A grid of so many cells has so many columns. The last is a stopper.
struct shapes_grid_size {
    int cells, columns;
};
inline constexpr std::array<shapes_grid_size, 43> shapes_grid_sizes{
    {{6, 2},  {8, 2},  {9, 3},  {10, 2}, {12, 3}, {14, 2}, {15, 3}, {16, 4}, {18, 3}, {20, 4},   {21, 3},
     {24, 4}, {25, 5}, {27, 3}, {28, 4}, {30, 5}, {32, 4}, {33, 3}, {35, 5}, {36, 6}, {40, 5},   {42, 6},
     {44, 4}, {45, 5}, {48, 6}, {49, 7}, {50, 5}, {52, 4}, {54, 6}, {55, 5}, {56, 7}, {60, 6},   {63, 7},
     {64, 8}, {66, 6}, {70, 7}, {72, 6}, {77, 7}, {78, 6}, {80, 8}, {81, 9}, {84, 7}, {999, 999}}};

/// How the cells of a mixed grid differ, in units of 4 pixels.
struct shapes_mix {
    int down, right, growth;
};
inline constexpr std::array<shapes_mix, 11> shapes_mixes{{{-5, -10, 25},
                                                          {10, 0, 0},
                                                          {-10, 5, -5},
                                                          {0, -15, 10},
                                                          {15, 5, -10},
                                                          {5, -10, 5},
                                                          {0, 15, 25},
                                                          {-15, 0, 0},
                                                          {-5, 10, -5},
                                                          {10, -10, 15},
                                                          {-10, 5, -10}}};

/// The texts of the list of shapes, and their masks. Any other text is a heart, "Hearrs" among them.
struct shape_mask {
    std::string_view shape, file;
};
inline constexpr std::string_view squares_shape = "Squares", puzzle_shape = "Puzzle pieces",
                                  leaves_shape = "Leaves";
inline constexpr std::string_view heart_mask = "heart.gif";
inline constexpr std::array<shape_mask, 11> shape_masks{{{"Circles", "circle.gif"},
                                                         {"Stars", "star.gif"},
                                                         {puzzle_shape, "puzzle_x.gif"},
                                                         {leaves_shape, "leaf_x.gif"},
                                                         {"Ovals", "oval.gif"},
                                                         {"Clouds", "cloud.gif"},
                                                         {"Stripes", "stripes.gif"},
                                                         {"Targets", "target.gif"},
                                                         {"Polka Dots", "polka_dots.gif"},
                                                         {"Stamps", "stamp.gif"},
                                                         {"Custom shape", "custom_shape.gif"}}};
