#pragma once

#include "intake/exif.h"
#include "support/MFreeImage.h"

#include <functional>
#include <optional>

/// What a JPEG file says in front of its pixels.
struct jpeg_header {
    picture_size size;
    int components = 0, precision = 0;
    bool has_adobe_mark = false;  ///< four components are then inverted
    photo_notes notes{};
    std::string profile{};  ///< of its colours; empty: none
    bool has_remarks =
        false;  ///< comments, captions, places: more than the picture, its profile and the capture date
    std::size_t pixels_at = 0;  ///< where the first scan begins
};

/// The bytes of a file from a place on, at most so many; fewer at its end.
using file_reader = std::function<std::string(std::size_t at, std::size_t count)>;

/// Reads the segments up to the pixels, and of them only what is told. Nothing for what isn't a JPEG or ends
/// before.
std::optional<jpeg_header> read_jpeg_header(const file_reader & read);
std::optional<jpeg_header> read_jpeg_header(byte_view file);

/// Where the picture ends; what some cameras put behind it is another one. The file's end where the picture
/// has none.
std::size_t end_of_picture(byte_view file, const jpeg_header & header);

/// The file with the picture as it is, byte for byte, without any remarks but the capture date. Nothing where
/// `read_jpeg_header` gives nothing.
std::optional<std::string> without_remarks(byte_view file);

/// The JPEG with the capture date noted in it; as it is for an empty date.
std::string with_date(const std::string & jpeg, const std::string & taken);
