#pragma once

#include "designs/catalogue/design_record.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The lines of the design catalogue: "[Design600]" begins a section, "Key=Value" belongs to it.

/// A key with its "=", as it stands at the start of a line, and where its value goes.
struct design_key {
    std::string_view text;
    std::string design_record::*value;
};

/// All keys of the format, in the order in which they are told to users and written.
std::span<const design_key> design_keys();

/// Cuts `line` to its key with the "=" and gives the text behind it. Without "=" the value is empty and the
/// line stays as it is.
std::string split_key_value(std::string & line);

/// The section name that a line "[Design…" begins, without brackets and always nine characters of it;
/// nothing for any other line.
std::optional<std::string> design_section(std::string_view line);

/// Stores the value of a line "Key=Value". Keys are compared exactly, case included; a line with another key
/// or none changes nothing.
void read_design_line(design_record & record, std::string line);
