#pragma once

#include "photos/lists/pls_line.h"

#include <optional>
#include <string>
#include <vector>

/// The text of a saved list of these photos, of which nobody has found out yet how they lie.
inline std::string list_text(const std::vector<std::string> & photos)
{
    std::string text;
    for (const std::string & photo : photos)
        text += list_line(std::nullopt, photo) + "\r\n";
    return text;
}
