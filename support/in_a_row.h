#pragma once

#include <string>
#include <vector>

/// The texts in one line, with commas between them.
inline std::string in_a_row(const std::vector<std::string> & texts)
{
    std::string row;
    for (const std::string & text : texts)
        row += (row.empty() ? "" : ", ") + text;
    return row;
}
