#pragma once

#include <cstdint>

/// How a photo, a place, a page or a design lies. Nothing is square here: whoever asks says which of the two
/// a square counts as.
enum class orientation : std::uint8_t { landscape, portrait };
