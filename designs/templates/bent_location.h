#pragma once

#include "designs/templates/location.h"

/// The two ways in which a location is bent after reading.

/// The place after a quarter turn of the collage: sides swapped, the corner moved, all else kept. `edge` is
/// the side of the turned collage that the old top was measured along, in the same pixels. Raises overflow
/// (6) when height times rotation leaves 16 bits, even if the result would fit.
location turned(const location & place, int edge);

/// What the upright and the level measures are multiplied by.
struct stretch {
    double upright = 1, level = 1;
};

/// From 2 by 3 to 3 by 4, for an upright poster and for one that lies.
inline constexpr stretch tall_stretch{.upright = 0.933, .level = 1.05};
inline constexpr stretch wide_stretch{.upright = 1.05, .level = 0.933};

/// The place with all four measures stretched, rounded to nearest, ties to even. Raises overflow (6).
location stretched(const location & place, stretch by);

/// The same for its corner alone.
location corner_stretched(const location & place, stretch by);
