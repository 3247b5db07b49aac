#pragma once

#include "designs/templates/location.h"
#include "engine/photo/known_files.h"
#include "photos/lists/photo_table.h"
#include "session/frmMain.h"

#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// The canvas of the last preview as it was before its caption was laid, with all that went into it: where
/// only the caption has changed since, no photo is drawn again.

/// Where the loops over the places stand, before them or behind them.
struct loop_state {
    std::array<location, location_table::capacity> places{};
    int16 place_count = 0;
    std::vector<std::string> photos;  ///< the whole table
    std::array<seen_orientation, photo_table::capacity> orientation{};
    photo_table::reshuffle reshuffle_choice{};
    int16 photo_cursor = 0, image_number = 0, shake_start = 0;
    int16 next_portrait = 0, next_landscape = 0, portrait_wraps = 0, landscape_wraps = 0;
    bool match_active = false;
    std::set<int> photos_shown;
    bool operator==(const loop_state &) const = default;
};

struct kept_canvas {
    std::string settings;  ///< of every control and field that the loops read
    loop_state before;
    bitmap ground;                            ///< the canvas before the loops
    std::map<std::string, known_file> files;  ///< of the photos that were looked at
    loop_state after;
    bitmap canvas;
};

/// Has the loops done by `loops` unless the last preview's canvas is what they would draw. A full run, and a
/// preview that told or asked something, drew on chance or left a photo out, keeps nothing.
void with_kept_canvas(frmMain & main, const std::function<void()> & loops);
