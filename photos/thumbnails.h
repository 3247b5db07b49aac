#pragma once

#include "session/frmMain.h"

#include <string>
#include <string_view>

/// The small pictures that stand in for the photos in previews: beside the photo, in a folder
/// `sample_thumbs`.

/// Path of the photo's thumbnail, which is made, or made anew with a word to the user when the photo is
/// newer. Empty when the photo doesn't exist. Where that place can't be written it is the photo itself.
std::string chk_sample_thumb(frmMain & main, const std::string & photo);

/// "…/sample_thumbs/a.jpg" for "…/a.jpg".
std::string thumbnail_path(std::string_view photo);

/// True when the path holds "sample_thumbs" as a folder, beyond its first character.
bool is_thumbnail(std::string_view path);

/// The path with its "sample_thumbs" folder taken out; any other path as it is.
std::string photo_path(std::string_view path);

/// Turns every entry of the table that is a thumbnail back into its photo, or every other one into its
/// thumbnail.
void photos_from_thumbnails(frmMain & main);
void thumbnails_from_photos(frmMain & main);
