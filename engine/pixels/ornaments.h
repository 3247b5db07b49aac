#pragma once

#include "designs/templates/run_size.h"
#include "support/MFreeImage.h"

#include <cstdint>

/// How the four corners of a photo are drawn. Cut ones lose their pixels and keep frame and shadow; rounded
/// photos have neither.
enum class photo_corners : std::uint8_t { square, cut, rounded };

enum class photo_edges : std::uint8_t { hard, soft };

/// What one photo wears. Sizes in pixels of the layout; below 1 there is no frame and no shadow.
struct ornaments {
    int frame = 0, shadow = 0;
    rgb_triple frame_color{}, shadow_color{};  ///< never pure black: that is the transparent key
    photo_corners corners = photo_corners::square;
    photo_edges edges = photo_edges::hard;
    run_size size = run_size::full;  ///< a preview's frames are one line wider
    int scale = 1;                   ///< pixels that are drawn for one of the layout, in each direction
};
