#pragma once

#include "designs/templates/poster_shape.h"

#include <string>
#include <string_view>

/// The text of a lettering as it is laid out: one byte a character. A CR begins a line, an LF is passed over.

/// The text of the box: one "?" for each character beyond ASCII, CR LF for each line end.
std::string plain_text(std::string_view text);

/// Breaks lines that are too long for the poster: at the next blank, or ten characters on, by LF and CR.
std::string normalize_text(std::string_view text, poster_shape shape);

/// True for A to Z.
bool is_capital(char letter);

/// True for what has a picture: letters and digits.
bool is_lettered(char sign);

/// The text with a blank for each character that has no picture; CR and LF stay.
std::string with_gaps(std::string text);
