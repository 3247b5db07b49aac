#include "intake/jpeg_header.h"

#include "tests/jpeg_files.h"

#include <gtest/gtest.h>

namespace {

std::string exif_marker(const std::string & block)
{
    return std::string("Exif\0\0", 6) + block;
}

std::string little(std::uint32_t number, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += static_cast<char>(number >> (8 * static_cast<unsigned>(i)) & 0xFFU);
    return text;
}

// One entry that stands in the block itself, numbers with the low byte first.
std::string little_block(std::uint16_t tag, std::uint16_t value)
{
    return std::string("II*\0", 4) + little(8, 4) + little(1, 2) + little(tag, 2) + little(3, 2) +
           little(1, 4) + little(value, 4) + little(0, 4);
}

std::string jpeg_with(const std::vector<jpeg_marker> & markers)
{
    return jpeg_of({.markers = markers}, 48, 32);
}

jpeg_header header_of(const std::string & file)
{
    return read_jpeg_header(bytes_of_text(file)).value();
}

}  // namespace

TEST(jpeg_header, tells_size_and_components)
{
    const jpeg_header header = header_of(jpeg_of({.colors = jpeg_colors::cmyk}, 50, 30));
    EXPECT_EQ(header.size, (picture_size{.width = 50, .height = 30}));
    EXPECT_EQ(header.components, 4);
    EXPECT_EQ(header.precision, 8);
    EXPECT_TRUE(header.has_adobe_mark);
}

TEST(jpeg_header, takes_the_orientation_in_either_order_of_bytes)
{
    for (int turn = 1; turn <= 8; ++turn) {
        const std::string block = little_block(0x0112, static_cast<std::uint16_t>(turn));
        EXPECT_EQ(header_of(jpeg_with({{.code = 0xE1, .bytes = exif_marker(block)}})).notes.orientation,
                  turn);
    }
    const std::string big("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 26);
    EXPECT_EQ(header_of(jpeg_with({{.code = 0xE1, .bytes = exif_marker(big)}})).notes.orientation, 6);
}

TEST(jpeg_header, takes_an_orientation_that_makes_no_sense_for_upright)
{
    for (const int told : {0, 9, 65535})
        EXPECT_EQ(
            header_of(
                jpeg_with({{.code = 0xE1,
                            .bytes = exif_marker(little_block(0x0112, static_cast<std::uint16_t>(told)))}}))
                .notes.orientation,
            1);
}

TEST(jpeg_header, puts_the_parts_of_a_profile_in_their_order)
{
    const std::string mark("ICC_PROFILE\0", 12);
    const std::string file = jpeg_with(
        {{.code = 0xE2, .bytes = mark + "\2\2behind"}, {.code = 0xE2, .bytes = mark + "\1\2before "}});
    EXPECT_EQ(header_of(file).profile, "before behind");
    EXPECT_FALSE(header_of(file).has_remarks);
}

TEST(jpeg_header, takes_no_part_of_a_profile_that_ends_with_the_file)
{
    const std::string mark("ICC_PROFILE\0", 12);
    const std::string file = jpeg_with({{.code = 0xE2, .bytes = mark + "\1\1profile"}});
    const std::size_t begin = file.find(mark);
    for (std::size_t length = begin; length < begin + 24; ++length)
        EXPECT_FALSE(read_jpeg_header(bytes_of_text(file).first(length))) << length;
    EXPECT_EQ(header_of(jpeg_with({{.code = 0xE2, .bytes = mark}})).profile, "");
}

TEST(jpeg_header, knows_what_tells_of_people)
{
    EXPECT_FALSE(header_of(jpeg_with({})).has_remarks);
    EXPECT_FALSE(
        header_of(jpeg_with({{.code = 0xE1, .bytes = exif_marker(little_block(0x0112, 6))}})).has_remarks);
    EXPECT_TRUE(
        header_of(jpeg_with({{.code = 0xE1, .bytes = exif_marker(little_block(0x8825, 26))}})).has_remarks);
    EXPECT_TRUE(header_of(jpeg_with({{.code = 0xE1, .bytes = "http://ns.adobe.com/xap/1.0/"}})).has_remarks);
    EXPECT_TRUE(header_of(jpeg_with({{.code = 0xED, .bytes = "Photoshop 3.0"}})).has_remarks);
    EXPECT_TRUE(header_of(jpeg_with({{.code = 0xFE, .bytes = "a remark"}})).has_remarks);
}

TEST(jpeg_header, gives_nothing_for_a_file_cut_in_front_of_its_pixels)
{
    const std::string file = jpeg_with({{.code = 0xFE, .bytes = "a remark"}});
    const std::size_t pixels = header_of(file).pixels_at;
    for (std::size_t length = 0; length <= pixels; ++length)
        EXPECT_FALSE(read_jpeg_header(bytes_of_text(file).first(length))) << length;
}

TEST(jpeg_header, leaves_remarks_out_and_the_picture_as_it_is)
{
    const std::string plain = jpeg_with({});
    const std::string file =
        jpeg_with({{.code = 0xFE, .bytes = "a remark"}, {.code = 0xED, .bytes = "a place"}}) +
        "a second picture";
    EXPECT_EQ(without_remarks(bytes_of_text(file)), plain);
}

TEST(jpeg_header, ends_a_picture_behind_its_last_scan)
{
    for (const jpeg_coding coding :
         {jpeg_coding::plain, jpeg_coding::progressive, jpeg_coding::a_scan_each}) {
        const std::string file = jpeg_of({.coding = coding, .restart = 1}, 48, 32);
        const std::string longer = file + "\xFF\xD8 and more \xFF\xD9";
        EXPECT_EQ(end_of_picture(bytes_of_text(longer), header_of(longer)), file.size());
    }
}

TEST(jpeg_header, notes_a_date_that_is_read_again)
{
    const std::string dated = with_date(jpeg_with({}), "2026:07:31 18:05:09");
    EXPECT_EQ(header_of(dated).notes.taken, "2026:07:31 18:05:09");
    EXPECT_EQ(header_of(dated).notes.orientation, 1);
    EXPECT_FALSE(header_of(dated).has_remarks);
    EXPECT_EQ(with_date("any", ""), "any");
}

TEST(exif, takes_no_date_that_is_none)
{
    EXPECT_EQ(notes_of_exif(bytes_of_text(exif_with_date("2026:07:31 18:05:09"))).taken,
              "2026:07:31 18:05:09");
    for (const char * wrong : {"2026-07-31 18:05:09", "    :  :     :  :  ", "Somebody was here!!"})
        EXPECT_EQ(notes_of_exif(bytes_of_text(exif_with_date(wrong))).taken, "") << wrong;
}

TEST(exif, comes_to_an_end_with_any_bytes)
{
    std::string block = exif_with_date("2026:07:31 18:05:09");
    for (std::size_t at = 0; at < block.size(); ++at)
        for (const char value : {'\0', '\x7F', '\xFF'}) {
            std::string changed = block;
            changed[at] = value;
            EXPECT_EQ(notes_of_exif(bytes_of_text(changed)).orientation, 1);
        }
}
