#pragma once

#include "designers/matrix/matrix_choices.h"

/// Counts of rows and columns that keep the cells near the shape which the photos ask for.

/// The counts from `low` to `high`, one at least, from 1 up.
struct count_range {
    int low = 1, high = 25;
    bool operator==(const count_range &) const = default;
};

/// What is offered while neither count leads the other.
inline constexpr count_range free_counts;

/// Counts of rows for the chosen count of columns, which is 1 or more.
count_range fitted_rows(const matrix_choices & choices);

/// Counts of columns for the chosen count of rows, which is 1 or more.
count_range fitted_columns(const matrix_choices & choices);
