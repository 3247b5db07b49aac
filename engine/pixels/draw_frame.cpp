#include "engine/pixels/draw_frame.h"

#include "engine/pixels/rectangles.h"

namespace {

/// From here on a photo is turned so far that its frame keeps its whole width.
constexpr int steep_rotation = 10;

}  // namespace

void draw_frame(bitmap & target, const rectangle & photo, const ornaments & worn, int rotation)
{
    if (worn.frame == 0 || worn.corners == photo_corners::rounded)
        return;
    // All bounds are inclusive, so a band is one line wider than this.
    const int wide = worn.frame - (rotation < steep_rotation && worn.size == run_size::full ? 1 : 0);
    const int row = target.height() / worn.scale - photo.bottom();
    const int outer_left = photo.left - 1 - wide, right = photo.right() + wide;
    const int low = row - 1 - wide, high = row + photo.height + wide;
    const auto band = [&](const pixel_bounds & bounds) {
        fill_bounds(target, enlarged(bounds, worn.scale), worn.frame_color);
    };
    band({.left = outer_left, .right = right, .low = low, .high = row - 1});
    band({.left = outer_left, .right = photo.left - 1, .low = low, .high = high});
    band({.left = photo.right(), .right = right, .low = low, .high = high});
    band({.left = outer_left, .right = right, .low = high - wide, .high = high});
}
