#pragma once

#include "engine/pixels/rotation_numbers.h"

#include <vector>

/// Finds the numbers of `rotate.ini`: the bounds of the turned photo give the area, the library's own turn
/// gives the places in it, and a search over slightly larger areas finds those whose whole numbers err least
/// when they are scaled.

/// The side that is longer in the photo that the numbers are made for.
enum class lying { landscape, portrait };

/// One way in which the numbers are used.
struct scaling {
    double factor = 1;
    int divisor = 1;    ///< 1: full size
    double weight = 1;  ///< how much it counts in the search
};

/// The scalings that occur: full size up to 900 pixels a side with a frame, and the four sizes of a preview.
std::vector<scaling> usual_scalings();

/// How far the photo's corner lies off its place with these numbers, in pixels, x and y down.
picture_point corner_error(const rotation_numbers & numbers, int rotation, const scaling & used);

/// How far the background comes back beside its place.
picture_point ground_error(const rotation_numbers & numbers, int rotation, const scaling & used);

/// True when photo, frame and shadow fit into the turned area and into what is copied back, for every
/// scaling.
bool holds_all(const rotation_numbers & numbers, lying photo, int rotation);

/// The best numbers; the same every time.
rotation_numbers searched_numbers(lying photo, int rotation);

/// All rotations that have sections, in the order of the file.
std::vector<int> table_rotations();

/// "L05" and the like.
std::string section_of(lying photo, int rotation);
