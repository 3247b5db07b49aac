#pragma once

#include "support/MFreeImage.h"
#include "support/files/paths.h"

#include <map>
#include <optional>
#include <string>

/// What a look at the file of a photo has told.
struct known_file {
    std::optional<file_stamp> stamp;    ///< nothing where there is no file
    std::optional<picture_size> size;   ///< nothing for one that is no photo of usable size
    std::optional<file_stamp> photo{};  ///< of a thumbnail: what the photo's own file was
    std::string stand_in{};  ///< of a thumbnail that isn't there: the photo, where no other can be written
    int round = -1;          ///< when it was looked at
};

/// The photos' files that were looked at, each once a round; a round is one loop over the places of a
/// collage.
struct known_files {
    int round = 0;
    std::map<std::string, known_file> files{};
};
