#pragma once

#include "support/MFreeImage.h"
#include "support/files/paths.h"

#include <list>
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
/// gets another key.
class mask_shelf {
public:
    /// Bytes of pixels: a dozen masks as they are loaded, or hundreds in the sizes of a preview.
    static constexpr std::size_t room = std::size_t{32} << 20;

    /// The mask, good until the next `keep`; nullptr when it isn't there.
    const bitmap * find(const mask_key & wanted);
    /// Puts a mask on the shelf, an empty one too, and gives it back; those unused for longest make room.
    const bitmap & keep(mask_key key, bitmap mask);

private:
    struct shelved {
        mask_key key;
        bitmap mask;
    };
    std::list<shelved> masks;  ///< the one used last is the first
    std::size_t filled = 0;    ///< bytes
};
