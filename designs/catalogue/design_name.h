#pragma once

#include "designs/catalogue/listed_design.h"

#include <string_view>
#include <vector>

/// Names of designs, as they are typed and as lists show them.

/// True for a text without line breaks and other control characters, those beyond ASCII as well.
bool is_one_line(std::string_view text);

/// The designs with the texts by which lists show them: "Heart", or "Heart (602)" and "Heart (605)".
std::vector<listed_design> told_apart(std::vector<listed_design> designs);
