#include "batch/page_ground.h"

#include "engine/background.h"
#include "engine/canvas.h"
#include "engine/output/flurn_file.h"

#include <algorithm>
#include <cstdlib>

namespace {

// Index of a row of `count` that goes to its end, back to its start, and so on; 0 stands at 0.
std::size_t there_and_back(int at, int count)
{
    const int around = 2 * count;
    const int step = (at % around + around) % around;
    return static_cast<std::size_t>(step < count ? step : around - 1 - step);
}

}  // namespace

bool is_own_ground_wanted(const batch_arguments & arguments)
{
    if (arguments.around.empty())
        return arguments.bleed.value_or(0) > 0;
    return arguments.around == "ground";
}

own_ground ground_of_page(frmMain & main, const page_plan & plan, picture_size poster)
{
    // Behind photos nobody looks for more than the full size has.
    const int long_side = std::max(poster.width, poster.height);
    const picture_size below = saved_size(poster, std::min(long_side, full_long_side));
    const bitmap picture = ground_picture(main, below);
    own_ground ground{.color = ground_color(main)};
    if (!picture)
        return ground;
    const double a_point = below.width / plan.poster_width;
    ground.size = {.width = nearest(plan.whole_width() * a_point),
                   .height = nearest(plan.whole_height() * a_point)};
    ground.jpeg = jpeg_bytes(
        mirrored_around(picture, ground.size, nearest(plan.left * a_point), nearest(plan.bottom * a_point)));
    return ground;
}

bitmap mirrored_around(const bitmap & image, picture_size size, int left, int bottom)
{
    bitmap whole(image ? size.width : 0, size.height);
    for (int y = 0; y < whole.height(); ++y) {
        const std::span<const pixel> source =
            image.row(static_cast<int>(there_and_back(y - bottom, image.height())));
        const std::span<pixel> row = whole.row(y);
        for (int x = 0; x < whole.width(); ++x)
            row[static_cast<std::size_t>(x)] = source[there_and_back(x - left, image.width())];
    }
    return whole;
}
