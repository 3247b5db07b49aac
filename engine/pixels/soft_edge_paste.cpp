#include "engine/pixels/soft_edge_paste.h"

#include "engine/pixels/rectangles.h"
#include "engine/pixels/soft_classes.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

/// Alpha of the ring whose middle lies `i` pixels of the layout outside the core. Of the widest class the
/// last one would come out as -1, which the library takes for an opaque line.
int ring_alpha(const soft_class & edge, double i)
{
    return std::max(nearest(255 - i * edge.step), 0);
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
    part(grown(photo, -rings), plain_copy);
    // Corners of a ring belong to two strips and are pasted twice, which rounds the fading off.
    for (int i = 1; i <= rings; ++i) {
        const rectangle ring = grown(photo, i - rings);
        const int alpha = ring_alpha(edge, (i - 0.5) / scale + 0.5);
        part({.left = ring.left, .top = ring.top, .width = 1, .height = ring.height}, alpha);
        part({.left = ring.left, .top = ring.top, .width = ring.width, .height = 1}, alpha);
        part({.left = ring.right() - 1, .top = ring.top, .width = 1, .height = ring.height}, alpha);
        part({.left = ring.left, .top = ring.bottom() - 1, .width = ring.width, .height = 1}, alpha);
    }
}
