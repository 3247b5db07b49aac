#include "recipes/value_text.h"

#include "support/real_text.h"

#include <array>

std::string real_text(double value)
{
    std::array<char, 64> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

std::optional<double> real_in(const std::string & text, double least, double most)
{
    const real_read read = real_at_start(text);
    const bool is_whole = read.fault == std::errc{} && read.length == text.size();
    return is_whole && read.value >= least && read.value <= most ? std::optional(read.value) : std::nullopt;
}
