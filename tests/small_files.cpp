#include "tests/small_files.h"

#include <array>
#include <cstdlib>

namespace {

void add_little(std::string & bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

void add_big(std::string & bytes, int value)
{
    bytes += static_cast<char>(value >> 8 & 0xFF);
    bytes += static_cast<char>(value & 0xFF);
}

std::uint32_t crc_32(std::string_view bytes)
{
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
    }
    return ~sum;
}

// What a local header and the entry of the directory have in common: version to names' lengths.
std::string common_fields(const zip_entry & entry)
{
    std::string bytes;
    add_little(bytes, 20, 2);
    add_little(bytes, entry.flags, 2);
    add_little(bytes, 0, 2);  // stored
    add_little(bytes, 0x5A210000, 4);
    add_little(bytes, crc_32(entry.bytes), 4);
    add_little(bytes, static_cast<std::uint32_t>(entry.bytes.size()), 4);
    add_little(bytes, static_cast<std::uint32_t>(entry.bytes.size()), 4);
    add_little(bytes, static_cast<std::uint32_t>(entry.name.size()), 2);
    add_little(bytes, 0, 2);
    return bytes;
}

std::string directory_entry(const zip_entry & entry, std::size_t at)
{
    constexpr std::uint32_t made_on_unix = 3 << 8 | 20;
    std::string bytes = "PK\1\2";
    add_little(bytes, made_on_unix, 2);
    bytes += common_fields(entry);
    add_little(bytes, 0, 2);  // comment
    add_little(bytes, 0, 2);  // disk
    add_little(bytes, 0, 2);  // internal attributes
    add_little(bytes, entry.unix_mode << 16, 4);
    add_little(bytes, static_cast<std::uint32_t>(at), 4);
    return bytes + entry.name;
}

// Bits of the entropy-coded data, the highest first; a byte FF is followed by 00.
class bit_writer {
public:
    void add(int value, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            held = held << 1 | (value >> bit & 1);
            if (++filled == 8)
                flush();
        }
    }
    std::string finished()
    {
        while (filled != 0)
            add(1, 1);
        return bytes;
    }

private:
    void flush()
    {
        bytes += static_cast<char>(held);
        if (held == 0xFF)
            bytes += '\0';
        held = filled = 0;
    }
    std::string bytes;
    int held = 0, filled = 0;
};

int bits_of(int value)
{
    int count = 0;
    for (value = std::abs(value); value != 0; value >>= 1)
        ++count;
    return count;
}

void add_segment(std::string & jpeg, int marker, const std::string & body)
{
    jpeg += '\xFF';
    jpeg += static_cast<char>(marker);
    add_big(jpeg, static_cast<int>(body.size()) + 2);
    jpeg += body;
}

// Twelve codes of four bits for the sizes of a difference, and the one bit 0 for "no further coefficients".
std::string huffman_tables()
{
    std::string differences(17, '\0');
    differences[4] = 12;
    for (char size = 0; size < 12; ++size)
        differences += size;
    std::string rest(17, '\0');
    rest[0] = 0x10;
    rest[1] = 1;
    rest += '\0';
    return differences + rest;
}

std::string frame_header(int width, int height, int components)
{
    std::string body = "\x08";
    add_big(body, height);
    add_big(body, width);
    body += static_cast<char>(components);
    for (int i = 1; i <= components; ++i)
        body += {static_cast<char>(i), 0x11, 0};
    return body;
}

std::string scan_header(int components)
{
    std::string body(1, static_cast<char>(components));
    for (int i = 1; i <= components; ++i)
        body += {static_cast<char>(i), 0};
    return body + std::string("\0\x3F\0", 3);
}

std::string flat_scan(int blocks, const std::vector<int> & levels)
{
    bit_writer bits;
    for (int block = 0; block < blocks; ++block)
        for (const int level : levels) {
            const int difference = block == 0 ? (level - 128) * 8 : 0;
            const int size = bits_of(difference);
            bits.add(size, 4);
            bits.add(difference < 0 ? difference - 1 : difference, size);
            bits.add(0, 1);
        }
    return bits.finished();
}

}  // namespace

std::string stored_zip(const std::vector<zip_entry> & entries)
{
    std::string bytes, directory;
    for (const zip_entry & entry : entries) {
        directory += directory_entry(entry, bytes.size());
        bytes += "PK\3\4" + common_fields(entry) + entry.name + entry.bytes;
    }
    std::string end = "PK\5\6";
    add_little(end, 0, 4);  // disks
    add_little(end, static_cast<std::uint32_t>(entries.size()), 2);
    add_little(end, static_cast<std::uint32_t>(entries.size()), 2);
    add_little(end, static_cast<std::uint32_t>(directory.size()), 4);
    add_little(end, static_cast<std::uint32_t>(bytes.size()), 4);
    add_little(end, 0, 2);  // comment
    return bytes + directory + end;
}

std::string flat_jpeg(int width, int height, const std::vector<int> & levels, adobe_mark mark)
{
    const int components = static_cast<int>(levels.size());
    const int blocks = ((width + 7) / 8) * ((height + 7) / 8);
    std::string jpeg = "\xFF\xD8";
    if (mark == adobe_mark::present)
        add_segment(jpeg, 0xEE, std::string("Adobe\0\x64\0\0\0\0\0", 12));
    add_segment(jpeg, 0xDB, std::string(1, '\0') + std::string(64, '\1'));
    add_segment(jpeg, 0xC0, frame_header(width, height, components));
    add_segment(jpeg, 0xC4, huffman_tables());
    add_segment(jpeg, 0xDA, scan_header(components));
    return jpeg + flat_scan(blocks, levels) + "\xFF\xD9";
}

std::string small_png()
{
    constexpr std::array<unsigned char, 73> bytes = {
        0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44,
        0x52, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x02, 0x08, 0x02, 0x00, 0x00, 0x00, 0xFD,
        0xD4, 0x9A, 0x73, 0x00, 0x00, 0x00, 0x10, 0x49, 0x44, 0x41, 0x54, 0x78, 0xDA, 0x63, 0xF8,
        0xCF, 0xC0, 0x00, 0x44, 0x0C, 0x10, 0x0A, 0x00, 0x1F, 0xEE, 0x03, 0xFD, 0x63, 0x5E, 0xBB,
        0x5B, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82,
    };
    return {bytes.begin(), bytes.end()};
}
