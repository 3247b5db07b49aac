#pragma once

#include "engine/pixels/picture_shelf.h"
#include "support/files/paths.h"

#include <string>

/// The size of a mask that hasn't been scaled.
inline constexpr int as_loaded = 0;

/// One state of a mask's file in one size, in pixels.
struct mask_key {
    std::string path;
    file_stamp stamp;
    int size = as_loaded;
    bool operator==(const mask_key &) const = default;
};

/// The masks used last, so that a grid of equal shapes reads and scales its file once. A file that changes
/// gets another key. There is room for a dozen masks as they are loaded, or hundreds in the sizes of a
/// preview.
using mask_shelf = picture_shelf<mask_key, std::size_t{32} << 20>;
