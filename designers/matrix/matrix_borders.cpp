#include "designers/matrix/matrix_borders.h"

#include <algorithm>

namespace {

constexpr int along_limit = 2200, across_limit = 1400;
constexpr int spared_height = 400, spared_width = 500;  // of the limits of two borders together

void cut_together(int & first, int & second, int limit)
{
    const int over = first + second - limit;
    if (over > 0)
        (first >= second ? first : second) -= over;
}

}  // namespace

border_limits border_limits_of(poster_shape poster)
{
    if (poster == poster_shape::landscape)
        return {.height = across_limit, .width = along_limit};
    return {.height = along_limit, .width = across_limit};
}

poster_borders fitted_borders(poster_borders borders, const border_limits & limits)
{
    for (int * each : {&borders.top, &borders.bottom})
        *each = std::clamp(*each, 0, limits.height);
    for (int * each : {&borders.left, &borders.right})
        *each = std::clamp(*each, 0, limits.width);
    cut_together(borders.top, borders.bottom, 2 * limits.height - spared_height);
    cut_together(borders.left, borders.right, 2 * limits.width - spared_width);
    return borders;
}

poster_borders equal_borders(int wanted, const border_limits & limits)
{
    const int high = std::clamp(wanted, 0, limits.height), wide = std::clamp(wanted, 0, limits.width);
    return {.top = high, .bottom = high, .left = wide, .right = wide};
}
