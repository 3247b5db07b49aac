#pragma once

#include "engine/pixels/ornaments.h"
#include "support/rectangle.h"

#include <string>

/// One photo, card or shape as a location or a cell asks for it: all that drawing it takes.
struct photo_place {
    rectangle area;    ///< pixels of the layout; one side 0: a shape as large as the other
    int rotation = 0;  ///< degrees clockwise as seen
    ornaments worn{};
    std::string mask{};   ///< of a shape
    int shape_color = 0;  ///< code of a painted shape, 1 to 7; 0: it shows a photo
};
