#pragma once

#include "photos/thumbnails/thumbnail_path.h"
#include "session/frmMain.h"

#include <string>

/// The small pictures that stand in for the photos in previews.

/// Path of the photo's thumbnail, which is made, or made anew when the photo was replaced: with a word to the
/// user when it is newer, without one when it is older or, at the same time, of another size. A photo that
/// can't be read as a JPEG gets none; the path is given all the same. Empty when the photo doesn't exist.
/// Where that place can't be written it is the photo itself.
std::string chk_sample_thumb(frmMain & main, const std::string & photo);

/// The same with its size. One that is still being copied, or changes all the time, stands in for itself,
/// without a size, until it is looked at again.
small_photo small_photo_of(frmMain & main, const std::string & photo);

/// Has workers look at the photos from `index` of the table on, and make thumbnails for those that have none;
/// returns at once. What comes of it is given when it is their turn.
void begin_thumbnails(frmMain & main, int index);

/// Waits for what was begun and forgets it. To be called before a walk through the table, and behind it.
void finish_thumbnails(frmMain & main);

/// Clears the places of the table's thumbnails of what killed programs left half written there. Raises
/// nothing.
void clear_thumbnail_places(frmMain & main);

/// Turns every entry of the table that is a thumbnail back into its photo.
void photos_from_thumbnails(frmMain & main);

/// Turns every other entry into its thumbnail; a photo without one stays.
void thumbnails_from_photos(frmMain & main);
