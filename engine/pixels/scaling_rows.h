#pragma once

#include "engine/pixels/coarse_weights.h"

/// The two inner loops of scaling, over rows of three bytes a pixel. Every byte is a sum in doubles, term by
/// term in the order of the pixels, rounded half up. A loop that adds in another way has to come to the same
/// byte.

/// How the loops are computed; every way gives the same bytes.
enum class arithmetic {
    one_by_one,
    many_at_once  ///< only where `best_arithmetic` says so
};

/// The quickest way that this processor knows.
arithmetic best_arithmetic();

/// How a row is scaled across, and which pixels of the scaled row are wanted, the latter exclusive.
struct row_scaling {
    arithmetic way = arithmetic::one_by_one;
    scaling_weights weights;
    coarse_weights coarse;
    int left = 0, right = 0;
};

/// For a row of `source` pixels that becomes `target` pixels.
row_scaling row_scaling_of(arithmetic way, int source, int target);

/// Bytes that have to be readable behind the end of a row that is scaled across, whatever they are.
inline constexpr std::size_t room_behind = 32;

/// All pixels of a row, and where the wanted ones of the scaled row go: with room for a byte more.
struct row_across {
    const std::uint8_t * from = nullptr;
    std::uint8_t * into = nullptr;
};

/// Scales rows across; two at a time cost less than twice one.
void scale_across(const row_scaling & scaling, const row_across & row);
void scale_across(const row_scaling & scaling, const row_across & first, const row_across & second);

/// Adds up rows, one a weight, byte by byte. Each has at least as many bytes as `into`.
void add_rows(arithmetic way, std::span<const double> weights, std::span<const std::uint8_t * const> rows,
              std::span<std::uint8_t> into);
