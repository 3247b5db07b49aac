#pragma once

#include "support/MFreeImage.h"

#include <functional>
#include <optional>
#include <string>

/// The sides of a collage at full size; on a square poster the long one means the poster's own 2000.
inline constexpr int full_long_side = 3000, full_short_side = 2000;

/// The size in which a picture is saved so that its long side has `save_size` pixels, the short side rounded
/// to nearest, ties to even.
picture_size saved_size(picture_size own, int save_size);

/// Pixels an inch with which a poster of that size is as large on paper as it is meant to be, whatever it was
/// saved at: 20 by 30 inches, a square 20 by 20. 1 at least.
int intended_dpi(picture_size poster);

/// What a picture that leaves the program tells of itself: its size on paper, with `dpi` or else the intended
/// one, sRGB, and the program's name. Nothing of the photos, of the person or of the computer.
picture_notes notes_of_flurn(picture_size poster, std::optional<int> dpi = std::nullopt);

/// Makes the bytes of a file of a picture.
using picture_encoder = std::function<std::string(const bitmap &)>;

/// What the encoder makes of the picture in that size.
std::string encoded_in_size(const bitmap & image, int save_size, const picture_encoder & encode);

/// The picture in that size, as the bytes of a JPEG with these notes.
std::string flurn_bytes(const bitmap & image, int save_size);

/// Writes the picture as JPEG with a long side of `save_size` pixels, whole or not at all. Raises 61, 70, 75,
/// 76; the file that was there then stands as it was.
void save_flurn(const bitmap & image, int save_size, const std::string & path);
