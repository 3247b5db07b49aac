#include "decode/png_profile.h"

#include <zlib.h>

namespace {

constexpr std::size_t largest_profile = std::size_t{16} << 20U;

// Never more than a profile may have, whatever the packed bytes promise.
std::string unpacked(byte_view packed)
{
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return {};
    stream.next_in = const_cast<Bytef *>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    std::string bytes;
    std::string piece(1 << 14, '\0');
    int told = Z_OK;
    while (told == Z_OK && bytes.size() < largest_profile) {
        stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        told = inflate(&stream, Z_NO_FLUSH);
        bytes.append(piece, 0, piece.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return told == Z_STREAM_END ? bytes : std::string();
}

}  // namespace

std::string profile_of_png(byte_view file)
{
    for (std::size_t at = 8; at + 8 <= file.size();) {
        const std::size_t size = number32(file, at, byte_order::big);
        if (stands_at(file, at + 4, "iCCP")) {
            const byte_view chunk = part(file, at + 8, size);
            const std::size_t name = text_of_bytes(chunk).find('\0');
            constexpr std::size_t end_and_way = 2;
            return name == std::string_view::npos ? ""
                                                  : unpacked(part(chunk, name + end_and_way, chunk.size()));
        }
        at += 12 + size;
    }
    return {};
}
