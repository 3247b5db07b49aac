#include "intake/jpeg_header.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::string_view exif_mark("Exif\0\0", 6), profile_mark("ICC_PROFILE\0", 12),
    tiny_picture_mark("JFXX\0", 5);
constexpr std::size_t most_segments = 5000, most_profile = 16U << 20U;

enum marker : std::uint8_t {
    first_frame = 0xC0,
    last_frame = 0xCF,
    huffman = 0xC4,
    arithmetic = 0xCC,
    extension = 0xC8,
    picture_end = 0xD9,
    scan = 0xDA,
    app0 = 0xE0,
    app1 = 0xE1,
    app2 = 0xE2,
    app14 = 0xEE,
    app15 = 0xEF,
    comment = 0xFE
};

struct segment {
    std::uint8_t marker = 0;
    std::size_t at = 0, size = 0;  // of what stands behind marker and length
};

bool is_frame(std::uint8_t marker)
{
    return marker >= first_frame && marker <= last_frame && marker != huffman && marker != arithmetic &&
           marker != extension;
}

bool stands_alone(std::uint8_t marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

// The segment at a place; any number of filling bytes may stand in front of its marker.
std::optional<segment> segment_at(const file_reader & read, std::size_t at)
{
    for (int filling = 0; filling < 64; ++filling, ++at) {
        const std::string head = read(at, 4);
        const byte_view bytes = bytes_of_text(head);
        if (byte_at(bytes, 0) != 0xFF)
            return std::nullopt;
        const std::uint8_t marker = byte_at(bytes, 1);
        if (marker == 0xFF)
            continue;
        if (stands_alone(marker))
            return segment{.marker = marker, .at = at + 2, .size = 0};
        const std::size_t length = number16(bytes, 2, byte_order::big);
        if (bytes.size() < 4 || length < 2)
            return std::nullopt;
        return segment{.marker = marker, .at = at + 4, .size = length - 2};
    }
    return std::nullopt;
}

// Calls `take` for each segment up to the pixels; false where they aren't reached.
bool each_segment(const file_reader & read, const std::function<void(const segment &)> & take)
{
    std::size_t at = 2;
    for (std::size_t count = 0; count < most_segments; ++count) {
        const std::optional<segment> next = segment_at(read, at);
        if (!next || next->marker == picture_end)
            return false;
        take(*next);
        if (next->marker == scan)
            return true;
        at = next->at + next->size;
    }
    return false;
}

// A profile may be cut into parts, each with its number.
class profile_parts {
public:
    // The file may end inside of it, whatever the segment's length says.
    void take(const std::string & bytes)
    {
        const std::size_t begin = profile_mark.size() + 2;
        total += bytes.size();
        if (bytes.size() > begin && total <= most_profile)
            parts[static_cast<std::uint8_t>(bytes[profile_mark.size()])] = bytes.substr(begin);
    }
    std::string whole() const
    {
        std::string profile;
        for (const auto & [number, bytes] : parts)
            profile += bytes;
        return profile;
    }

private:
    std::map<int, std::string> parts;
    std::size_t total = 0;
};

class header_walk {
public:
    explicit header_walk(const file_reader & from) : read(from) {}

    std::optional<jpeg_header> run()
    {
        const std::string begin = read(0, 2);
        if (begin != "\xFF\xD8" || !each_segment(read, [&](const segment & each) { take(each); }) ||
            header.components == 0)
            return std::nullopt;
        header.profile = profile.whole();
        return header;
    }

private:
    std::string bytes_of(const segment & each) const { return read(each.at, each.size); }
    void take(const segment & each)
    {
        if (is_frame(each.marker))
            take_frame(each);
        else if (each.marker == scan)
            header.pixels_at = each.at - 4;
        else if (each.marker == app1)
            take_notes_of(bytes_of(each));
        else if (each.marker == app2)
            take_profile(each);
        else if (each.marker == app14)
            header.has_adobe_mark = header.has_adobe_mark || read(each.at, 5) == "Adobe";
        else if (each.marker == app0)
            header.has_remarks = header.has_remarks || read(each.at, 5) == tiny_picture_mark;
        else if ((each.marker > app2 && each.marker <= app15) || each.marker == comment)
            header.has_remarks = true;
    }
    void take_frame(const segment & each)
    {
        const std::string text = read(each.at, 6);
        const byte_view bytes = bytes_of_text(text);
        header.precision = byte_at(bytes, 0);
        header.size = {.width = number16(bytes, 3, byte_order::big),
                       .height = number16(bytes, 1, byte_order::big)};
        header.components = byte_at(bytes, 5);
    }
    // The first block counts; anything else here is a remark.
    void take_notes_of(const std::string & text)
    {
        if (!text.starts_with(exif_mark) || has_notes) {
            header.has_remarks = true;
            return;
        }
        has_notes = true;
        header.notes = notes_of_exif(bytes_of_text(std::string_view(text).substr(exif_mark.size())));
        header.has_remarks = header.has_remarks || header.notes.has_more;
    }
    void take_profile(const segment & each)
    {
        if (read(each.at, profile_mark.size()) == profile_mark && each.size > profile_mark.size() + 2)
            profile.take(bytes_of(each));
        else
            header.has_remarks = true;  // a second picture, or what only its maker knows
    }

    const file_reader & read;
    jpeg_header header{};
    profile_parts profile{};
    bool has_notes = false;
};

std::string date_segment(const std::string & taken)
{
    const std::string block = std::string(exif_mark) + exif_with_date(taken);
    const std::size_t length = block.size() + 2;
    return std::string("\xFF\xE1") + static_cast<char>(length >> 8U) + static_cast<char>(length & 0xFFU) +
           block;
}

file_reader reader_of(byte_view file)
{
    return [file](std::size_t at, std::size_t count) {
        return std::string(text_of_bytes(part(file, at, count)));
    };
}

// What the decoder needs, and what says how colours are to be read.
bool belongs_to_the_picture(const file_reader & read, const segment & each)
{
    if (each.marker == app0)
        return read(each.at, 5) != tiny_picture_mark;
    if (each.marker == app2)
        return read(each.at, profile_mark.size()) == profile_mark;
    if (each.marker == app14)
        return read(each.at, 5) == "Adobe";
    return each.marker < app0;
}

}  // namespace

std::optional<jpeg_header> read_jpeg_header(const file_reader & read)
{
    return header_walk(read).run();
}

std::optional<jpeg_header> read_jpeg_header(byte_view file)
{
    return read_jpeg_header(reader_of(file));
}

std::optional<std::string> without_remarks(byte_view file)
{
    const std::optional<jpeg_header> header = read_jpeg_header(file);
    if (!header)
        return std::nullopt;
    std::string kept = "\xFF\xD8";
    const file_reader read = reader_of(file);
    each_segment(read, [&](const segment & each) {
        if (each.marker != scan && !stands_alone(each.marker) && belongs_to_the_picture(read, each))
            kept += text_of_bytes(part(file, each.at - 4, each.size + 4));
    });
    kept += text_of_bytes(part(file, header->pixels_at, end_of_picture(file, *header) - header->pixels_at));
    return with_date(kept, header->notes.taken);
}

std::size_t end_of_picture(byte_view file, const jpeg_header & header)
{
    for (std::size_t at = header.pixels_at; at + 1 < file.size();) {
        const std::uint8_t marker = file[at] == 0xFF ? file[at + 1] : 0;
        if (marker == picture_end)
            return at + 2;
        const bool is_segment = marker >= first_frame && marker != 0xFF && !stands_alone(marker);
        at += is_segment ? 2U + std::max<std::size_t>(number16(file, at + 2, byte_order::big), 2)
              : marker == 0 || marker == 0xFF ? 1
                                              : 2;
    }
    return file.size();
}

std::string with_date(const std::string & jpeg, const std::string & taken)
{
    if (taken.empty())
        return jpeg;
    // Behind the mark of the file's own format, if it has one: some readers look for that first.
    const std::optional<segment> first = segment_at(reader_of(bytes_of_text(jpeg)), 2);
    const std::size_t place = first && first->marker == app0 ? first->at + first->size : 2;
    return jpeg.substr(0, place) + date_segment(taken) + jpeg.substr(place);
}
