#pragma once

#include "support/MFreeImage.h"

#include <string>

/// The sides of a collage at full size; on a square poster the long one means the poster's own 2000.
inline constexpr int full_long_side = 3000, full_short_side = 2000;

/// The size in which a picture is saved so that its long side has `save_size` pixels, the short side rounded
/// to nearest, ties to even.
picture_size saved_size(picture_size own, int save_size);

/// The picture in that size, as the bytes of a JPEG.
std::string flurn_bytes(const bitmap & image, int save_size);

/// Writes the picture as JPEG with a long side of `save_size` pixels, whole or not at all. Raises 61, 70, 75,
/// 76; the file that was there then stands as it was.
void save_flurn(const bitmap & image, int save_size, const std::string & path);
