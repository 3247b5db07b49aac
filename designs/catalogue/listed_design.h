#pragma once

#include <string>

/// A design of the catalogue.
struct listed_design {
    std::string section;  ///< "Design602"
    std::string name;
    std::string shown{};  ///< the name, with the section's number behind it where others have the same name
};
