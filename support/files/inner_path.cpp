#include "support/files/inner_path.h"

#include "support/files/paths.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t longest_inner_name = 200;
constexpr std::size_t longest_shown = 120;
constexpr int deepest = 8;

constexpr std::array<std::string_view, 6> devices{"con", "prn", "aux", "nul", "conin$", "conout$"};
// Behind "com" and "lpt": a digit, or one of the three that are written small and high.
constexpr std::string_view port_digits = "0123456789";
constexpr std::array<std::string_view, 3> high_digits{"\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};

bool is_control(char sign)
{
    const auto code = static_cast<unsigned char>(sign);
    return code < 32 || code == 127;
}

bool is_forbidden(char sign)
{
    return is_control(sign) || std::string_view("/\\:*?\"<>|").find(sign) != std::string_view::npos;
}

bool is_port(std::string_view name)
{
    if (!name.starts_with("com") && !name.starts_with("lpt"))
        return false;
    const std::string_view rest = name.substr(3);
    const bool plain_digit = rest.size() == 1 && port_digits.find(rest.front()) != std::string_view::npos;
    return plain_digit || std::ranges::find(high_digits, rest) != high_digits.end();
}

// A device is one whatever ending its name has, and whatever blanks stand in front of the ending.
bool is_device(std::string_view name)
{
    std::string stem = lower_case(name.substr(0, name.find('.')));
    stem.erase(stem.find_last_not_of(' ') + 1);
    return std::ranges::find(devices, stem) != devices.end() || is_port(stem);
}

}  // namespace

bool is_plain_name(std::string_view name)
{
    if (name.empty() || name.size() > longest_inner_name || name.back() == '.' || name.back() == ' ')
        return false;
    return std::ranges::none_of(name, is_forbidden) && !is_device(name);
}

std::optional<std::string> inner_path(std::string_view text)
{
    std::string path;
    for (int depth = 0; depth < deepest; ++depth) {
        const std::size_t at = text.find_first_of("/\\");
        const std::string_view name = text.substr(0, at);
        if (!is_plain_name(name))
            return std::nullopt;
        path += (path.empty() ? "" : "/") + std::string(name);
        if (at == std::string_view::npos)
            return path;
        text.remove_prefix(at + 1);
    }
    return std::nullopt;
}

std::string shown_in_message(std::string_view text)
{
    std::string shown(text.substr(0, longest_shown));
    std::ranges::replace_if(shown, is_control, '?');
    return shown;
}
