#pragma once

#include "batch/arguments.h"
#include "batch/page_plan.h"
#include "session/frmMain.h"

#include <string>

/// What a poster lies on goes on around it, where its page is larger.

/// White otherwise. Without a word it goes on where there is a bleed to run into.
bool is_own_ground_wanted(const batch_arguments & arguments);

/// The ground of the whole sheet with its bleed: one colour, or a picture.
struct own_ground {
    rgb_triple color{};
    std::string jpeg{};  ///< empty for a colour
    picture_size size{};
};

/// A picture lies as it does below the poster, mirrored at the poster's edges.
own_ground ground_of_page(frmMain & main, const page_plan & plan, picture_size poster);

/// The picture in a larger one of that size, its lower left corner at (left, bottom), mirrored at its edges
/// as often as it takes. An empty picture gives none.
bitmap mirrored_around(const bitmap & image, picture_size size, int left, int bottom);
