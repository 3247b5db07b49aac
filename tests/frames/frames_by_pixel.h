#pragma once

#include "frames/sets/frame_rendering.h"

#include <string>

/// The slow twins of the rendering: one pixel after the other, in the order in which the bands lie on each
/// other, beyond the edges too.

bitmap portrait_frame_by_pixel(desktop & desk, const frame_look & look, const std::string & caption);
bitmap landscape_frame_by_pixel(desktop & desk, const frame_look & look, const std::string & caption);
