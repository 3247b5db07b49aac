#pragma once

#include "support/MFreeImage.h"

#include <vector>

/// Photos row by row, straight from the JPEG decoder that the image library uses too: the one file that knows
/// it. Of what it accepts every byte is as `load_picture` gives it. What is damaged in the least, and every
/// kind of JPEG for which that can't be said, it refuses, and the library has to read the file.

/// Memory that a reader needs. Handed on from photo to photo it is asked of the system once; each thread has
/// its own.
struct jpeg_memory {
    std::vector<std::uint8_t> input;
    std::vector<pixel> rows;
};

/// The rows of one photo.
class jpeg_rows {
public:
    /// Opens the file and reads its header; `memory` has to last. Raises out_of_memory (7).
    jpeg_rows(const std::string & path, jpeg_memory & memory);
    jpeg_rows(const jpeg_rows &) = delete;
    jpeg_rows & operator=(const jpeg_rows &) = delete;
    ~jpeg_rows();

    /// False once the file is refused: from then on nothing comes of it, and what came has to be thrown away.
    explicit operator bool() const { return state != nullptr; }

    /// As `load_picture` would give it; below 32,768 either way.
    picture_size size() const { return own_size; }

    /// Bytes that can be read behind a row, whatever they are.
    static constexpr std::size_t room_behind = 32;

    /// The next row from the top, in the order of a bitmap's; it stays until the next one is asked for. Empty
    /// where the file is refused or has no row left.
    std::span<const pixel> next();

    /// True when the file is sound to its end. All rows have to be read: a fault behind the last one makes
    /// the library refuse the photo.
    bool is_sound();

private:
    struct decoding;
    void refuse();
    bool read_band();

    std::unique_ptr<decoding> state;
    jpeg_memory & memory;
    picture_size own_size;
    int band = 0, taken = 0;  // rows in memory, and those of them that were given
};

/// The photo, or nothing where it is refused.
std::optional<bitmap> read_jpeg(const std::string & path, jpeg_memory & memory);
