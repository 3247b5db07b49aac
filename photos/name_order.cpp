#include "photos/name_order.h"

#include "support/letter_case.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace {

bool is_digit(char sign)
{
    return sign >= '0' && sign <= '9';
}

// Takes the number that the text begins with off it; leading zeros are left out.
std::string_view take_number(std::string_view & text)
{
    const auto end = std::ranges::find_if_not(text, is_digit);
    std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

// Numbers of any length: the one with more digits is larger.
std::strong_ordering compared_as_numbers(std::string_view number, std::string_view other)
{
    const std::strong_ordering by_length = number.size() <=> other.size();
    return by_length != std::strong_ordering::equal ? by_length : number <=> other;
}

std::strong_ordering compared(std::string_view name, std::string_view other)
{
    while (!name.empty() && !other.empty()) {
        std::strong_ordering order = std::strong_ordering::equal;
        if (is_digit(name.front()) && is_digit(other.front())) {
            order = compared_as_numbers(take_number(name), take_number(other));
        } else {
            order = static_cast<unsigned char>(name.front()) <=> static_cast<unsigned char>(other.front());
            name.remove_prefix(1);
            other.remove_prefix(1);
        }
        if (order != std::strong_ordering::equal)
            return order;
    }
    return name.size() <=> other.size();
}

}  // namespace

bool stands_before(std::string_view name, std::string_view other)
{
    const std::strong_ordering order = compared(upper_case(name), upper_case(other));
    return order != std::strong_ordering::equal ? order == std::strong_ordering::less : name < other;
}

std::vector<std::string> in_name_order(std::vector<std::string> names)
{
    std::ranges::sort(names, stands_before);
    return names;
}
