#pragma once

#include <string>
#include <string_view>

/// Where the small picture of a photo lies: beside the photo, in a folder `sample_thumbs`. Separators of
/// either kind are read, the platform's is written.

/// "…/sample_thumbs/a.jpg" for "…/a.jpg".
std::string thumbnail_path(std::string_view photo);

/// True when the path holds "sample_thumbs" as a folder, beyond its first character.
bool is_thumbnail(std::string_view path);

/// The path with its last "sample_thumbs" folder taken out; any other path as it is.
std::string photo_path(std::string_view path);
