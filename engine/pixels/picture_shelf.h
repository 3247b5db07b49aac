#pragma once

#include "support/MFreeImage.h"

#include <algorithm>
#include <list>
#include <utility>

/// Pictures used last, by a key that tells one from another, in no more than `Room` bytes of pixels.
template <typename Key, std::size_t Room>
class picture_shelf {
public:
    static constexpr std::size_t room = Room;

    /// The picture, good until the next `keep`; nullptr when it isn't there.
    const bitmap * find(const Key & wanted)
    {
        const auto found = std::ranges::find(pictures, wanted, &shelved::key);
        if (found == pictures.end())
            return nullptr;
        pictures.splice(pictures.begin(), pictures, found);
        return &pictures.front().picture;
    }

    /// Puts a picture on the shelf, an empty one too, and gives it back; those unused for longest make room.
    const bitmap & keep(Key key, bitmap picture)
    {
        filled += bytes_of(picture);
        while (filled > room && !pictures.empty()) {
            filled -= bytes_of(pictures.back().picture);
            pictures.pop_back();
        }
        pictures.push_front({std::move(key), std::move(picture)});
        return pictures.front().picture;
    }

private:
    struct shelved {
        Key key;
        bitmap picture;
    };

    static std::size_t bytes_of(const bitmap & picture)
    {
        return picture ? static_cast<std::size_t>(picture.width()) *
                             static_cast<std::size_t>(picture.height()) * sizeof(pixel)
                       : 0;
    }

    std::list<shelved> pictures;  ///< the one used last is the first
    std::size_t filled = 0;       ///< bytes
};
