#pragma once

#include "support/MFreeImage.h"

/// How large a finished picture is shown, in pixels of the screen at 100%.
struct shown_size {
    picture_size picture;
    picture_size scroll;  ///< the frame it is scrolled in
    picture_size window;
};

/// Landscapes and squares have sizes of their own; a portrait is as large as the screen lets it be seen
/// whole, and at least readable. `room` is what the screen has for a window, which is never exceeded.
shown_size shown_size_of(picture_size own, picture_size room);
