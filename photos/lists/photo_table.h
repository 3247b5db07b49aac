#pragma once

#include "support/numbers.h"
#include "support/orientation.h"

#include <array>
#include <optional>
#include <string>

/// What is known of a photo's orientation during a run.
struct seen_orientation {
    bool is_known = false;
    std::optional<orientation> lies{};  ///< nothing for a photo that isn't loadable
    bool operator==(const seen_orientation &) const = default;
};

/// The working table of photos: full paths in use order. During a preview it holds thumbnails, at full size
/// photos.
struct photo_table {
    static constexpr int capacity = 1001;
    std::array<std::string, capacity> photos{};
    int16 last_photo = -1;  ///< index of the last valid entry; -1: empty
    int beyond = 0;         ///< how many photos more the folder has than are taken of one
    std::array<std::string, capacity> shuffled_photos{};
    std::array<seen_orientation, capacity> photo_orientation{};  ///< cache of a run's matching
    int16 landscape_count = 0, portrait_count = 0;
    std::string orientation_list{};  ///< "p:" or "l:" for each readable photo, in table order
    /// Whether the user wants the photos shuffled before they are used again.
    enum class reshuffle : std::uint8_t { not_asked = 0, no = 1, yes = 2 };
    reshuffle reshuffle_choice = reshuffle::not_asked;

    /// Raises subscript (9) outside 0 to 1000.
    std::string & operator[](int index);
    const std::string & operator[](int index) const;
};

/// Where the photos of the collage come from; held as text in the tag of `lblPhotos`.
enum class photo_source { none = 0, folder = 1, list = 2, selection = 3 };

/// Most photos of a list that can be edited.
inline constexpr int editable_photos = 60;

/// What `last_photo` holds after the folder chooser was cancelled.
inline constexpr int16 folder_cancelled = 999;
