#pragma once

#include "designers/matrix/matrix_choices.h"

/// The greatest borders of a poster: of top and bottom each, and of left and right each.
struct border_limits {
    int height = 0, width = 0;
    bool operator==(const border_limits &) const = default;
};

/// Wider along the poster's long side.
border_limits border_limits_of(poster_shape poster);

/// The borders cut to their limits, none below 0. Where two opposite ones are too wide together the wider one
/// gives way.
poster_borders fitted_borders(poster_borders borders, const border_limits & limits);

/// All four borders alike, each as far as its limit lets it.
poster_borders equal_borders(int wanted, const border_limits & limits);
