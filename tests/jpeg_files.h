#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// JPEG files of every kind, made by the decoder's own library.

enum class jpeg_colors { grey, rgb, ycc, cmyk, ycck };
enum class jpeg_coding { plain, best_tables, progressive, a_scan_each, arithmetic };

struct jpeg_marker {
    int code = 0;  ///< 0xE0 to 0xEF for an application's, 0xFE for a comment
    std::string bytes;
};

struct jpeg_kind {
    jpeg_colors colors = jpeg_colors::ycc;
    std::vector<std::pair<int, int>>
        sampling{};  ///< across and down, one a component; empty: the library's 4:2:0
    jpeg_coding coding = jpeg_coding::plain;
    int restart = 0;  ///< units between restart markers, 0 without them
    int quality = 85;
    std::vector<jpeg_marker> markers{};
};

/// The bytes of a file of that kind; the picture is waves with noise, the same each time.
std::string jpeg_of(const jpeg_kind & kind, int width, int height);
