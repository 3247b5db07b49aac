#pragma once

#include "designs/templates/poster_shape.h"

#include <string>

/// How letters stand on their line: side by side, each a little off it, in a wave.
enum class letter_placing { align, offset, serpent };

/// Whose pictures the photos show through.
enum class letter_alphabet { rounded, sturdy, serif };

/// What the user chooses for a lettering.
struct lettering_choices {
    std::string text{};  ///< as the box holds it: UTF-8, lines end with LF, CR or both
    letter_placing placing = letter_placing::align;
    bool overlap = false;
    bool center = false;  ///< lines and block
    poster_shape shape = poster_shape::portrait;
    letter_alphabet alphabet = letter_alphabet::rounded;
};
