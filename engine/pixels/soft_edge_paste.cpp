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

void soft_edge_paste(bitmap & target, const bitmap & image, int width, int height, int top, int left)
{
    const soft_class edge = soft_class_of(std::min(width, height));
    const auto part = [&](const rectangle & area, int alpha) {
        paste_rectangle(target, image, area, left + area.left, top + area.top, alpha);
    };
    part({edge.feather, edge.feather, width - edge.feather, height - edge.feather}, plain_copy);
    // Corners of a ring belong to two strips and are pasted twice, which rounds the fading off.
    for (int i = 1; i <= edge.feather; ++i) {
        const int from = edge.feather - i, right = width - from, bottom = height - from;
        const int alpha = ring_alpha(edge, i);
        part({from, from, from + 1, bottom}, alpha);
        part({from, from, right, from + 1}, alpha);
        part({right - 1, from, right, bottom}, alpha);
        part({from, bottom - 1, right, bottom}, alpha);
    }
}
