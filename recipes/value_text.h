#pragma once

#include <charconv>
#include <optional>
#include <string>

/// Numbers as a recipe has them: with a point, whatever the locale says, and read back to the same bits.

std::string real_text(double value);

/// The number that the whole text is; nothing for another text and for one out of the range.
std::optional<double> real_in(const std::string & text, double least, double most);

/// Likewise a whole number.
template <typename Number>
std::optional<Number> whole_number_in(const std::string & text, Number least, Number most)
{
    Number read{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), read);
    const bool is_whole = fault == std::errc{} && end == text.data() + text.size();
    return is_whole && read >= least && read <= most ? std::optional(read) : std::nullopt;
}
