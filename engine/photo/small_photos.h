#pragma once

#include "engine/pixels/picture_shelf.h"
#include "support/files/paths.h"

#include <string>

/// One state of a photo's file, fitted to a place of that size; 0 by 0: as it is.
struct small_photo_key {
    std::string path;
    file_stamp stamp;
    picture_size place;
    bool operator==(const small_photo_key &) const = default;
};

/// The photos of the last previews, as they are where they are thumbnails, and as they were drawn: several
/// hundred of them.
using small_photos = picture_shelf<small_photo_key, std::size_t{64} << 20>;
