#include "designs/browser/description.h"

namespace {

const std::string ellipsis = "\xE2\x80\xA6";

// So many bytes, or up to three less: no letter of UTF-8 is cut.
std::string beginning(const std::string & line, std::size_t bytes)
{
    const auto is_inside = [&](std::size_t at) {
        return (static_cast<unsigned char>(line[at]) & 0xC0U) == 0x80U;
    };
    std::size_t end = bytes;
    while (end > 0 && bytes - end < 3 && is_inside(end))
        --end;
    return line.substr(0, end);
}

}  // namespace

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
    std::size_t taken = 0;
    while (!lines.at_end()) {
        const std::string line = lines.read_line();
        if (line.starts_with('['))
            break;
        if (taken + line.size() > longest_description)
            return text + beginning(line, longest_description - taken) + ellipsis;
        taken += line.size() + 1;
        if (line.ends_with('_'))
            text.append(line, 0, line.size() - 1);
        else
            text += line + "\r\n";
        if (taken >= longest_description && !lines.at_end())
            return text + ellipsis;
    }
    return text;
}
