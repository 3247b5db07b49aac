#pragma once

#include "designers/matrix/matrix_choices.h"
#include "support/MFreeImage.h"
#include "support/rectangle.h"

#include <vector>

/// The sample of a matrix: its poster in small, with little landscapes for photos.

enum class sample_kind { photo, frame };

/// One photo or frame, in pixels of the poster, turned about its top-left corner, degrees clockwise.
struct sample_piece {
    sample_kind kind = sample_kind::photo;
    rectangle area{};
    int rotation = 0;
    bool operator==(const sample_piece &) const = default;
};

/// What lies on the poster at full size, from the bottom up; nothing for choices with a fault. With both
/// orientations every third photo of a row lies across two cells where it can. Shaking starts at the first
/// row of its table.
std::vector<sample_piece> sample_pieces(const matrix_choices & choices);

/// The poster with its pieces, drawn `divisor` times as small.
bitmap drawn_sample(const matrix_choices & choices, int divisor);
