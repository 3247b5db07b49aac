#pragma once

#include <string_view>
#include <system_error>

/// A real number at the start of a text: what std::from_chars says of it.
struct real_read {
    double value = 0;        ///< 0 where there is a fault
    std::size_t length = 0;  ///< how many signs of the text belong to it
    std::errc
        fault{};  ///< invalid_argument without a number, result_out_of_range for one that no double holds
};

/// Reads it in decimal, with a point whatever the locale, and an exponent if there is one; neither blanks nor
/// "+" may lead.
real_read real_at_start(std::string_view text);
