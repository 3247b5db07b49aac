#pragma once

#include "support/list_controls.h"

/// Lists of numbers whose text the user may type.

/// The whole number that the list's text begins with, within a range that leaves room to reckon with it.
int number_of(const combo_box & list);

/// Numbers that a list offers, the last one included.
struct number_row {
    int first = 0, last = 0, step = 1;
};

/// Offers the numbers; the text stays.
void offer_numbers(combo_box & list, const number_row & offered);

/// Shows the number, unless the text says it already.
void set_number(combo_box & list, int number);
