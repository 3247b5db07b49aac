#include "support/jpeg_rows.h"

#include "support/files/text_file.h"
#include "tests/jpeg_files.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

// The image library itself says what every byte has to be.

namespace {

struct reading {
    temporary_folder folder;
    jpeg_memory memory;
    std::string path = folder.at("photo.jpg");

    std::optional<bitmap> read(const std::string & bytes)
    {
        write_file(path, bytes);
        return read_jpeg(path, memory);
    }
    bitmap loaded() const { return load_picture(picture_format::jpeg, path); }
};

struct named_kind {
    const char * name;
    jpeg_kind kind;
};

void PrintTo(const named_kind & what, std::ostream * into)
{
    *into << what.name;
}

using samples = std::vector<std::pair<int, int>>;
const samples s444{{1, 1}, {1, 1}, {1, 1}}, s422{{2, 1}, {1, 1}, {1, 1}}, s420{{2, 2}, {1, 1}, {1, 1}},
    s440{{1, 2}, {1, 1}, {1, 1}}, s411{{4, 1}, {1, 1}, {1, 1}}, s410{{4, 2}, {1, 1}, {1, 1}},
    s441{{1, 4}, {1, 1}, {1, 1}}, uneven{{2, 2}, {2, 1}, {1, 2}}, fine_color{{1, 1}, {2, 2}, {2, 2}},
    alike_in_twos{{2, 1}, {2, 1}, {2, 1}};

std::string exif_turned()
{
    std::string bytes("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 32);
    return bytes;
}

const std::vector<named_kind> accepted_kinds{
    {"grey", {.colors = jpeg_colors::grey}},
    {"grey_in_twos", {.colors = jpeg_colors::grey, .sampling = {{2, 2}}}},
    {"rgb", {.colors = jpeg_colors::rgb}},
    {"s444", {.sampling = s444}},
    {"s422", {.sampling = s422}},
    {"s420", {.sampling = s420}},
    {"s440", {.sampling = s440}},
    {"s411", {.sampling = s411}},
    {"s410", {.sampling = s410}},
    {"s441", {.sampling = s441}},
    {"alike_in_twos", {.sampling = alike_in_twos}},
    {"uneven", {.sampling = uneven}},
    {"fine_color", {.sampling = fine_color}},
    {"poor", {.quality = 1}},
    {"superb", {.sampling = s444, .quality = 100}},
    {"superb_420", {.quality = 100}},
    {"best_tables", {.coding = jpeg_coding::best_tables}},
    {"restarts", {.restart = 3}},
    {"restarts_422", {.sampling = s422, .restart = 1}},
    {"progressive", {.coding = jpeg_coding::progressive}},
    {"progressive_444", {.sampling = s444, .coding = jpeg_coding::progressive, .restart = 2}},
    {"progressive_grey", {.colors = jpeg_colors::grey, .coding = jpeg_coding::progressive}},
    {"a_scan_each", {.coding = jpeg_coding::a_scan_each}},
    {"arithmetic", {.coding = jpeg_coding::arithmetic}},
    {"exif", {.markers = {{0xE1, exif_turned()}}}},
    {"comment", {.markers = {{0xFE, "a comment"}, {0xEC, std::string(60000, 'x')}}}},
    {"profile", {.markers = {{0xE2, std::string("ICC_PROFILE\0\x01\x01profile", 21)}}}},
    {"adobe_without_transform", {.markers = {{0xEE, std::string("Adobe\0\x64\0\0\0\0\0", 12)}}}},
};

const std::vector<named_kind> refused_kinds{
    {"cmyk", {.colors = jpeg_colors::cmyk}},
    {"ycck", {.colors = jpeg_colors::ycck}},
    {"ycck_420", {.colors = jpeg_colors::ycck, .sampling = {{2, 2}, {1, 1}, {1, 1}, {2, 2}}}},
    {"cmyk_progressive", {.colors = jpeg_colors::cmyk, .coding = jpeg_coding::progressive}},
};

constexpr std::pair<int, int> sizes[] = {{1, 1},   {1, 7},   {7, 1},   {8, 8},   {9, 9},     {15, 17},
                                         {16, 16}, {31, 33}, {100, 1}, {1, 100}, {257, 129}, {640, 427}};

}  // namespace

class jpeg_rows_kinds : public testing::TestWithParam<named_kind> {};

TEST_P(jpeg_rows_kinds, are_read_as_the_library_reads_them)
{
    reading files;
    for (const auto & [width, height] : sizes) {
        const std::optional<bitmap> read = files.read(jpeg_of(GetParam().kind, width, height));
        ASSERT_TRUE(read) << width << " x " << height;
        EXPECT_TRUE(same(*read, files.loaded())) << width << " x " << height;
    }
}

INSTANTIATE_TEST_SUITE_P(known, jpeg_rows_kinds, testing::ValuesIn(accepted_kinds),
                         [](const auto & each) { return each.param.name; });

class jpeg_rows_refusals : public testing::TestWithParam<named_kind> {};

TEST_P(jpeg_rows_refusals, are_left_to_the_library)
{
    reading files;
    EXPECT_FALSE(files.read(jpeg_of(GetParam().kind, 40, 30)));
    EXPECT_TRUE(files.loaded());
}

INSTANTIATE_TEST_SUITE_P(unknown, jpeg_rows_refusals, testing::ValuesIn(refused_kinds),
                         [](const auto & each) { return each.param.name; });

TEST(jpeg_rows, reads_what_the_library_itself_wrote)
{
    reading files;
    const std::optional<bitmap> read = files.read(jpeg_bytes(noise(203, 101)));
    ASSERT_TRUE(read);
    EXPECT_TRUE(same(*read, files.loaded()));
}

TEST(jpeg_rows, what_follows_the_end_of_the_picture_is_no_matter)
{
    reading files;
    for (const std::string & more : {std::string(1, '\0'), std::string(100'000, 'x'), jpeg_of({}, 20, 10)}) {
        const std::optional<bitmap> read = files.read(jpeg_of({}, 90, 70) + more);
        ASSERT_TRUE(read);
        EXPECT_TRUE(same(*read, files.loaded()));
    }
}

TEST(jpeg_rows, a_file_that_ends_early_is_left_to_the_library)
{
    reading files;
    const std::string whole = jpeg_of({}, 70, 50);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(files.read(whole.substr(0, length))) << length;
}

// The library makes a picture of some damaged files and none of others.
void expect_damage_to_be_read_alike(const jpeg_kind & kind)
{
    reading files;
    const std::string whole = jpeg_of(kind, 41, 35);
    int accepted = 0, refused = 0;
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const int damage : {0x01, 0x80, 0xFF}) {
            std::string bytes = whole;
            bytes[at] = static_cast<char>(bytes[at] ^ damage);
            const std::optional<bitmap> read = files.read(bytes);
            ++(read ? accepted : refused);
            if (read) {
                EXPECT_TRUE(same(*read, files.loaded())) << at << " by " << damage;
            }
        }
    EXPECT_GT(accepted, 0);
    EXPECT_GT(refused, 0);
}

TEST(jpeg_rows, damaged_files_are_read_as_the_library_reads_them_or_left_to_it)
{
    expect_damage_to_be_read_alike({});
    expect_damage_to_be_read_alike({.sampling = s444, .restart = 1});
    expect_damage_to_be_read_alike({.colors = jpeg_colors::grey});
}

TEST(jpeg_rows, damaged_progressive_files_are_read_as_the_library_reads_them_or_left_to_it)
{
    expect_damage_to_be_read_alike({.coding = jpeg_coding::progressive});
    expect_damage_to_be_read_alike({.coding = jpeg_coding::arithmetic});
}

TEST(jpeg_rows, a_fault_behind_the_last_row_counts)
{
    reading files;
    std::string bytes = jpeg_of({}, 40, 30);
    bytes.insert(bytes.size() - 2, "\xFF\xD8");  // a second beginning in front of the end
    EXPECT_FALSE(files.read(bytes));
    EXPECT_FALSE(files.loaded());
}

TEST(jpeg_rows, what_is_no_photo_is_left_to_the_library)
{
    reading files;
    EXPECT_FALSE(read_jpeg(files.folder.at("missing.jpg"), files.memory));
    EXPECT_FALSE(read_jpeg(files.folder.path(), files.memory));
    EXPECT_FALSE(files.read(""));
    EXPECT_FALSE(files.read("no picture"));
    save_picture(picture_format::png, noise(9, 9), files.path);
    EXPECT_FALSE(read_jpeg(files.path, files.memory));
}

TEST(jpeg_rows, a_pipe_is_not_waited_for)
{
    reading files;
    ASSERT_EQ(::mkfifo(files.path.c_str(), 0600), 0);
    EXPECT_FALSE(read_jpeg(files.path, files.memory));
}

TEST(jpeg_rows, a_header_of_too_many_pixels_is_left_to_the_library)
{
    reading files;
    std::string bytes = jpeg_of({}, 40, 30);
    const std::size_t frame = bytes.find("\xFF\xC0");
    ASSERT_NE(frame, std::string::npos);
    bytes[frame + 5] = '\x80';  // 32,798 rows
    write_file(files.path, bytes);
    EXPECT_FALSE(jpeg_rows(files.path, files.memory));
}

TEST(jpeg_rows, gives_rows_from_the_top_and_none_behind_the_last)
{
    reading files;
    write_file(files.path, jpeg_of({}, 33, 19));
    const bitmap image = files.loaded();
    jpeg_rows photo(files.path, files.memory);
    ASSERT_TRUE(photo);
    EXPECT_EQ(photo.size().width, 33);
    EXPECT_EQ(photo.size().height, 19);
    for (int y = 18; y >= 0; --y)
        EXPECT_TRUE(std::ranges::equal(channels(photo.next()), channels(image.row(y))));
    EXPECT_TRUE(photo.next().empty());
    EXPECT_TRUE(photo.is_sound());
}

TEST(jpeg_rows, is_not_sound_before_its_last_row)
{
    reading files;
    write_file(files.path, jpeg_of({}, 33, 19));
    jpeg_rows photo(files.path, files.memory);
    ASSERT_FALSE(photo.next().empty());
    EXPECT_FALSE(photo.is_sound());
    EXPECT_TRUE(photo.next().empty());
}
