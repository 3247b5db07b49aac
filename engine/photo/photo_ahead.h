#pragma once

#include "engine/photo/run_photo.h"
#include "support/cores.h"
#include "support/files/paths.h"

#include <future>
#include <list>
#include <string>

/// A photo and the size of the place that it will be fitted to.
struct wanted_photo {
    std::string path;
    picture_size place;
    bool operator==(const wanted_photo &) const = default;
};

/// The photos that will probably be asked for next, which other cores read and fit while those before them
/// are drawn.
struct photo_ahead {
    int at_once = usable_cores();  ///< 0: nothing is read ahead
    struct begun_photo {
        wanted_photo wanted;
        file_stamp stamp;  ///< of the file when its reading began
        std::future<run_photo> photo;
    };
    std::list<begun_photo> begun{};
};
