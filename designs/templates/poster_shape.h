#pragma once

/// The three orientations of a poster: 2000 by 3000 pixels, 3000 by 2000, 2000 by 2000.
enum class poster_shape { portrait, landscape, square };

/// The sides of an upright poster; those of a square one are as wide.
inline constexpr int poster_width = 2000, poster_height = 3000;
