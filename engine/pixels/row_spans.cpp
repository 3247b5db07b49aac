#include "engine/pixels/row_spans.h"

#include "support/numbers.h"

#include <algorithm>
#include <cstddef>

bool is_empty(const pixel_window & window)
{
    return window.left >= window.right || window.low >= window.high;
}

pixel_window common(const pixel_window & one, const pixel_window & other)
{
    return {.left = std::max(one.left, other.left),
            .low = std::max(one.low, other.low),
            .right = std::min(one.right, other.right),
            .high = std::min(one.high, other.high)};
}

row_spans spans_of(const pixel_window & window)
{
    return {.low = window.low,
            .rows = std::vector<column_span>(static_cast<std::size_t>(std::max(window.high - window.low, 0)),
                                             {.first = window.left, .last = window.right})};
}

row_spans spans_of(const std::vector<picture_point> & corners, double slack, const pixel_window & bounds)
{
    const auto lower = [](const picture_point & one, const picture_point & other) { return one.y < other.y; };
    const auto [lowest, highest] = std::ranges::minmax_element(corners, lower);
    row_spans spans{.low = std::max(whole(lowest->y - slack), bounds.low), .rows = {}};
    const int high = std::min(whole(highest->y + slack) + 1, bounds.high);
    for (int row = spans.low; row < high; ++row) {
        double first = bounds.right, last = bounds.left;
        // The part of each side that lies in the band of this row.
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const picture_point &from = corners[i], &to = corners[(i + 1) % corners.size()];
            const double band_low = row - slack, band_high = row + 1 + slack;
            const double side_low = std::min(from.y, to.y), side_high = std::max(from.y, to.y);
            if (side_high < band_low || side_low > band_high)
                continue;
            for (double y :
                 {std::clamp(band_low, side_low, side_high), std::clamp(band_high, side_low, side_high)}) {
                const double share = side_high > side_low ? (y - from.y) / (to.y - from.y) : 0;
                const double x = from.x + share * (to.x - from.x);
                first = std::min({first, x, side_high > side_low ? x : to.x});
                last = std::max({last, x, side_high > side_low ? x : to.x});
            }
        }
        spans.rows.push_back({.first = std::max(whole(first - slack), bounds.left),
                              .last = std::min(whole(last + slack) + 1, bounds.right)});
    }
    return spans;
}
