#pragma once

#include "support/MFreeImage.h"

#include <functional>

/// The frames of a set, as far as they are geometry: two bands of colour, a band for the caption, an icon in
/// the corner. An upright frame has 347 by 520 pixels, one across 520 by 347. Rows count from the bottom
/// unless told otherwise.

inline constexpr picture_size portrait_size{.width = 347, .height = 520};
inline constexpr picture_size landscape_size{.width = 520, .height = 347};

/// A colour as screen controls hold it: the blue of its hexadecimal digits 1 and 2, the green of 3 and 4, the
/// red of 5 and 6.
rgb_triple split_color(std::uint32_t value);

/// An empty upright frame: the outer colour 7 rows wide at the bottom, 9 at the top, 8 columns at the sides.
bitmap portrait_ground(rgb_triple outside, rgb_triple inside);

/// One across, with a ribbon of the caption's colour up its left side, slanting up to the right.
bitmap landscape_ground(rgb_triple outside, rgb_triple inside, rgb_triple ribbon);

/// Cuts the caption band of a frame across slantwise at both ends.
void chamfer_band(bitmap & frame, rgb_triple inside);

/// The surface on which a caption is drawn, and what of it comes where in the frame. From the top.
struct caption_band {
    int width = 0, height = 0;          ///< of the surface
    int grow_margin = 0, tallest = 0;   ///< the size grows while the text leaves that much of the width free
    int fit_margin = 0, fit_below = 0;  ///< and then shrinks until it leaves this, and its line is lower
    double first_size = 0;              ///< points
    int line_room = 0;                  ///< the height in the middle of which the line stands
    int shift = 0;                      ///< of the text, to the right
    int cut_bottom = 0;                 ///< what is cut from the surface: 1, 1 to width - 15, this
    int left = 0, top = 0;              ///< its place in the frame
};

/// Room for an icon is left at the left of the upright band alone.
enum class icon_room { none, left };
caption_band portrait_band(icon_room room);
caption_band landscape_band();

/// The size in points in which a caption stands in the band: one less than fills it, and no less than 1
/// point, where a text may be cut at both ends. `measured` gives the width of the caption and the height of a
/// line.
double caption_size(const caption_band & band, const std::function<picture_size(double size)> & measured);

/// The surface with the text, drawn on its own ground, in its place; what leaves the surface is cut.
bitmap caption_surface(const caption_band & band, rgb_triple ground, const bitmap & text);

/// Puts the surface into the frame.
void paste_caption(bitmap & frame, const bitmap & surface, const caption_band & band);

/// Lays an icon into the bottom-left corner, but for its last two rows and columns and for what comes within
/// 110 of the key in each channel.
void lay_icon(bitmap & frame, const bitmap & icon, rgb_triple key);
