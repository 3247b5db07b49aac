#include "designers/matrix/matrix_fit.h"

#include "designers/poster_area.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr double long_side = 1.34, short_side = 0.66, tolerance = 0.05;
constexpr int most = 999;  // of counts that are offered for the thinnest cells

// The direction whose count is given, and the one whose count is sought.
struct direction {
    int length = 0, borders = 0, gap = 0;
};

// `wanted`: side of a cell in the direction that is sought over its side in the given one.
count_range fitted(const direction & given, int count, const direction & sought, double wanted)
{
    const int cell = nearest((given.length - ((count - 1.0) * given.gap + given.borders)) / count);
    const int room = sought.length - (sought.borders + sought.gap);
    const auto count_for = [&](double ratio) {
        const int step = sought.gap + nearest(cell * ratio);
        return step < 1 ? 1 : std::clamp(nearest(static_cast<double>(room) / step), 1, most);
    };
    const int low = count_for(wanted + tolerance);
    return {.low = low, .high = std::max(low, count_for(wanted - tolerance))};
}

direction across(const matrix_choices & choices)
{
    return {.length = whole_poster(choices.poster).width,
            .borders = choices.borders.left + choices.borders.right,
            .gap = choices.gap_h};
}

direction down(const matrix_choices & choices)
{
    return {.length = whole_poster(choices.poster).height,
            .borders = choices.borders.top + choices.borders.bottom,
            .gap = choices.gap_v};
}

}  // namespace

count_range fitted_rows(const matrix_choices & choices)
{
    const bool lying = choices.photos == matrix_photos::landscape;
    return fitted(across(choices), choices.columns, down(choices), lying ? short_side : long_side);
}

count_range fitted_columns(const matrix_choices & choices)
{
    const bool lying = choices.photos == matrix_photos::landscape;
    return fitted(down(choices), choices.rows, across(choices), lying ? long_side : short_side);
}
