#pragma once

#include <functional>

/// What each change of a single number of a table changes, two that are swapped too: the sum of what `number`
/// gives for each row, times the row's place from 1 on.
template <typename Table, typename Number>
long sum_by_place(const Table & table, Number number)
{
    long sum = 0, place = 0;
    for (const auto & row : table)
        sum += ++place * static_cast<long>(std::invoke(number, row));
    return sum;
}
