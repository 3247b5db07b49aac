#include "designers/lettering/lettering_text.h"

namespace {

constexpr int landscape_limit = 28, usual_limit = 18;  // characters on a line
constexpr int grace = 10;                              // characters until a word is cut

constexpr std::string_view line_ends = "\r\n";

// A byte that continues a character of UTF-8.
bool is_continuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

bool is_ascii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80U;
}

}  // namespace

std::string plain_text(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char byte = text[i];
        const bool pair = byte == '\r' && text.substr(i, 2) == line_ends;
        if (byte == '\r' || byte == '\n')
            plain += line_ends;
        else if (is_ascii(byte))
            plain += byte;
        else if (!is_continuation(byte))
            plain += '?';
        if (pair)
            ++i;
    }
    return plain;
}

std::string normalize_text(std::string_view text, poster_shape shape)
{
    const int limit = shape == poster_shape::landscape ? landscape_limit : usual_limit;
    std::string broken;
    int length = 0, countdown = 0;
    for (const char sign : text) {
        broken += sign;
        if (sign == '\r' || sign == '\n') {
            length = countdown = 0;
            continue;
        }
        ++length;
        if (countdown == 0) {
            countdown = length > limit ? grace : 0;
        } else if (sign == ' ' || countdown == 1) {
            broken += "\n\r";
            length = countdown = 0;
        } else {
            --countdown;
        }
    }
    return broken;
}

bool is_capital(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

bool is_lettered(char sign)
{
    return is_capital(sign) || (sign >= 'a' && sign <= 'z') || (sign >= '0' && sign <= '9');
}

std::string with_gaps(std::string text)
{
    for (char & sign : text)
        if (!is_lettered(sign) && sign != '\r' && sign != '\n')
            sign = ' ';
    return text;
}
