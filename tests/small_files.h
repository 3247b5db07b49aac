#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Files built by hand, byte by byte, that no part of the program writes.

/// An entry of a zip archive. `unix_mode` is the type and the rights: 0100644 a file, 0120777 a link.
struct zip_entry {
    std::string name;
    std::string bytes;
    std::uint32_t unix_mode = 0100644;
    std::uint32_t flags = 0;  ///< 0x800: the name is UTF-8
};

/// A zip archive that holds the entries as they are, without compression.
std::string stored_zip(const std::vector<zip_entry> & entries);

enum class adobe_mark { absent, present };

/// A baseline JPEG with one component for each of `levels`, each of them flat. With the mark the components
/// are as an Adobe program writes them: four are inverted CMYK.
std::string flat_jpeg(int width, int height, const std::vector<int> & levels, adobe_mark mark);

/// A PNG of 2 by 2 red pixels.
std::string small_png();
