#include "support/MFreeImage.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/raised_by.h"
#include "tests/small_files.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

constexpr rgb_triple black{}, white{.red = 255, .green = 255, .blue = 255};
constexpr rgb_triple orange{.red = 250, .green = 120, .blue = 20};

void expect_near(const rgb_triple & found, const rgb_triple & wanted, int tolerance)
{
    EXPECT_NEAR(found.red, wanted.red, tolerance);
    EXPECT_NEAR(found.green, wanted.green, tolerance);
    EXPECT_NEAR(found.blue, wanted.blue, tolerance);
}

struct picture_test : testing::Test {
    temporary_folder folder;
    bitmap loaded(const std::string & bytes, picture_format format = picture_format::jpeg) const
    {
        return load_picture(format, folder.write("a.jpg", bytes));
    }
    bool has_size(const std::string & bytes) const
    {
        return jpeg_size(folder.write("a.jpg", bytes)).has_value();
    }
};

// A paletted GIF of 2 by 1 pixels, black and `second`; its codes are written out without growing.
std::string small_gif(const std::string & second, bool transparent)
{
    std::string gif = std::string("GIF89a\2\0\1\0\x80\0\0", 13) + std::string(3, '\0') + second;
    if (transparent)
        gif += std::string("!\xF9\4\1\0\0\0\0", 8);
    return gif + std::string(",\0\0\0\0\2\0\1\0\0\2\2\x44\x0A\0;", 16);
}

}  // namespace

TEST(get_rgb_triple, has_red_in_the_low_byte)
{
    EXPECT_EQ(get_rgb_triple(0), black);
    EXPECT_EQ(get_rgb_triple(255), (rgb_triple{.red = 255}));
    EXPECT_EQ(get_rgb_triple(16711680), (rgb_triple{.blue = 255}));
    EXPECT_EQ(get_rgb_triple(0x1478FA), orange);
    EXPECT_EQ(get_rgb_triple(0xFF1478FA), orange);
}

TEST(bitmap, a_new_one_is_black_and_an_empty_size_gives_none)
{
    const bitmap image(3, 2);
    EXPECT_TRUE(same(image, plain(3, 2, black)));
    EXPECT_FALSE(bitmap());
    EXPECT_FALSE(bitmap(0, 5));
    EXPECT_FALSE(bitmap(5, -1));
    EXPECT_EQ(bitmap().width() + bitmap().height(), 0);
}

TEST(bitmap, a_side_of_32768_pixels_overflows)
{
    EXPECT_EQ(bitmap(32767, 1).width(), 32767);
    EXPECT_EQ(raised_by([] { bitmap(32768, 1).width(); }), 6);
    EXPECT_EQ(raised_by([] { bitmap(1, 32768).height(); }), 6);
}

TEST(bitmap, rows_and_pixels_count_from_the_bottom_and_a_row_is_blue_green_red)
{
    bitmap image(2, 3);
    set_pixel(image, 1, 0, orange);
    EXPECT_EQ(seen(image, 1, 2), orange);
    EXPECT_EQ(pixel_at(image, 1, 0), orange);
    const std::span<const std::uint8_t> bytes = channels(image.row(0));
    const std::vector<std::uint8_t> row(bytes.begin(), bytes.end());
    EXPECT_EQ(row, (std::vector<std::uint8_t>{0, 0, 0, 20, 120, 250}));
}

TEST(bitmap, pixels_outside_are_neither_read_nor_written)
{
    bitmap image = plain(2, 2, orange);
    const int outside[][2] = {{-1, 0}, {0, -1}, {2, 0}, {0, 2}};
    for (const auto & [x, y] : outside) {
        EXPECT_EQ(pixel_at(image, x, y), std::nullopt);
        set_pixel(image, x, y, white);
    }
    EXPECT_TRUE(same(image, plain(2, 2, orange)));
    bitmap none;
    set_pixel(none, 0, 0, white);
    fill(none, white);
    EXPECT_EQ(pixel_at(none, 0, 0), std::nullopt);
}

TEST(bitmap, filling_takes_every_pixel)
{
    bitmap image(3, 3);
    fill(image, orange);
    EXPECT_TRUE(same(image, colored(3, 3, [](int, int) { return orange; })));
}

TEST(paste, as_a_plain_copy_overwrites_even_with_black)
{
    bitmap target = plain(3, 3, white);
    EXPECT_TRUE(paste(target, plain(2, 1, black), 1, 0, plain_copy));
    const auto letters = [](rgb_triple color) { return color == white ? '.' : '#'; };
    EXPECT_EQ(drawn(target, letters),
              ".##\n"
              "...\n"
              "...\n");
}

TEST(paste, weighs_the_source_by_alpha_rounded_down)
{
    struct row {
        int alpha;
        int red;
    };
    const row rows[] = {{0, 0}, {128, 127}, {255, 254}, {256, 255}};
    for (const row & given : rows) {
        bitmap target = plain(1, 1, black);
        EXPECT_TRUE(paste(target, plain(1, 1, white), 0, 0, given.alpha));
        EXPECT_EQ(seen(target, 0, 0).red, given.red) << given.alpha;
    }
}

TEST(paste, is_refused_whole_when_the_source_leaves_the_target)
{
    const int places[][2] = {{-1, 0}, {0, -1}, {2, 0}, {0, 2}};
    for (const auto & [left, top] : places) {
        bitmap target = plain(3, 3, white);
        EXPECT_FALSE(paste(target, plain(2, 2, black), left, top, plain_copy));
        EXPECT_TRUE(same(target, plain(3, 3, white)));
    }
    bitmap target = plain(3, 3, white), none;
    EXPECT_FALSE(paste(target, none, 0, 0, plain_copy));
    EXPECT_FALSE(paste(none, target, 0, 0, plain_copy));
    EXPECT_TRUE(paste(target, plain(3, 3, black), 0, 0, plain_copy));
}

TEST(copied, counts_from_the_top_and_leaves_right_and_bottom_out)
{
    const bitmap image = graded(5, 4);
    const bitmap part = copied(image, 1, 0, 4, 2);
    ASSERT_EQ(part.width(), 3);
    ASSERT_EQ(part.height(), 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(seen(part, x, y), seen(image, x + 1, y));
}

TEST(copied, puts_swapped_sides_in_order_and_gives_nothing_outside)
{
    const bitmap image = graded(5, 4);
    EXPECT_TRUE(same(copied(image, 4, 2, 1, 0), copied(image, 1, 0, 4, 2)));
    EXPECT_FALSE(copied(image, 1, 1, 1, 3));
    EXPECT_FALSE(copied(image, -1, 0, 2, 2));
    EXPECT_FALSE(copied(image, 0, 0, 6, 2));
    EXPECT_FALSE(copied(bitmap(), 0, 0, 1, 1));
}

TEST(rescaled, gives_exactly_the_size_and_leaves_the_source)
{
    const bitmap image = plain(7, 5, orange);
    EXPECT_TRUE(same(rescaled(image, 20, 3), plain(20, 3, orange)));
    EXPECT_TRUE(same(image, plain(7, 5, orange)));
    EXPECT_FALSE(rescaled(image, 0, 3));
    EXPECT_FALSE(rescaled(image, 3, -1));
    EXPECT_FALSE(rescaled(bitmap(), 3, 3));
}

TEST(rescaled, gives_a_grey_picture_what_each_channel_of_a_coloured_one_gets)
{
    const bitmap any = noise(97, 61);
    const auto level_at = [&](int x, int y) { return seen(any, x, y).green; };
    const bitmap grey = colored(97, 61, [&](int x, int y) {
        return rgb_triple{level_at(x, y), level_at(x, y), level_at(x, y)};
    });
    const bitmap coloured = colored(97, 61, [&](int x, int y) {
        return rgb_triple{static_cast<std::uint8_t>(255 - level_at(x, y)), level_at(x, y), level_at(x, y)};
    });
    for (const picture_size size : {picture_size{40, 33}, {13, 61}, {97, 61}, {211, 150}}) {
        const bitmap one = rescaled(grey, size.width, size.height);
        const bitmap other = rescaled(coloured, size.width, size.height);
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) {
                const std::uint8_t level = seen(other, x, y).green;
                ASSERT_EQ(seen(one, x, y), (rgb_triple{level, level, level})) << x << " " << y;
            }
    }
}

TEST(rescaled, reduces_by_averaging)
{
    bitmap image(200, 1);
    for (int x = 0; x < 200; x += 2)
        set_pixel(image, x, 0, white);
    expect_near(seen(rescaled(image, 10, 1), 5, 0), {.red = 127, .green = 127, .blue = 127}, 3);
}

TEST(rotated, turns_counter_clockwise_and_exactly_by_quarters)
{
    const bitmap image = graded(3, 2);
    const bitmap turned = rotated(image, 90);
    ASSERT_EQ(turned.width(), 2);
    ASSERT_EQ(turned.height(), 3);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(seen(turned, y, 2 - x), seen(image, x, y));
    EXPECT_TRUE(same(rotated(image, 0), image));
    EXPECT_TRUE(same(rotated(turned, -90), image));
    EXPECT_FALSE(rotated(bitmap(), 5));
}

TEST(rotated, grows_to_hold_the_picture_and_fills_the_corners_with_black)
{
    const bitmap turned = rotated(plain(100, 60, white), 15);
    EXPECT_EQ(turned.width(), 113);  // 60 sin + 100 cos, rounded, and 1
    EXPECT_EQ(turned.height(), 85);  // 100 sin + 60 cos, rounded, and 1
    EXPECT_EQ(seen(turned, 0, 0), black);
    EXPECT_EQ(seen(turned, 112, 84), black);
    EXPECT_EQ(seen(turned, 56, 42), white);
}

TEST_F(picture_test, a_saved_jpeg_is_loaded_with_next_to_no_loss)
{
    const bitmap image = graded(64, 48);
    save_jpeg(image, folder.at("a.jpg"));
    const bitmap back = load_picture(picture_format::jpeg, folder.at("a.jpg"));
    ASSERT_EQ(back.width(), 64);
    ASSERT_EQ(back.height(), 48);
    for (const int at : {0, 20, 47})
        expect_near(seen(back, at, at), seen(image, at, at), 6);
    EXPECT_EQ(read_file(folder.at("a.jpg")), jpeg_bytes(image));
}

TEST_F(picture_test, a_saved_bmp_is_loaded_without_loss)
{
    const bitmap image = graded(13, 7);
    save_bmp(image, folder.at("a.bmp"));
    EXPECT_TRUE(same(load_picture(picture_format::bmp, folder.at("a.bmp")), image));
}

TEST_F(picture_test, only_the_very_format_is_loaded_whatever_the_name)
{
    set_output_message();
    EXPECT_FALSE(loaded(small_png()));
    EXPECT_FALSE(loaded("a text, no picture"));
    EXPECT_FALSE(loaded(""));
    EXPECT_FALSE(loaded(jpeg_bytes(plain(2, 2, orange)), picture_format::bmp));
    EXPECT_TRUE(load_picture(picture_format::jpeg, folder.write("a.png", jpeg_bytes(plain(2, 2, orange)))));
    EXPECT_FALSE(load_picture(picture_format::jpeg, folder.at("none")));
    EXPECT_FALSE(load_picture(picture_format::jpeg, folder.path()));
    EXPECT_FALSE(load_picture(picture_format::jpeg, ""));
}

TEST_F(picture_test, reading_and_writing_any_format_says_nothing_on_standard_error)
{
    set_output_message();
    testing::internal::CaptureStderr();
    for (const picture_format format : {picture_format::bmp, picture_format::jpeg, picture_format::png,
                                        picture_format::tiff, picture_format::gif}) {
        save_picture(format, graded(13, 7), folder.at("a"));
        EXPECT_TRUE(load_picture(format, folder.at("a")));
        const std::string bytes = read_file(folder.at("a"));
        load_picture(format, folder.write("cut", bytes.substr(0, bytes.size() / 2)));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(picture_test, names_may_hold_any_bytes)
{
    const std::string path = folder.at("M\xC3\xBCller \xFF.jpg");
    save_jpeg(plain(4, 4, orange), path);
    EXPECT_TRUE(load_picture(picture_format::jpeg, path));
}

TEST_F(picture_test, a_grey_jpeg_comes_in_24_bits)
{
    const bitmap image = loaded(flat_jpeg(20, 10, {90}, adobe_mark::absent));
    ASSERT_EQ(image.width(), 20);
    ASSERT_EQ(image.height(), 10);
    EXPECT_EQ(image.row(0).size(), 20u);
    EXPECT_EQ(seen(image, 19, 9), (rgb_triple{.red = 90, .green = 90, .blue = 90}));
}

TEST_F(picture_test, a_cmyk_jpeg_comes_as_red_green_and_blue)
{
    // Inverted: full cyan is 0. Half of the ink of magenta, no yellow, no black.
    const bitmap image = loaded(flat_jpeg(9, 17, {0, 128, 255, 255}, adobe_mark::present));
    ASSERT_EQ(image.width(), 9);
    ASSERT_EQ(image.height(), 17);
    EXPECT_EQ(image.row(0).size(), 9u);
    expect_near(seen(image, 8, 16), {.red = 0, .green = 128, .blue = 255}, 1);
}

TEST_F(picture_test, a_jpeg_cut_short_in_its_data_comes_with_a_grey_rest)
{
    std::string bytes = jpeg_bytes(graded(64, 64));
    bytes.resize(bytes.size() * 2 / 3);
    const bitmap image = loaded(bytes);
    ASSERT_EQ(image.height(), 64);
    expect_near(seen(image, 0, 0), black, 8);
    expect_near(seen(image, 60, 63), {.red = 128, .green = 128, .blue = 128}, 2);
}

TEST_F(picture_test, the_header_tells_what_the_load_would_give)
{
    const std::string bytes = jpeg_bytes(graded(24, 16));
    const std::size_t data = bytes.find("\xFF\xDA");
    for (std::size_t length = 0; length < bytes.size(); length += length < data + 20 ? 17 : 301)
        EXPECT_EQ(has_size(bytes.substr(0, length)), static_cast<bool>(loaded(bytes.substr(0, length))))
            << length;
    for (const std::string & other :
         {small_png(), std::string("text"), flat_jpeg(8, 8, {1, 2}, adobe_mark::absent),
          flat_jpeg(8, 8, {90, 100, 110, 120}, adobe_mark::absent),
          flat_jpeg(8, 8, {90, 100, 110}, adobe_mark::present)})
        EXPECT_EQ(has_size(other), static_cast<bool>(loaded(other)));
    const std::optional<picture_size> size = jpeg_size(folder.write("a.jpg", bytes));
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 24);
    EXPECT_EQ(size->height, 16);
}

TEST_F(picture_test, a_picture_of_32768_pixels_in_one_direction_overflows)
{
    const std::string path = folder.write("a.jpg", flat_jpeg(32768, 8, {90}, adobe_mark::absent));
    EXPECT_EQ(raised_by([&] { load_picture(picture_format::jpeg, path); }), 6);
    EXPECT_EQ(raised_by([&] { jpeg_size(path); }), 6);
    EXPECT_FALSE(usable_jpeg_size(path));
    EXPECT_EQ(loaded(flat_jpeg(8, 32767, {90}, adobe_mark::absent)).height(), 32767);
}

TEST_F(picture_test, a_gif_comes_in_24_bits_whatever_its_palette)
{
    for (const bool transparent : {false, true}) {
        const bitmap colored = loaded(small_gif("\xFA\x78\x14", transparent), picture_format::gif);
        ASSERT_EQ(colored.width(), 2);
        EXPECT_EQ(colored.row(0).size(), 2u);
        EXPECT_EQ(seen(colored, 0, 0), black);
        EXPECT_EQ(seen(colored, 1, 0), orange);
        EXPECT_EQ(seen(loaded(small_gif("\xFF\xFF\xFF", transparent), picture_format::gif), 1, 0), white);
    }
}

TEST_F(picture_test, saving_raises_what_the_disk_says_and_keeps_the_old_file)
{
    const bitmap image = graded(64, 64);
    const std::string path = folder.write("a.jpg", "old");
    EXPECT_EQ(raised_by([&] {
                  const full_disk full(100);
                  save_jpeg(image, path);
              }),
              61);
    EXPECT_EQ(read_file(path), "old");
    EXPECT_EQ(raised_by([&] { save_jpeg(image, joined(folder.path(), "none/a.jpg")); }), 76);
    EXPECT_EQ(raised_by([&] { save_jpeg(bitmap(), path); }), 5);
    EXPECT_EQ(raised_by([&] { save_bmp(bitmap(), path); }), 5);
    EXPECT_EQ(read_file(path), "old");
}
