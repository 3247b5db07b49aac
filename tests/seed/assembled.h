#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A jigsaw as it lies on the poster, put together by its own reckoning from the rendered pieces.

struct jigsaw {
    int rows = 0, columns = 0;
    enum class poster { portrait, landscape } shape = poster::landscape;
    enum class rim { knobs, straight } edges = rim::knobs;
    enum class cut { one, four } photos = cut::one;
};

struct spot {
    int top = 0, left = 0;
    std::string piece;  ///< its file below the seed folder
};

/// All places, with the side of the square that holds a piece.
struct laid_out {
    int size = 0;
    std::vector<spot> spots;
};
laid_out laid(const jigsaw & puzzle);

/// How often each pixel of the poster is covered, and how often by more than a rim; rows from the top.
struct covering {
    int width = 0, height = 0;
    std::vector<std::uint8_t> covered, inside;
};
covering assembled(const jigsaw & puzzle);
covering assembled(const jigsaw & puzzle, const laid_out & pieces);

/// What the puzzle measures within its outline, which is what a square of 9 pixels can't reach from without.
struct measured {
    double exactly_one = 0;                        ///< share of the pixels within that belong to one piece
    int widest_gap = 0;                            ///< side of the largest bare square within the outline
    int widest_seam = 0;                           ///< the same of bare pixels and rims
    int widest_overlap = 0;                        ///< side of the largest square that two pieces cover
    int left = 0, top = 0, right = 0, bottom = 0;  ///< bounds, exclusive at the right and below
    double filled = 0;                             ///< share of the bounds that lies within the outline
};
measured measure(const covering & seen);
