#pragma once

#include "decode/samples.h"
#include "intake/picture_kind.h"

/// PNG, GIF (the first picture), BMP, TIFF (the first page) and WebP files, as the image library reads them.
/// Throws decode_fault.
samples library_picture(byte_view file, picture_kind kind);
