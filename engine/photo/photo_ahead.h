#pragma once

#include "engine/photo/run_photo.h"
#include "support/files/paths.h"

#include <future>
#include <list>
#include <optional>
#include <stop_token>
#include <string>

/// A photo and the size of the place that it will be fitted to, drawn at a scale.
struct wanted_photo {
    std::string path;
    picture_size place;
    int scale = 1;
    bool operator==(const wanted_photo &) const = default;
};

/// A photo as a worker gives it.
struct read_photo {
    run_photo photo;
    std::optional<file_stamp> stamp;  ///< of its file; nothing for one that changed while it was read
};

/// The photos that will probably be asked for next, which workers read and fit while those before them are
/// drawn.
struct photo_ahead {
    struct begun_photo {
        wanted_photo wanted;
        std::stop_source stop;  ///< ends the reading at its next row
        std::future<read_photo> photo;
    };
    std::list<begun_photo> begun{};
};
