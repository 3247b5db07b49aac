#include "support/letter_case.h"

#include <array>

namespace {

struct letter_range {
    unsigned first = 0, last = 0, step = 0;  // step: to the capital; 1 stands for pairs of one and the other
};

// The letters in two bytes of UTF-8. Pairs whose small letter is the odd or the even one stand apart.
constexpr std::array ranges{letter_range{0xE0, 0xF6, 0x20},   letter_range{0xF8, 0xFE, 0x20},
                            letter_range{0x3B1, 0x3C1, 0x20}, letter_range{0x3C3, 0x3CB, 0x20},
                            letter_range{0x430, 0x44F, 0x20}, letter_range{0x450, 0x45F, 0x50}};
constexpr std::array odd_pairs{letter_range{0x101, 0x12F, 1}, letter_range{0x133, 0x137, 1},
                               letter_range{0x14B, 0x177, 1}};
constexpr std::array even_pairs{letter_range{0x13A, 0x148, 1}, letter_range{0x17A, 0x17E, 1}};

bool holds(const letter_range & range, unsigned letter)
{
    return letter >= range.first && letter <= range.last;
}

unsigned capital(unsigned letter)
{
    for (const letter_range & range : ranges)
        if (holds(range, letter))
            return letter - range.step;
    for (const letter_range & range : odd_pairs)
        if (holds(range, letter))
            return letter - (letter & 1U);
    for (const letter_range & range : even_pairs)
        if (holds(range, letter))
            return letter - (~letter & 1U);
    return letter;
}

unsigned byte_at(std::string_view text, std::size_t at)
{
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
}

bool is_pair(std::string_view text, std::size_t at)
{
    return (byte_at(text, at) & 0xE0U) == 0xC0U && (byte_at(text, at + 1) & 0xC0U) == 0x80U;
}

}  // namespace

std::string upper_case(std::string_view text)
{
    std::string upper;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (is_pair(text, at)) {
            const unsigned letter =
                capital((byte_at(text, at) & 0x1FU) << 6U | (byte_at(text, at + 1) & 0x3FU));
            upper += static_cast<char>(0xC0U | letter >> 6U);
            upper += static_cast<char>(0x80U | (letter & 0x3FU));
            ++at;
        } else {
            const char sign = text[at];
            upper += sign >= 'a' && sign <= 'z' ? static_cast<char>(sign - 'a' + 'A') : sign;
        }
    }
    return upper;
}
