#include "support/real_text.h"

#include <charconv>

#ifndef __cpp_lib_to_chars

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <string>

// A library without std::from_chars for real numbers. What the C library would take beside them is cut off
// first.
real_read real_at_start(std::string_view text)
{
    static const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const std::string number(text.substr(0, text.find_first_not_of("0123456789.eE+-")));
    if (number.empty() || number.front() == '+')
        return {.fault = std::errc::invalid_argument};
    char * end = nullptr;
    errno = 0;
    const double value = ::strtod_l(number.c_str(), &end, plain);
    const auto length = static_cast<std::size_t>(end - number.c_str());
    if (length == 0)
        return {.fault = std::errc::invalid_argument};
    if (errno == ERANGE && (value == 0 || std::isinf(value)))
        return {.length = length, .fault = std::errc::result_out_of_range};
    return {.value = value, .length = length};
}

#else

real_read real_at_start(std::string_view text)
{
    real_read read;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), read.value);
    read.length = static_cast<std::size_t>(end - text.data());
    read.fault = fault;
    return read;
}

#endif
