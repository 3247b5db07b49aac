#include "engine/pixels/soft_edge_paste.h"

#include "engine/pixels/rectangles.h"
#include "engine/pixels/soft_classes.h"
#include "support/numbers.h"

#include <algorithm>
#include <vector>

namespace {

/// Alpha of the ring whose middle lies `i` pixels of the layout outside the core. Of the widest class the
/// last one would come out as -1, which the library takes for an opaque line.
int ring_alpha(const soft_class & edge, double i)
{
    return std::max(nearest(255 - i * edge.step), 0);
}

/// The outermost pixels of an area, each in one strip: laid twice, the corners would show as a thin line from
/// ring to ring.
std::vector<rectangle> strips_of(const rectangle & area)
{
    if (area.width < 1 || area.height < 1)
        return {};
    if (area.width == 1 || area.height == 1)
        return {area};
    const int inner = area.width - 2;
    std::vector<rectangle> strips{
        {.left = area.left, .top = area.top, .width = 1, .height = area.height},
        {.left = area.right() - 1, .top = area.top, .width = 1, .height = area.height}};
    if (inner > 0) {
        strips.push_back({.left = area.left + 1, .top = area.top, .width = inner, .height = 1});
        strips.push_back({.left = area.left + 1, .top = area.bottom() - 1, .width = inner, .height = 1});
    }
    return strips;
}

}  // namespace

void soft_edge_paste(bitmap & target, const bitmap & image, const rectangle & place, int scale)
{
    const soft_class edge = soft_class_of(std::min(place.width, place.height));
    const auto part = [&](const rectangle & area, int alpha) {
        paste_rectangle(target, image, area,
                        {.left = place.left * scale + area.left, .top = place.top * scale + area.top}, alpha);
    };
    const rectangle photo{.left = 0, .top = 0, .width = place.width * scale, .height = place.height * scale};
    const int rings = edge.feather * scale;
    const rectangle core = grown(photo, -rings);
    if (core.width > 0 && core.height > 0)
        part(core, plain_copy);
    for (int i = 1; i <= rings; ++i)
        for (const rectangle & strip : strips_of(grown(photo, i - rings)))
            part(strip, ring_alpha(edge, (i - 0.5) / scale + 0.5));
}
