#pragma once

#include "support/MFreeImage.h"

#include <string>

struct frmMain;

/// The steps with a photo that take longest and touch nothing of the session: they run on another core, and
/// the window lets events through meanwhile. Thumbnails and what is as small are done at once.

/// A JPEG, empty when it can't be loaded.
bitmap load_photo(frmMain & main, const std::string & path);

/// `resize_image`.
bitmap fit_photo(frmMain & main, const bitmap & image, int width, int height);

/// Writes a JPEG. Raises what `save_jpeg` raises.
void save_photo(frmMain & main, const bitmap & image, const std::string & path);
