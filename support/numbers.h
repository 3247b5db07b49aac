#pragma once

#include <cstdint>
#include <string>
#include <string_view>

using int16 = std::int16_t;

/// Nearest whole number, ties to even. Raises overflow (6) beyond 32 bits or on NaN.
int nearest(double value);

/// The whole part, rounded down. Raises overflow (6) beyond 32 bits or on NaN.
int whole(double value);

/// The value in 16 bits. Raises overflow (6) when it does not fit.
int16 narrow(long value);

/// Nearest whole number in 16 bits, ties to even. Raises overflow (6).
int16 nearest16(double value);

/// Product and sum of two 16-bit numbers, formed in 16 bits: overflow (6) even where a later step would bring
/// it back.
int16 product16(int left, int right);

/// The number that the text begins with, read as classic Basic's `Val` does: blanks (tabs, line feeds) are
/// passed over anywhere, sign, digits, one point, an exponent with E or D, `&H` and `&O` for whole numbers.
/// Nothing readable is 0. Raises overflow (6) when the number leaves a double.
double leading_number(std::string_view text);

/// The number with at least `digits` digits, a minus sign in front: formatted(-5, 2) is "-05".
std::string formatted(int value, int digits = 1);
