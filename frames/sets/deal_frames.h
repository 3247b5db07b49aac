#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// From the template of a frame design to the one of a collage: each "@" line gets a frame of a set.

struct frame_deal {
    std::string set;
    /// The orientation letters of the photos of the set's list, "l" and "p"; empty for a set without a list.
    std::string order;
    /// Whether the set has that file: "lframe01.jpg".
    std::function<bool(const std::string & file)> has_frame;
};

struct dealt_frames {
    std::vector<std::string> lines;
    /// The letter of a location for which the list has no photo; the lines end in front of it.
    std::optional<char> missing;
};

/// The number, from 1 up, of the next photo of that letter in `order`, 0 for none. It has a capital from then
/// on; when all have one, all are free again.
int take_next_photo(std::string & order, char letter);

/// Deals out frames in the order of their captions, from the last to the first again, or, with a list, to
/// each location the caption of the next photo of its orientation that has none yet. A line without "@", or
/// with it at the start, stays as it is, and so does all that follows the next section's header.
dealt_frames deal_frames(const std::vector<std::string> & source, frame_deal deal);
