#include "tests/engine/gif_file.h"

#include <algorithm>
#include <iterator>

namespace {

std::string little_endian(std::size_t value)
{
    return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

std::string palette_of(const std::map<char, rgb_triple> & colors)
{
    std::string palette;
    for (const auto & [letter, color] : colors)
        palette +=
            {static_cast<char>(color.red), static_cast<char>(color.green), static_cast<char>(color.blue)};
    palette.resize(std::size_t{128} * 3);
    return palette;
}

/// Codes of 8 bits: a clear code in good time keeps the decoder from ever taking more bits.
std::string codes_of(const std::vector<std::string> & rows, const std::map<char, rgb_triple> & colors)
{
    constexpr char clear = '\x80', end = '\x81';
    constexpr std::size_t before_clear = 100;
    std::string codes;
    for (const std::string & row : rows)
        for (const char letter : row) {
            if (codes.size() % before_clear == 0)
                codes += clear;
            codes += static_cast<char>(std::distance(colors.begin(), colors.find(letter)));
        }
    return codes + end;
}

}  // namespace

std::string gif_of(const std::vector<std::string> & rows, const std::map<char, rgb_triple> & colors)
{
    const std::string size = little_endian(rows.front().size()) + little_endian(rows.size());
    std::string gif = "GIF89a" + size + std::string("\xE6\x00\x00", 3) + palette_of(colors);
    gif += ',' + std::string(4, '\0') + size + std::string("\x00\x07", 2);
    const std::string codes = codes_of(rows, colors);
    for (std::size_t at = 0; at < codes.size(); at += 255) {
        const std::string block = codes.substr(at, 255);
        gif += static_cast<char>(block.size()) + block;
    }
    return gif + std::string("\x00;", 2);
}
