#pragma once

#include "engine/photo/awaited_in_run.h"
#include "engine/photo/photo_ahead.h"
#include "support/platform_error.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The steps with a photo that take longest and touch nothing of the session: they run on another core, and
/// the window lets events through meanwhile.

/// Raised for a photo so long and narrow that it can't be fitted into its place; the number is that of an
/// overflow.
struct photo_too_long : platform_error {
    using platform_error::platform_error;
};

/// The size of the place that a photo of that size is to be fitted to.
using place_of_photo = std::function<picture_size(picture_size own)>;

/// A JPEG, empty when it can't be loaded or is too large for sizes of 16 bits. One that was read ahead is
/// there already, and so is what earlier previews had of the same file; a large one is fitted to its place
/// while it is read. Raises run_cancelled.
run_photo load_photo(frmMain & main, const std::string & path, const place_of_photo & place_of);

/// The photo in the size of its place, for reading ahead; nothing where that can't be told.
std::optional<wanted_photo> wanted_at(frmMain & main, const std::string & path,
                                      const place_of_photo & place_of);

/// Begins to read the photos that will probably be loaded next, the first of them first, and returns at once.
/// A wrong guess changes nothing but the time.
void read_ahead(frmMain & main, const std::vector<wanted_photo> & next);

/// Drops what was read ahead, and stops what is being read. Waits for nothing.
void forget_ahead(frmMain & main);

/// As `resize_image` fits the whole photo into a place of the layout, drawn at the scale of the run. Raises
/// photo_too_long, run_cancelled.
bitmap fit_photo(frmMain & main, run_photo photo, int width, int height);

/// Writes a JPEG with these notes. Raises what `save_jpeg` raises.
void save_photo(frmMain & main, const bitmap & image, const picture_notes & notes, const std::string & path);
