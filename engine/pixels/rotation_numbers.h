#pragma once

#include "engine/pixels/area_turn.h"
#include "support/rectangle.h"

#include <array>
#include <string>

/// The numbers by which a tilted photo finds its place. `rotate.ini` gives them for a photo of 450 by 300
/// pixels, or 300 by 450; all coordinates here count from the top.

/// One section of `rotate.ini`, in its keys' order in the file.
struct rotation_numbers {
    int grab_height = 0, grab_width = 0;  ///< size of the canvas area that is turned
    int grab_top = 0, grab_left = 0;      ///< how far above and left of the photo's place it starts
    int paste_top = 0, paste_left = 0;    ///< likewise where the result goes back
    int put_top = 0, put_left = 0;        ///< the photo's place in the turned area
    int copy_left = 0, copy_right = 0, copy_top = 0,
        copy_bottom = 0;  ///< what goes back of the area turned back
    bool operator==(const rotation_numbers &) const = default;
};

/// A key of a section and the number that it stands for.
struct rotation_key {
    const char * name;
    int rotation_numbers::*number;
};

extern const std::array<rotation_key, 12> rotation_keys;

/// Multiples of 5 stay. Of the others those whose rest is 3 or 4 become 5 more, and none has a section.
int rounded_rotation(int rotation);

/// "L05", "P-15": L for a location that is wider than high.
std::string rotation_section(int width, int height, int rotation);

/// How much larger the photo is than the one that the numbers are made for; 1 for smaller ones.
double reference_factor(int width, int height);

/// By what the numbers are divided in a preview.
int preview_divisor(int width, int height);

/// The numbers for a photo that is larger by `factor`, then divided by `divisor` (1 at full size), rounded
/// after each step.
rotation_numbers scaled(const rotation_numbers & numbers, double factor, int divisor);

/// Width of the frame beside the photo in the turned area; -1 for none below 10 degrees.
int frame_in_rotation(int frame_size, int rotation);

/// Frames that are wider than this in the turned area are drawn round the photo before it is turned.
inline constexpr int widest_turned_frame = 12;

/// The place turned by a quarter about its middle, roughly, when the photo lies across it. Raises overflow
/// (6).
rectangle evolved(const rectangle & place, picture_size photo);

/// The sizes that follow from the numbers.
struct tilt_sizes {
    picture_size grabbed, turned, back;
};

/// Empty sizes (0 by 0) for an empty area.
tilt_sizes tilt_sizes_of(const rotation_numbers & numbers, int rotation);

/// Where a point of the turned area comes to lie, as seen from the place of the location's corner on the
/// canvas.
picture_point on_canvas(const rotation_numbers & numbers, const tilt_sizes & sizes, int rotation,
                        picture_point point);
