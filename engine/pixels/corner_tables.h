#pragma once

#include <cstdint>
#include <span>

/// The shape of a round corner for a photo whose smaller side has that many pixels: for each column, counted
/// from the photo's side, the last row that is cut, counted from its bottom or top. Drawn by hand, one table
/// a size class.
std::span<const std::uint8_t> corner_table(int smaller_side);
