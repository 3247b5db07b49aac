#pragma once

#include "designs/catalogue/catalogue_lines.h"

#include <optional>
#include <string_view>
#include <vector>

/// A catalogue cut into its sections.

/// A section with the blank lines behind it, or what stands in front of the first one: that has no number.
struct catalogue_part {
    std::optional<int> number;
    text_lines lines;
};

using catalogue_parts = std::vector<catalogue_part>;

/// The first part is what stands in front of all sections, be it nothing.
catalogue_parts parts_of(const text_lines & catalogue);
text_lines lines_of_parts(const catalogue_parts & parts);

/// The lines without the blank ones at their end.
text_lines without_blank_end(text_lines lines);

/// The first part of that number; null when there is none, and for no number.
const catalogue_part * with_number(const catalogue_parts & parts, std::optional<int> number);

/// What the first line with that key ("Name=") says; empty when there is none.
std::string_view value_in(const catalogue_part & part, std::string_view key);

bool has_name(const catalogue_parts & parts, std::string_view name);

/// Puts a section in by its number, which it has, with a blank line between it and its neighbours.
void put_in(catalogue_parts & parts, catalogue_part fresh);
