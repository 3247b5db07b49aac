#pragma once

#include "support/MFreeImage.h"

#include <string>
#include <utility>

/// A photo on its way to its place, with as much of its pixels as was read: it is scaled while it is read
/// where its place is known by then.
struct run_photo {
    run_photo() = default;
    /// A photo that is in memory.
    run_photo(bitmap image) : own{.width = image.width(), .height = image.height()}, whole(std::move(image))
    {}

    explicit operator bool() const { return own.width > 0; }

    std::string path{};
    picture_size own{};  ///< 0 by 0 for one that can't be loaded
    bitmap whole{};      ///< empty while only the fitted one was needed
    bitmap fitted{};     ///< as large as `place` says, or empty
    picture_size place{};
};
