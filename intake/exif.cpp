#include "intake/exif.h"

#include <algorithm>
#include <array>
#include <functional>

namespace {

enum tag : std::uint16_t {
    interoperability_index = 0x0001,
    orientation_tag = 0x0112,
    exif_folder = 0x8769,
    gps_folder = 0x8825,
    date_taken = 0x9003,
    color_space = 0xA001,
    interoperability_folder = 0xA005
};

// How the picture is to be read: its measures, resolution, colour coding and the version of the notes.
// Nothing here tells of a person or a camera.
constexpr std::array<std::uint16_t, 22> technical{
    0x00FE, 0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x0112, 0x0115, 0x011A, 0x011B, 0x0128,
    0x0213, 0x8769, 0x9000, 0x9003, 0x9101, 0xA000, 0xA001, 0xA002, 0xA003, 0xA005, 0x0001};

constexpr std::size_t entry_size = 12;
constexpr std::size_t most_entries = 4096;
constexpr std::size_t date_length = 19;
constexpr std::uint16_t uncalibrated = 0xFFFF;

struct entry {
    std::uint16_t tag = 0;
    std::uint32_t count = 0, value = 0;
    std::size_t at = 0;  // of the value field
};

class block_reader {
public:
    explicit block_reader(byte_view block) : bytes(block), order(order_of_exif(block)) {}

    void each_of(std::size_t folder, const std::function<void(const entry &)> & take) const
    {
        if (folder == 0)
            return;
        const std::size_t count = std::min<std::size_t>(number16(bytes, folder, order), most_entries);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t at = folder + 2 + i * entry_size;
            if (at + entry_size <= bytes.size())
                take({.tag = number16(bytes, at, order),
                      .count = number32(bytes, at + 4, order),
                      .value = number32(bytes, at + 8, order),
                      .at = at + 8});
        }
    }
    std::size_t first_folder() const { return number32(bytes, 4, order); }
    std::size_t folder_behind_first() const
    {
        const std::size_t first = first_folder();
        return number32(bytes, first + 2 + number16(bytes, first, order) * entry_size, order);
    }
    std::uint16_t short_at(const entry & each) const { return number16(bytes, each.at, order); }
    std::string_view text_at(const entry & each, std::size_t length) const
    {
        return text_of_bytes(part(bytes, each.count > 4 ? each.value : each.at, length));
    }

private:
    byte_view bytes;
    byte_order order;
};

void take_entry(photo_notes & notes, const block_reader & block, const entry & each)
{
    if (each.tag == date_taken && is_date(block.text_at(each, date_length)))
        notes.taken = block.text_at(each, date_length);
    if (each.tag == color_space && block.short_at(each) == uncalibrated)
        notes.is_adobe_rgb = true;  // unless its index says otherwise
    if (std::ranges::find(technical, each.tag) == technical.end())
        notes.has_more = true;
}

void take_orientation(photo_notes & notes, const block_reader & block, const entry & each)
{
    const int told = block.short_at(each);
    if (each.tag == orientation_tag && told >= 1 && told <= 8)
        notes.orientation = told;
}

byte_view chunk_of_webp(byte_view file, std::string_view name)
{
    for (std::size_t at = 12; at + 8 <= file.size();) {
        const std::size_t size = number32(file, at + 4, byte_order::little);
        if (stands_at(file, at, name))
            return part(file, at + 8, size);
        at += 8 + size + (size & 1U);
    }
    return {};
}

std::string text_of_number(std::uint32_t number, int count)
{
    std::string text;
    for (int i = count - 1; i >= 0; --i)
        text += static_cast<char>(number >> (8 * static_cast<unsigned>(i)) & 0xFFU);
    return text;
}

std::string entry_text(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::uint32_t value)
{
    return text_of_number(tag, 2) + text_of_number(type, 2) + text_of_number(count, 4) +
           text_of_number(value, 4);
}

}  // namespace

byte_order order_of_exif(byte_view block)
{
    return stands_at(block, 0, "II") ? byte_order::little : byte_order::big;
}

bool is_date(std::string_view text)
{
    constexpr std::string_view form = "dddd:dd:dd dd:dd:dd";
    return text.size() == form.size() && std::ranges::equal(text, form, [](char sign, char wanted) {
               return wanted == 'd' ? sign >= '0' && sign <= '9' : sign == wanted;
           });
}

photo_notes notes_of_exif(byte_view block)
{
    photo_notes notes;
    const block_reader reader(block);
    std::size_t inner = 0, exchange = 0;
    reader.each_of(reader.first_folder(), [&](const entry & each) {
        take_orientation(notes, reader, each);
        take_entry(notes, reader, each);
        if (each.tag == exif_folder)
            inner = each.value;
    });
    reader.each_of(inner, [&](const entry & each) {
        take_entry(notes, reader, each);
        if (each.tag == interoperability_folder)
            exchange = each.value;
    });
    bool index_is_adobe = false;
    reader.each_of(exchange, [&](const entry & each) {
        if (each.tag == interoperability_index)
            index_is_adobe = reader.text_at(each, 3) == "R03";
    });
    notes.is_adobe_rgb = notes.is_adobe_rgb && index_is_adobe;
    notes.has_more = notes.has_more || reader.folder_behind_first() != 0;  // a small picture
    return notes;
}

byte_view exif_of_png(byte_view file)
{
    for (std::size_t at = 8; at + 8 <= file.size();) {
        const std::size_t size = number32(file, at, byte_order::big);
        if (stands_at(file, at + 4, "eXIf"))
            return part(file, at + 8, size);
        at += 12 + size;
    }
    return {};
}

byte_view exif_of_webp(byte_view file)
{
    constexpr std::string_view mark("Exif\0\0", 6);
    const byte_view chunk = chunk_of_webp(file, "EXIF");
    return stands_at(chunk, 0, mark) ? part(chunk, mark.size(), chunk.size()) : chunk;
}

std::string exif_with_date(const std::string & taken)
{
    constexpr std::uint16_t text_type = 2, long_type = 4;
    constexpr std::uint32_t first = 8, folder_size = 2 + entry_size + 4;
    constexpr std::uint32_t inner = first + folder_size, text = inner + folder_size;
    const std::string end = text_of_number(0, 4);
    return std::string("MM\0*", 4) + text_of_number(first, 4) +  //
           text_of_number(1, 2) + entry_text(exif_folder, long_type, 1, inner) + end + text_of_number(1, 2) +
           entry_text(date_taken, text_type, date_length + 1, text) + end + taken + '\0';
}

std::size_t place_of_orientation(byte_view block)
{
    const block_reader reader(block);
    std::size_t place = 0;
    reader.each_of(reader.first_folder(), [&](const entry & each) {
        if (each.tag == orientation_tag)
            place = each.at;
    });
    return place;
}
