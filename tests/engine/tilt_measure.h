#pragma once

#include "designs/templates/run_size.h"
#include "engine/pixels/area_turn.h"
#include "tests/engine/tilt_stage.h"

#include <array>

/// Draws a tilted photo of one colour for real and measures in the picture where its sides came to lie.

/// A photo as a location asks for it; frame and shadow as the window's lists hold them.
struct tilted_cell {
    int width = 0, height = 0, rotation = 0, frame = 0, shadow = 0;
    run_size size = run_size::full;
};

/// Corners in pixels from the canvas's upper left corner: the photo's own upper left, upper right, lower
/// right, lower left.
using four_corners = std::array<picture_point, 4>;

struct tilt_findings {
    four_corners expected, drawn;
    std::array<double, 4> frame_widths{};  ///< pixels: above, right, below, left of the photo
    double photo_share = 0;                ///< colour of the photo that arrived, 1 for all of it
    double shadow_share = 0;               ///< likewise of the shadow; 1 when there is none
    int touched_outside = 0;  ///< pixels that changed though they lie outside photo, frame and shadow
};

tilt_findings measured(tilt_stage & stage, const tilted_cell & cell);

/// Distance of a drawn corner from its place.
double corner_error(const tilt_findings & found, std::size_t corner);

/// What a test or a person wants to know of the cell.
std::string told(const tilted_cell & cell);
