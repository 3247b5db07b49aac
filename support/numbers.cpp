#include "support/numbers.h"

#include "support/platform_error.h"
#include "support/real_text.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

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

int radix_of(char letter)
{
    switch (letter) {
        case 'H':
        case 'h':
            return 16;
        case 'O':
        case 'o':
            return 8;
        default:
            return 0;
    }
}

// &HFFFF and &O17: 16 bits are signed, as in classic Basic, so &HFFFF is -1; longer ones are 32 bits.
std::optional<double> radix_number(std::string_view text)
{
    const int radix = text.size() > 2 && text[0] == '&' ? radix_of(text[1]) : 0;
    if (radix == 0)
        return std::nullopt;
    std::uint32_t value = 0;
    const auto [end, fault] = std::from_chars(text.data() + 2, text.data() + text.size(), value, radix);
    if (fault == std::errc::result_out_of_range)
        overflow();
    if (fault != std::errc())
        return std::nullopt;
    if (value <= 0xFFFF)
        return static_cast<std::int16_t>(value);
    return static_cast<std::int32_t>(value);
}

// A decimal number, as far as the text begins with one.
struct decimal {
    std::string digits;    // sign, digits and point; empty when there is none
    std::string exponent;  // sign and digits
};

std::size_t sign_at(const std::string & text, std::size_t start)
{
    return start < text.size() && (text[start] == '-' || text[start] == '+') ? 1 : 0;
}

decimal decimal_start(const std::string & text)
{
    std::size_t end = sign_at(text, 0);
    const std::size_t before = digits_at(text, end);
    end += before;
    std::size_t behind = 0;
    if (end < text.size() && text[end] == '.') {
        behind = digits_at(text, end + 1);
        end += 1 + behind;
    }
    if (before + behind == 0)
        return {};
    decimal number{.digits = text.substr(0, end), .exponent = {}};
    if (end < text.size() && std::string_view("eEdD").find(text[end]) != std::string_view::npos) {
        const std::size_t sign = sign_at(text, end + 1);
        const std::size_t length = digits_at(text, end + 1 + sign);
        if (length > 0)
            number.exponent = text.substr(end + 1, sign + length);
    }
    return number;
}

// Of a number that no double holds: whether it is too near to 0 and not too far from it.
bool is_tiny(const decimal & number)
{
    if (!number.exponent.empty())
        return number.exponent.front() == '-';
    return number.digits[number.digits.find_first_of("123456789.")] == '.';
}

// The nearest double. Without regard to the locale, which may want a comma where files have a point.
double value_of(const decimal & number)
{
    std::string text = number.digits;
    if (!number.exponent.empty())
        text += "e" + number.exponent;
    const std::size_t start = text.front() == '+' ? 1 : 0;
    const real_read read = real_at_start(std::string_view(text).substr(start));
    if (read.fault == std::errc::result_out_of_range && !is_tiny(number))
        overflow();
    return read.value;
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
    if (const std::optional<double> number = radix_number(dense))
        return *number;
    const decimal number = decimal_start(dense);
    return number.digits.empty() ? 0 : value_of(number);
}

std::string formatted(int value, int digits)
{
    const std::string plain =
        std::to_string(value < 0 ? -static_cast<long>(value) : static_cast<long>(value));
    const auto wanted = static_cast<std::size_t>(digits);
    const std::size_t missing = plain.size() < wanted ? wanted - plain.size() : 0;
    return (value < 0 ? "-" : "") + std::string(missing, '0') + plain;
}
