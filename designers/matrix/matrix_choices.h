#pragma once

#include "designs/templates/poster_shape.h"

#include <optional>
#include <string>

/// What the user chooses for a matrix. Pixels of the poster.

/// How the photos lie; with `both` one that lies across the cells takes two of them.
enum class matrix_photos { portrait, landscape, both };

struct poster_borders {
    int top = 100, bottom = 100, left = 100, right = 100;
    bool operator==(const poster_borders &) const = default;
};

/// A frame set around each photo.
struct worn_frames {
    std::string set{};
    int captions = 0;     ///< how many it has
    std::string order{};  ///< the orientation letters of the photos of its list; empty for one without a list
};

struct matrix_choices {
    int rows = 2, columns = 2;
    poster_borders borders{};
    int gap_v = 20, gap_h = 20;  ///< between rows, between columns; negative: they overlap
    matrix_photos photos = matrix_photos::portrait;
    poster_shape poster = poster_shape::portrait;  ///< upright or landscape
    bool rotate = false, resize = false;
    std::optional<worn_frames> frames{};  ///< not with both orientations
};
