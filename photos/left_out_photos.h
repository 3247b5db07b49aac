#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

/// Why a photo can't be used.
enum class photo_fault : std::uint8_t {
    gone,        ///< there is no such file any more
    unreadable,  ///< no JPEG, or damaged
    closed,      ///< to this user, as the folder that it is in may be
    cut_short,   ///< since it was chosen: its data end in the middle
    too_large,   ///< of 32,768 pixels or more on a side
    too_long     ///< so long and narrow that, fitted into its place, it would have 32,768 pixels or more
};

struct left_out_photo {
    std::string path;
    photo_fault fault = photo_fault::unreadable;
    bool operator==(const left_out_photo &) const = default;
};

/// The photos that had to be left out since photos were chosen last, by counting, previews and full-size runs
/// alike. A program without a window reads `photos` at the end of its work and names them itself when
/// `told_by` says so; otherwise each is named once, in one box at the end of whatever met it.
struct left_out_photos {
    enum class teller : std::uint8_t { box, caller };
    teller told_by = teller::box;
    std::vector<left_out_photo> photos;  ///< in the order in which they were met, each once; never thumbnails
    std::size_t told = 0;                ///< how many of them the user has been told of
    std::set<std::string> in_this_run;   ///< not tried again before the next run begins
    bool told_in_this_run = false;       ///< a box has named them since it began
};
