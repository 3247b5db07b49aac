#pragma once

#include <array>

/// Numbers that the scatters are measured with.

inline constexpr int scatter_tilts = 14;  ///< from -35 to 35 degrees in steps of 5; -5 and 0 share one

/// How far a cell that is turned and tilted reaches beyond its top-left corner, by tilt, in fractions of its
/// longer side.
struct scatter_reach {
    std::array<double, scatter_tilts> top, bottom, left, right;
};

/// A tall cell turned wide. The -0.90 leaves the run of its row; it is meant.
inline constexpr scatter_reach turned_wide{
    .top = {-0.58, -0.50, -0.42, -0.34, -0.26, -0.18, -0.90, 0, 0, 0, 0, 0, 0, 0},
    .bottom = {0.54, 0.57, 0.60, 0.62, 0.64, 0.65, 0.67, 0.76, 0.83, 0.90, 0.96, 1.02, 1.07, 1.12},
    .left = {0, 0, 0, 0, 0, 0, 0, -0.08, -0.13, -0.17, -0.23, -0.29, -0.34, -0.38},
    .right = {1.21, 1.20, 1.19, 1.16, 1.13, 1.09, 1.05, 0.99, 0.98, 0.97, 0.94, 0.90, 0.86, 0.82}};

/// A wide cell turned tall.
inline constexpr scatter_reach turned_tall{
    .top = {-0.39, -0.34, -0.28, -0.23, -0.18, -0.13, -0.07, 0, 0, 0, 0, 0, 0, 0},
    .bottom = {0.81, 0.86, 0.91, 0.93, 0.96, 0.97, 0.98, 1.06, 1.10, 1.13, 1.16, 1.18, 1.19, 1.20},
    .left = {0, 0, 0, 0, 0, 0, 0, -0.09, -0.18, -0.26, -0.34, -0.42, -0.50, -0.57},
    .right = {1.12, 1.08, 1.03, 0.97, 0.90, 0.83, 0.76, 0.67, 0.66, 0.64, 0.62, 0.60, 0.57, 0.54}};

/// The most slots along the poster beside so many across it, and the most across beside so many along; each
/// ends in a 0 behind its last number.
inline constexpr std::array<int, 65> scatter_limit_cross{
    65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65, 65,
    65, 65, 65, 65, 65, 65, 65, 65, 63, 61, 59, 57, 55, 53, 52, 51, 49, 47, 45, 43, 41, 39,
    37, 35, 33, 31, 29, 27, 25, 23, 21, 19, 17, 15, 13, 11, 9,  7,  5,  3,  1,  0,  0};
inline constexpr std::array<int, 67> scatter_limit_along{
    65, 63, 64, 62, 63, 61, 62, 60, 61, 59, 60, 58, 59, 57, 58, 56, 57, 55, 56, 54, 55, 53, 54,
    52, 53, 51, 52, 50, 51, 49, 50, 48, 49, 47, 48, 46, 47, 45, 46, 44, 45, 43, 44, 42, 43, 41,
    42, 40, 41, 39, 40, 38, 39, 37, 38, 36, 37, 35, 36, 34, 35, 33, 34, 32, 33, 31, 0};
