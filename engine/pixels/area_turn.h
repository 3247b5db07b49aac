#pragma once

#include "engine/pixels/marked_picture.h"

#include <functional>
#include <vector>

/// The library's turn of a picture (`rotated` of the binding), worked out for a part of the result alone: a
/// tilted photo needs a small part of two large turned pictures. Every byte equals the library's. Angles are
/// whole degrees, positive counter-clockwise as seen; rows count from the **bottom**, as in `bitmap::row`.

/// Size of the turned picture.
picture_size turned_size(picture_size size, int degrees);

/// Where the turn puts a point of a picture of that size, up to the roundings of the pixels.
picture_point turned_point(picture_size size, int degrees, picture_point point);

/// Takes a finished row: its number, its first column and the pixels from there on.
using row_taker = std::function<void(int row, int first, std::span<const marked_pixel> pixels)>;

/// Hands over the wanted pixels of the turned picture row by row, from the bottom. Wanted columns outside the
/// turned picture are an error of the caller.
void turn_rows(const marked_picture & picture, int degrees, const row_spans & wanted, const row_taker & take);
