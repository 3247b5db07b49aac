#pragma once

#include <cstdint>

/// How the layout of a collage can be kept as a design.
enum class saved_layout : std::uint8_t { quick, quick_shape, matrix };

/// The last finished Flurn that can be kept as a design. Its template and its picture are set aside as
/// `tmp/last_flurn` and `tmp/last_flurn.jpg`, so that later previews and runs that were broken off don't
/// matter.
struct finished_flurn {
    bool is_kept = false;
    saved_layout layout = saved_layout::quick;
    bool is_landscape = false, is_square = false;
};
