#pragma once

#include "support/files/text_file.h"
#include "support/numbers.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the quick templates and the tables they are made from have in common.

/// Field `index` of a line of a table as a whole number of 16 bits, nearest, ties to even. Raises subscript
/// (9) when there is none, overflow (6).
int16 number_at(const std::vector<std::string> & fields, std::size_t index);

/// The fields of a line of a table.
std::vector<std::string> fields_of(std::string_view line);

/// The lines behind the one that equals `header`, up to the next that begins with "[" or to the end. Nothing
/// when there is no such line.
std::optional<std::vector<std::string>> section_of(line_source & lines, std::string_view header);
