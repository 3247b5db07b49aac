#include "engine/pixels/soft_edge_paste.h"

#include "engine/pixels/rectangles.h"
#include "engine/pixels/soft_classes.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

/// Alpha of the ring `i` pixels outside the core. Of the widest class the last one would come out as -1,
/// which the library takes for an opaque line.
int ring_alpha(const soft_class & edge, int i)
{
    return std::max(nearest(255 - i * edge.step), 0);
}

}  // namespace

void soft_edge_paste(bitmap & target, const bitmap & image, const rectangle & place)
{
    const soft_class edge = soft_class_of(std::min(place.width, place.height));
    const auto part = [&](const rectangle & area, int alpha) {
        paste_rectangle(target, image, area, {.left = place.left + area.left, .top = place.top + area.top},
                        alpha);
    };
    const rectangle photo{.left = 0, .top = 0, .width = place.width, .height = place.height};
    part(grown(photo, -edge.feather), plain_copy);
    // Corners of a ring belong to two strips and are pasted twice, which rounds the fading off.
    for (int i = 1; i <= edge.feather; ++i) {
        const rectangle ring = grown(photo, i - edge.feather);
        const int alpha = ring_alpha(edge, i);
        part({.left = ring.left, .top = ring.top, .width = 1, .height = ring.height}, alpha);
        part({.left = ring.left, .top = ring.top, .width = ring.width, .height = 1}, alpha);
        part({.left = ring.right() - 1, .top = ring.top, .width = 1, .height = ring.height}, alpha);
        part({.left = ring.left, .top = ring.bottom() - 1, .width = ring.width, .height = 1}, alpha);
    }
}
