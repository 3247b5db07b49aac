#pragma once

#include "support/MFreeImage.h"
#include "support/platform_error.h"

#include <string>

struct frmMain;

/// The steps with a photo that take longest and touch nothing of the session: they run on another core, and
/// the window lets events through meanwhile. Thumbnails and what is as small are done at once.

/// Raised for a photo so long and narrow that it can't be fitted into its place; the number is that of an
/// overflow.
struct photo_too_long : platform_error {
    using platform_error::platform_error;
};

/// A JPEG, empty when it can't be loaded or is too large for sizes of 16 bits. One that was read ahead is
/// there already.
bitmap load_photo(frmMain & main, const std::string & path);

/// Begins to read the photo that will probably be loaded next and returns at once. A wrong guess changes
/// nothing but the time.
void read_ahead(frmMain & main, const std::string & path);

/// Drops what was read ahead.
void forget_ahead(frmMain & main);

/// `resize_image`. Raises photo_too_long.
bitmap fit_photo(frmMain & main, const bitmap & image, int width, int height);

/// Writes a JPEG. Raises what `save_jpeg` raises.
void save_photo(frmMain & main, const bitmap & image, const std::string & path);
