#include "support/numbers.h"

#include "support/platform_error.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

[[noreturn]] void overflow()
{
    throw platform_error(error_number::overflow, "A number is out of range.");
}

int in_32_bits(double value)
{
    if (!(value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max()))
        overflow();
    return static_cast<int>(value);
}

bool is_blank(char sign)
{
    return sign == ' ' || sign == '\t' || sign == '\n' || sign == '\r';
}

bool is_digit(char sign)
{
    return sign >= '0' && sign <= '9';
}

std::string without_blanks(std::string_view text)
{
    std::string kept;
    for (const char sign : text)
        if (!is_blank(sign))
            kept += sign;
    return kept;
}

std::size_t digits_at(const std::string & text, std::size_t start)
{
    std::size_t end = start;
    while (end < text.size() && is_digit(text[end]))
        ++end;
    return end - start;
}

// &HFFFF and &O17: 16 bits are signed, as in classic Basic, so &HFFFF is -1; longer ones are 32 bits.
double radix_number(const std::string & text)
{
    const int base = (text[1] == 'H' || text[1] == 'h') ? 16 : 8;
    const unsigned long long value = std::strtoull(text.c_str() + 2, nullptr, base);
    if (value <= 0xFFFF)
        return static_cast<std::int16_t>(value);
    if (value > 0xFFFFFFFFULL)
        overflow();
    return static_cast<std::int32_t>(value);
}

bool has_radix(const std::string & text)
{
    if (text.size() < 3 || text[0] != '&')
        return false;
    const char third = text[2];
    const bool octal = third >= '0' && third <= '7';
    const bool hex = is_digit(third) || (third >= 'a' && third <= 'f') || (third >= 'A' && third <= 'F');
    return ((text[1] == 'H' || text[1] == 'h') && hex) || ((text[1] == 'O' || text[1] == 'o') && octal);
}

// The longest start of `text` that is a decimal number, with a D of the exponent turned into E.
std::string decimal_start(const std::string & text)
{
    std::size_t end = (!text.empty() && (text[0] == '-' || text[0] == '+')) ? 1 : 0;
    const std::size_t before = digits_at(text, end);
    end += before;
    std::size_t behind = 0;
    if (end < text.size() && text[end] == '.') {
        behind = digits_at(text, end + 1);
        end += 1 + behind;
    }
    if (before + behind == 0)
        return {};
    std::string number = text.substr(0, end);
    if (end >= text.size() || std::string_view("eEdD").find(text[end]) == std::string_view::npos)
        return number;
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+'))
        ++exponent;
    const std::size_t length = digits_at(text, exponent);
    if (length > 0)
        number += "e" + text.substr(end + 1, exponent - end - 1 + length);
    return number;
}

}  // namespace

int nearest(double value)
{
    return in_32_bits(std::nearbyint(value));
}

int whole(double value)
{
    return in_32_bits(std::floor(value));
}

int16 narrow(long value)
{
    if (value < std::numeric_limits<int16>::min() || value > std::numeric_limits<int16>::max())
        overflow();
    return static_cast<int16>(value);
}

int16 nearest16(double value)
{
    return narrow(nearest(value));
}

int16 product16(int left, int right)
{
    return narrow(static_cast<long>(left) * right);
}

double leading_number(std::string_view text)
{
    const std::string dense = without_blanks(text);
    if (has_radix(dense))
        return radix_number(dense);
    const std::string number = decimal_start(dense);
    const double value = number.empty() ? 0.0 : std::strtod(number.c_str(), nullptr);
    if (!std::isfinite(value))
        overflow();
    return value;
}

std::string formatted(int value, int digits)
{
    const std::string plain =
        std::to_string(value < 0 ? -static_cast<long>(value) : static_cast<long>(value));
    const std::size_t missing = plain.size() < static_cast<std::size_t>(digits) ? digits - plain.size() : 0;
    return (value < 0 ? "-" : "") + std::string(missing, '0') + plain;
}
