#pragma once

#include "support/rectangle.h"

#include <vector>

/// One line, or one corner pixel, of a shadow, in drawn pixels from the top.
struct shadow_line {
    rectangle area;
    int alpha = 0;  ///< weight of the shadow's colour, 10 to 200
    bool operator==(const shadow_line &) const = default;
};

/// Weight of the shadow after it has faded by `lost`: 200 down to 10.
int fade(int lost);

/// The band right of `framed`, a photo with its frame: columns that fade outwards, in the order in which they
/// are drawn. Both sizes are pixels of the layout, of which `scale` are drawn for one: the fading is reckoned
/// anew for each.
std::vector<shadow_line> right_shadow(const rectangle & framed, int shadow_size, int scale = 1);

/// The band below it: rows that fade downwards.
std::vector<shadow_line> bottom_shadow(const rectangle & framed, int shadow_size, int scale = 1);
