#pragma once

#include "engine/pixels/row_scaler.h"
#include "support/jpeg_rows.h"

#include <stop_token>

/// Photos that are scaled while they are read: neither the whole photo nor what is cut off is ever in memory.
/// What comes of it is byte for byte what `load_picture` and then `rescaled` or `resize_image` give; where
/// only the image library can tell what that is, nothing comes of it.

/// Memory that one thread keeps from photo to photo.
struct photo_memory {
    jpeg_memory reading;
    scaling_memory scaling;
};

/// As `rescaled`. Raises out_of_memory (7), here and below.
std::optional<bitmap> read_rescaled_jpeg(const std::string & path, picture_size size, photo_memory & memory);

/// As `resize_image`, with `scale` pixels for one in each direction; nothing as well for a photo that can't
/// be fitted, and at the next row where a stop is asked for.
std::optional<bitmap> read_fitted_jpeg(const std::string & path, picture_size place, photo_memory & memory,
                                       int scale = 1, const std::stop_token & stop = {});

/// As `rescaled`, with the notes that a saved thumbnail carries: its file has the same bytes. Nothing for a
/// photo that has that size already.
std::optional<bitmap> read_thumbnail(const std::string & path, picture_size size, photo_memory & memory);
