#pragma once

#include "photos/lists/photo_table.h"

#include <functional>
#include <optional>

/// The search for the next photo that lies as its location does. Each orientation has a cursor of its own
/// into the table of photos.

/// What a location asks for.
struct match_request {
    int width = 0, height = 0;
    bool squares_take_any = false;  ///< near-square locations take either orientation: the quick matrix
    bool evolve = false;            ///< once one orientation has been used up, the other takes its places
    int last_photo = -1;
};

/// The cursors of a run, and how often each came round.
struct match_cursors {
    int16 next_portrait = 0, next_landscape = 0;
    int16 portrait_wraps = 0, landscape_wraps = 0;
    bool operator==(const match_cursors &) const = default;
};

/// True for a location that takes either orientation: its sides differ by less than a fiftieth.
bool is_near_square(const match_request & request);

/// The orientation that the location wants, Evolve's exchange included.
orientation wished(const match_request & request, const match_cursors & cursors);

/// 1 wide, 2 as high as wide or higher: a square photo is portrait here.
orientation orientation_of(int width, int height);

/// Tells how a photo lies, while it looks for the orientation `wish`.
using photo_look = std::function<std::optional<orientation>(int index, orientation wish)>;

/// The index of the photo to be used, its cursor moved behind it; nothing after a full round that found none.
/// A near-square location takes the photo at the cursor, however it lies. One that isn't loadable is taken by
/// none.
std::optional<int> find_match(const match_request & request, match_cursors & cursors,
                              const photo_look & look);
