#pragma once

#include "engine/layout/shake_table.h"

#include <array>

/// How the cells of a shaken quick matrix differ from upright ones, cell by cell and round again. The shifts
/// are fiftieths of the cell's longer side.
inline constexpr std::array<shake, 24> matrix_patterns{
    {{1.1, -5, -3, -3}, {0.9, 10, 3, 5},   {1.15, -15, 2, -5}, {0.85, 5, -2, 2},    {1.0, -10, 0, 0},
     {0.95, 15, 1, 4},  {1.3, -5, -2, -5}, {0.9, 5, 3, 4},     {1.15, -15, -5, -2}, {0.85, 10, 3, 5},
     {1.2, 0, -2, -2},  {0.9, 5, 4, 5},    {1.15, -5, 2, -7},  {0.85, 10, 4, 3},    {1.0, -10, -1, -1},
     {0.95, 5, 2, 1},   {1.2, 0, 5, 6},    {1.0, -20, 3, -1},  {0.9, 15, -1, 1},    {1.15, -10, 1, 3},
     {1.2, 10, 1, -3},  {0.9, -5, 2, -2},  {1.1, 15, -1, 3},   {1.0, -10, -5, -2}}};
