#include "designs/catalogue/design_name.h"

#include <map>

namespace {

constexpr std::string_view before_number = "Design";

bool is_control(char sign)
{
    const auto code = static_cast<unsigned char>(sign);
    return code < 32 || code == 127;
}

// In UTF-8: U+0080 to U+009F, and the separators of lines and paragraphs, U+2028 and U+2029.
bool has_wide_control(std::string_view text)
{
    for (std::size_t at = 0; at + 1 < text.size(); ++at)
        if (text[at] == '\xC2' && static_cast<unsigned char>(text[at + 1]) < 0xA0)
            return true;
    return text.find("\xE2\x80\xA8") != std::string_view::npos ||
           text.find("\xE2\x80\xA9") != std::string_view::npos;
}

std::string number_in(const std::string & section)
{
    return section.starts_with(before_number) ? section.substr(before_number.size()) : section;
}

}  // namespace

bool is_one_line(std::string_view text)
{
    for (const char sign : text)
        if (is_control(sign))
            return false;
    return !has_wide_control(text);
}

std::vector<listed_design> told_apart(std::vector<listed_design> designs)
{
    std::map<std::string, int> counts;
    for (const listed_design & design : designs)
        ++counts[design.name];
    for (listed_design & design : designs)
        design.shown =
            counts[design.name] == 1 ? design.name : design.name + " (" + number_in(design.section) + ")";
    return designs;
}
