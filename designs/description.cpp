#include "designs/description.h"

bool find_description(line_source & lines, std::string_view name)
{
    const std::string header = "[" + std::string(name) + "]";
    while (!lines.at_end())
        if (lines.read_line() == header)
            return true;
    return false;
}

std::string description_text(line_source & lines)
{
    std::string text;
    while (!lines.at_end()) {
        const std::string line = lines.read_line();
        if (line.starts_with('['))
            break;
        if (line.ends_with('_'))
            text.append(line, 0, line.size() - 1);
        else
            text += line + "\r\n";
    }
    return text;
}
