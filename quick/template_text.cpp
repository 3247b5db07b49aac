#include "quick/template_text.h"

std::vector<std::string> fields_of(std::string_view line)
{
    return split(line, ':', std::string_view::npos);
}

int16 number_at(const std::vector<std::string> & fields, std::size_t index)
{
    return nearest16(leading_number(field_at(fields, index)));
}

std::optional<std::vector<std::string>> section_of(line_source & lines, std::string_view header)
{
    bool found = false;
    while (!found && !lines.at_end())
        found = lines.read_line() == header;
    if (!found)
        return std::nullopt;
    std::vector<std::string> section;
    while (!lines.at_end()) {
        std::string line = lines.read_line();
        if (line.starts_with('['))
            break;
        section.push_back(std::move(line));
    }
    return section;
}
