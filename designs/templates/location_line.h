#pragma once

#include "designs/templates/location.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A line of a template: "top:left:height:width:rotation:frame:shadow:spare:file". The ninth field keeps any
/// further colons. A number is the one that its field begins with (nothing readable is 0), rounded to the
/// nearest, ties to even.

/// The location of the line, or nothing where the fifth field is empty: there the template ends. Raises
/// subscript (9) when a field is missing, overflow (6) when a number leaves 16 bits.
std::optional<location> parse_location(std::string_view line);

/// With how many digits, at least, a line's numbers are written: top, left, height and width, and the
/// rotation.
struct line_digits {
    int place = 1, rotation = 1;
};

/// The line of the location, as parse_location reads it.
std::string location_text(const location & place, line_digits digits = {});

/// The lines of all of them.
std::vector<std::string> template_lines(const std::vector<location> & places, line_digits digits = {});

/// The location enlarged by 20 pixels on each side, so that soft edges fade outside of what was intended.
/// Raises overflow (6).
location softened(const location & place);
