#pragma once

#include "engine/pixels/ornaments.h"
#include "engine/pixels/rotation_numbers.h"
#include "support/idle_workers.h"

/// The sheet whose turned outline is the mask of a tilted photo.
struct mask_sheet {
    picture_size size;               ///< 0 by 0 without one: nothing is drawn
    const bitmap * drawn = nullptr;  ///< its pixels; none: it is white all over
};

/// How a photo is tilted.
struct tilt {
    rectangle place;   ///< of the canvas, before the turn
    int rotation = 0;  ///< degrees clockwise as seen, a multiple of 5
    ornaments worn;
    rotation_numbers numbers;  ///< of the photo's section of `rotate.ini`; all 0: nothing is drawn
};

/// Puts one photo, fitted to the place, on the canvas turned about its own upper left corner, which stays
/// where it is. Only the photo's own pixels are disturbed. The place and the numbers are in pixels of the
/// layout; canvas and photo have the scale of what is worn. Workers that are free lend a hand at a larger
/// scale.
void draw_rotated_photo(bitmap & canvas, bitmap photo, const tilt & how, const mask_sheet & sheet,
                        const idle_workers & others = {});
