#pragma once

#include <string>
#include <string_view>

/// The text in upper case, for names that count as one in either case: ASCII letters, and in valid UTF-8 the
/// letters of Latin, Greek and Cyrillic that have a capital of the same length. Anything else stays.
std::string upper_case(std::string_view text);
