#pragma once

#include "designs/templates/poster_shape.h"
#include "engine/pixels/picture_shelf.h"
#include "support/files/paths.h"

#include <string>

/// One state of a background picture's file, as a preview of that shape shows it.
struct small_ground_key {
    std::string path;
    file_stamp stamp;
    poster_shape shape = poster_shape::portrait;
    bool operator==(const small_ground_key &) const = default;
};

/// The background pictures of the last previews: some twenty.
using small_grounds = picture_shelf<small_ground_key, std::size_t{8} << 20>;
