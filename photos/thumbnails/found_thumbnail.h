#pragma once

#include "photos/thumbnails/thumbnails_ahead.h"

#include <string>

/// What stands in for a photo in previews: its thumbnail, made where it is missing, cut short or damaged, and
/// made anew where the photo was replaced; the photo itself where none can be written. No path for a photo
/// that is gone. One that is still being copied, or changes all the time, stands in for itself, without a
/// size. Touches nothing of the session and may be called on several threads at once.
small_photo found_thumbnail(const std::string & photo);

/// True for what was given for one that is still being copied.
bool is_still_coming(const small_photo & photo);
