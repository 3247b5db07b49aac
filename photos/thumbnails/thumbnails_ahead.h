#pragma once

#include "support/MFreeImage.h"
#include "support/files/paths.h"

#include <future>
#include <map>
#include <optional>
#include <string>

/// What stands in for a photo in previews.
struct small_photo {
    std::string path{};                  ///< empty for a photo that isn't there
    std::optional<picture_size> size{};  ///< nothing for what can't be read
    std::optional<file_stamp> photo{};   ///< of the photo's file as it was then
    bool was_older = false;              ///< it had to be made anew, since the photo is newer
};

/// The files of the photos as they were counted last, by their paths: what has changed since is seen by them.
using counted_files = std::map<std::string, file_stamp>;

/// The photos that workers look at, and make thumbnails for, while those before them in the table are
/// counted.
struct thumbnails_ahead {
    int next = 0;  ///< of the table: the first photo that wasn't begun yet
    std::map<std::string, std::future<small_photo>> begun{};  ///< by photo
    counted_files counted{};                                  ///< outlives the counting
};
