#pragma once

#include "support/numbers.h"

#include <string>

/// The greatest count of either orientation that a scatter takes.
inline constexpr int16 largest_scatter = 64;

/// Which of the two generators that share their tables' counters was run last.
enum class scatter_mode { block, scatter };

/// What the quick styles keep between the steps of one collage.
struct quick_state {
    int16 photos_portrait = 0, photos_landscape = 0;  ///< as last counted; a square photo is a landscape one
    std::string photo_shapes;                         ///< "p:" or "l:" for each photo, in list order

    /// Slots whose photo lies along the poster, and those across it: on an upright or a square poster the
    /// portrait ones are along it. Lowered where no template holds as many.
    int16 quick_along = 0, quick_cross = 0;
    int16 quick_reduced = 0;  ///< how often they were; the notice is shown at exactly 1
    int16 quick_max = largest_scatter;

    std::string block_name;  ///< header of the block in its file, with its brackets
    int16 block_doubled_file = 0, block_split_file = 0;  ///< rectangles to widen and to cut, as matched
    int16 block_doubled = 0, block_split = 0;            ///< those that are left while a block is written
    std::string scatter_line;                            ///< line of the scatter that was found last
    ::scatter_mode scatter_mode = ::scatter_mode::block;

    int16 matrix_offset = -1;  ///< where in its patterns a poster's matrix begins; -1: not chosen yet
    bool matrix_notice_done = false;
    int16 preview_inset = 0;  ///< pixels of the preview that a shaken matrix leaves free at top and bottom

    std::string shape_file;  ///< mask of the shape that was written last
};
