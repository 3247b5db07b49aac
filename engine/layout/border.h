#pragma once

#include "engine/layout/location_bends.h"

/// The border of the collage is made by shrinking the whole layout.

enum class border_size { none, tiny, small, medium, large, huge };

/// What the border depends on besides its size.
struct border_setting {
    border_size size = border_size::none;
    bool square = false;     ///< of the output
    bool scattered = false;  ///< photos hang over their places, so that less has to be taken off
};

/// How each measure of the locations changes. Offsets are pixels of the full size, or 0.15 of that in a
/// preview. `none` has a bend too: the little room for large frames and shadows.
location_bend border_bend(const border_setting & setting, run_size size);
