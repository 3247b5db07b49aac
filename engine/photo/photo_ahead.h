#pragma once

#include "support/MFreeImage.h"
#include "support/files/paths.h"

#include <future>
#include <string>

/// The photo that will probably be asked for next, which another core reads while the one before it is drawn.
struct photo_ahead {
    bool is_on = true;
    std::string path;
    file_stamp stamp;           ///< of the file when its reading began
    std::future<bitmap> image;  ///< not valid while nothing is read
};
