#pragma once

#include "designs/templates/poster_shape.h"

/// Room on a poster, in its pixels.
struct poster_area {
    int width = 0, height = 0;
    bool operator==(const poster_area &) const = default;
};

/// The whole poster.
inline constexpr poster_area whole_poster(poster_shape shape)
{
    return {.width = shape == poster_shape::landscape ? 3000 : 2000,
            .height = shape == poster_shape::portrait ? 3000 : 2000};
}

/// What letters and pieces are laid out in: a little less on every poster.
inline constexpr poster_area work_area(poster_shape shape)
{
    const poster_area poster = whole_poster(shape);
    return {.width = poster.width - 100, .height = poster.height - 100};
}

/// Lines that a template holds; what follows is not read.
inline constexpr int most_lines = 1001;
