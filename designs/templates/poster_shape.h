#pragma once

/// The three orientations of a poster: 2000 by 3000 pixels, 3000 by 2000, 2000 by 2000.
enum class poster_shape { portrait, landscape, square };
