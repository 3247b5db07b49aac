#pragma once

#include "photos/lists/photo_table.h"
#include "support/MFreeImage.h"

#include <optional>
#include <string>

/// Portrait when higher than wide; a square photo is landscape. Nothing for a photo that isn't loadable.
std::optional<orientation> counted_orientation(std::optional<picture_size> size);

/// How many photos of either orientation a table holds.
struct orientation_counts {
    int16 landscape = 0, portrait = 0;
    std::string list{};  ///< "p:" or "l:" for each readable photo
};

/// Adds one photo; one that isn't loadable adds nothing.
void add_photo(orientation_counts & counts, std::optional<orientation> shape);
