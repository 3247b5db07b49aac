#pragma once

#include <string>

/// A recipe that is kept, as far as a list tells of it.
struct kept_recipe {
    std::string file, picture;  ///< paths; the picture is empty when there is none
    std::string made, design;   ///< empty for one that can't be read
};
