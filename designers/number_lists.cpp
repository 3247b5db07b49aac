#include "designers/number_lists.h"

#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr double largest = 9999;

}  // namespace

int number_of(const combo_box & list)
{
    return nearest(std::clamp(leading_number(list.text()), -largest, largest));
}

void offer_numbers(combo_box & list, const number_row & offered)
{
    std::vector<std::string> items;
    for (int number = offered.first; number <= offered.last; number += offered.step)
        items.push_back(formatted(number));
    list.set_items(std::move(items));
}

void set_number(combo_box & list, int number)
{
    if (number_of(list) != number)
        list.set_text(formatted(number));
}
