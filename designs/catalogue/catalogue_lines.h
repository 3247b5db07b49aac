#pragma once

#include "designs/catalogue/design_name.h"
#include "designs/catalogue/finished_flurn.h"
#include "support/numbers.h"
#include "support/orientation.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The design catalogue as lines without their ends, rewritten as plain values.

using text_lines = std::vector<std::string>;

inline constexpr int first_own_number = 600, last_own_number = 998;

/// "[Design600]"
std::string design_header(int number);

/// The number in the last four characters of a line that begins "[Design", read from their first `signs`;
/// nothing for any other line.
std::optional<double> number_of_header(std::string_view line, std::size_t signs = 4);

/// True when a line says "Name=" and that name, in either case; sections make no difference.
bool holds_name(const text_lines & catalogue, std::string_view name);

/// What a new section is made of.
struct design_to_save {
    using layout = saved_layout;
    enum class part { absent, present };
    int number = 0;
    std::string name;
    layout kind = layout::quick;
    orientation background = orientation::portrait;
    part sample = part::absent, description = part::absent;
};

/// The lines of its section, an empty one in front.
text_lines saved_section(const design_to_save & design);

/// The number of the first design of that name in a section above 499: the name as it stands, or as a list
/// shows it.
std::optional<int> number_of_design(const text_lines & catalogue, std::string_view name);

/// The number of that very design, if its section is one above 499 and still has its name.
std::optional<int> number_of_design(const text_lines & catalogue, const listed_design & design);

/// The designs in sections above 499, in the order of the catalogue.
std::vector<listed_design> designs_of_users(const text_lines & catalogue);

/// The sections of that number.
text_lines section_of(const text_lines & catalogue, int number);

/// The catalogue without the sections of that number.
text_lines without_design(const text_lines & catalogue, int number);

/// The files that belong to the sections of that number and to no other, as paths below the data folder:
/// "designs/saved600". A name that isn't a plain one, or holds "not_yet", stands for no file.
text_lines files_of_design(const text_lines & catalogue, int number);

/// True when a section names that file, given as above.
bool names_file(const text_lines & catalogue, std::string_view path);

/// The catalogue with a section of that number in its place: instead of one of the same number, in front of
/// the first one above it, else at the end under a number of the program's choosing, from 601 up, that is
/// free. A number above 998 says that the section replaces none: only the same design, one of the user's with
/// that name and those files, makes room for it, and further copies of it go. Each way the section has
/// exactly one header, its own or one made here. Nothing when no number up to 998 is left.
std::optional<text_lines> with_section(const text_lines & catalogue, double number, text_lines section);
