#include "tests/desktop/seen_pixels.h"

#include <algorithm>
#include <vector>

namespace {

bool is_of_line(QRgb pixel)
{
    return qBlue(pixel) - qRed(pixel) >= 8 && qGreen(pixel) >= 52 && qGreen(pixel) < 90;
}

std::vector<QRgb> row_of(const QImage & pixels, int y)
{
    std::vector<QRgb> row(static_cast<std::size_t>(pixels.width()));
    for (int x = 0; x < pixels.width(); ++x)
        row[static_cast<std::size_t>(x)] = pixels.pixel(x, y);
    return row;
}

}  // namespace

std::map<QRgb, int> colors_of(const QImage & pixels)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < pixels.height(); ++y) {
        std::vector<QRgb> row = row_of(pixels, y);
        std::ranges::sort(row);
        for (auto at = row.begin(); at != row.end();) {
            const auto end = std::upper_bound(at, row.end(), *at);
            counts[*at] += static_cast<int>(end - at);
            at = end;
        }
    }
    return counts;
}

QRgb ground_color(const std::map<QRgb, int> & counts)
{
    const auto most = std::ranges::max_element(counts, {}, [](const auto & each) { return each.second; });
    return most == counts.end() ? 0 : most->first;
}

int longest_line(const QImage & pixels)
{
    int longest = 0;
    for (int y = 0; y < pixels.height(); ++y) {
        int run = 0;
        for (const QRgb each : row_of(pixels, y)) {
            run = is_of_line(each) ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    }
    return longest;
}
