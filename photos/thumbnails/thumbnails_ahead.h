#pragma once

#include "support/MFreeImage.h"

#include <future>
#include <map>
#include <optional>
#include <string>

/// What stands in for a photo in previews.
struct small_photo {
    std::string path{};                  ///< empty for a photo that isn't there
    std::optional<picture_size> size{};  ///< nothing for what can't be read
    bool was_older = false;              ///< it had to be made anew, since the photo is newer
};

/// The photos that workers look at, and make thumbnails for, while those before them in the table are
/// counted.
struct thumbnails_ahead {
    int next = 0;  ///< of the table: the first photo that wasn't begun yet
    std::map<std::string, std::future<small_photo>> begun{};  ///< by photo
};
