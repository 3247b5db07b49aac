#pragma once

#include "designers/lettering/lettering_choices.h"
#include "designs/templates/location.h"
#include "support/random.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// From a text to the template of its letters. Pixels of the work area.

/// How large the letters of a text come out.
struct lettering_measure {
    std::string text{};  ///< with its breaks, a blank for each character without a picture
    int letters = 0;     ///< characters with a picture
    int lines = 0;
    int longest = 0;   ///< characters of the longest line; a line's CR counts as its first
    int capitals = 0;  ///< on the longest line; of several the most
    int size = 0;      ///< of a letter; 0 or below where the lines have no room
};

lettering_measure measured(const lettering_choices & choices);

/// The gap behind a letter of that size. Negative for letters that overlap.
int letter_gap(int size, bool overlap);

/// Where the line behind `position` (0: the first one) has to begin to stand in the middle of `line_room`. A
/// capital is wider by a fifth; a negative gap is one of the letters, not of the blanks.
int center_letters(std::string_view text, std::size_t position, int line_room, int size, int gap);

/// Why there can be no lettering of that text, as the user is told; empty when there can.
std::string lettering_fault(const lettering_choices & choices);

/// The template, a line a letter. The text has to be one without a fault. Chance is reseeded: a wave starts
/// somewhere else each time. Raises overflow (6) beyond 16 bits.
std::vector<location> lettering_plan(const lettering_choices & choices, const random_source & random);
