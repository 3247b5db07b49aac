#pragma once

#include "designs/templates/run_size.h"

/// Frame width and shadow size of a photo, from the value of its location and the lists of the window. Pixels
/// of the canvas.

/// How the window decides about frames.
struct frame_choice {
    bool by_location = false;   ///< frames are off, or their controls aren't offered: the list doesn't count
    bool list_enabled = false;  ///< the user may choose a size; otherwise the design's own stands in the list
    int list_value = 0;
};

/// Full-size pixels of the frame; a negative `value` of the location means that of the list.
int frame_size_of(int value, const frame_choice & chosen);

/// How the window decides about shadows.
struct shadow_choice {
    bool usable = false;       ///< shadows are drawn at all
    bool list_counts = false;  ///< the list was enabled when the run began
    int list_value = 0;
};

int shadow_size_of(int value, const shadow_choice & chosen);

/// The sizes as a preview draws them: a sixth, and a quarter, but never less than one pixel and three.
int frame_in_preview(int size);
int shadow_in_preview(int size);

/// What a list value means for a preview as a whole: a sixth, at least 1 for a frame that is there; a
/// quarter for a shadow.
int frame_list_in_preview(int value);
int shadow_list_in_preview(int value);

/// The grid's own bounds on a size of a preview.
int bounded_in_preview(int size);
