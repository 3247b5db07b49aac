#pragma once

#include <string>
#include <string_view>

/// What a file's name says of its picture.
struct image_file {
    int format = -1;     ///< the image library's code; -1: none that the list editor can use
    std::string base{};  ///< the path without its extension; empty when there is no format
};

/// JPEG 2 (.jpg, .jpeg), GIF 25, PNG 13, ICO 1, TIFF 18 (.tiff alone); in either case of the letters.
/// Anything else, .bmp and .tif as well, and a path of fewer than five characters has none.
image_file image_file_of(std::string_view path);
