#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names of designs, as they are typed and as lists show them.

/// True for a text without line breaks and other control characters, those beyond ASCII as well.
bool is_one_line(std::string_view text);

/// A design of the catalogue.
struct listed_design {
    std::string section;  ///< "Design602"
    std::string name;
    std::string shown{};  ///< the name, with the section's number behind it where others have the same name
};

/// The designs with the texts by which lists show them: "Heart", or "Heart (602)" and "Heart (605)".
std::vector<listed_design> told_apart(std::vector<listed_design> designs);
