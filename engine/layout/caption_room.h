#pragma once

#include "engine/layout/location_bends.h"

/// Mirror, flip, and the strip that a cleared caption needs.

/// The place seen in a mirror that stands at the right, or lies at the bottom, of a collage with this extent.
/// Raises overflow (6) when the square of the rotation leaves 16 bits.
location mirrored(const location & place, int extent);
location flipped(const location & place, int extent);

/// What the strip depends on.
struct room_setting {
    bool turned_afterwards = false;  ///< the strip is cut off at the side that the quarter turn brings there
    bool block = false;              ///< photos stand wall to wall
    bool at_bottom = false;
    bool square = false;
};

/// How each measure of the locations changes to free the strip.
location_bend caption_room_bend(const room_setting & setting, run_size size);
