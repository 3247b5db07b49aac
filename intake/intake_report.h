#pragma once

#include "intake/intake_photo.h"

#include <vector>

/// What an intake has come to, for people.
struct intake_result {
    std::vector<intake_photo> photos;
    std::vector<std::pair<std::string, std::string>>
        doubles{};         ///< a file, and the one before it with the same bytes
    std::size_t made = 0;  ///< copies that weren't there before
};

/// A photo that would be a stamp on a poster: shorter than this on a side, in pixels.
inline constexpr int very_small = 400;

/// The table at the end: how many were taken, prepared, refused, are doubles or very small, and each of the
/// latter three by its name.
std::string table_of(const intake_result & result);

/// The lines of a photo list of all that are ready.
std::vector<std::string> list_of(const std::vector<intake_photo> & photos);
