#pragma once

#include "engine/pixels/scaling_weights.h"

#include <cstdint>

/// The two inner loops of scaling, over rows of three bytes a pixel. Sums are formed in doubles, term by term
/// in the order of the pixels, and rounded half up: neither loop may add in another order or fuse a product
/// with a sum.

/// How the loops are computed; every way gives the same bytes.
enum class arithmetic {
    one_by_one,
    four_at_once  ///< only where `best_arithmetic` says so
};

/// The quickest way that this processor knows.
arithmetic best_arithmetic();

/// Pixels `left` to `right`, the latter exclusive, of a scaled row.
struct wanted_columns {
    int left = 0, right = 0;
};

/// Scales a row across. `source` has all pixels of the row; `into` room for the wanted pixels and a byte
/// more. `work` is memory kept from row to row.
void scale_across(arithmetic way, const scaling_weights & weights, wanted_columns wanted,
                  std::span<const std::uint8_t> source, std::span<std::uint8_t> into,
                  std::vector<double> & work);

/// Adds up rows, one a weight, byte by byte. Each has at least as many bytes as `into`.
void add_rows(arithmetic way, std::span<const double> weights, std::span<const std::uint8_t * const> rows,
              std::span<std::uint8_t> into);
