#pragma once

#include "intake/byte_view.h"

#include <string>

/// What a camera notes beside the pixels, as far as a collage needs it. The block is that of Exif: a TIFF
/// file without pixels.
struct photo_notes {
    int orientation = 1;        ///< 1 to 8; what says anything else says 1
    std::string taken{};        ///< "2026:07:31 18:05:09"; empty: not told
    bool is_adobe_rgb = false;  ///< the colours are those of Adobe RGB, without a profile that says so
    bool has_more = false;      ///< says more than how the picture is to be read and when it was taken
};

/// The notes of such a block; of a damaged one what can be read.
photo_notes notes_of_exif(byte_view block);

/// The block of a PNG or WebP file; empty where there is none.
byte_view exif_of_png(byte_view file);
byte_view exif_of_webp(byte_view file);

/// A block that tells when the photo was taken and nothing else.
std::string exif_with_date(const std::string & taken);

/// Where the value of the tag Orientation lies in the block, 0 where there is none.
std::size_t place_of_orientation(byte_view block);

/// The block's numbers are written in that order.
byte_order order_of_exif(byte_view block);

/// True for a text of the form "2026:07:31 18:05:09".
bool is_date(std::string_view text);
