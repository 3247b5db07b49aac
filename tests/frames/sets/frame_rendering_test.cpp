#include "frames/sets/frame_rendering.h"

#include "frames/sets/frame_layout.h"
#include "support/files/paths.h"
#include "tests/frames/frames_by_pixel.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

struct frame_rendering : testing::Test {
    frame_look look{.outside = 0x102030,
                    .inside = 0xE0F0A0,
                    .caption_back = 0x4060C0,
                    .caption_fore = 0x0A0B0C,
                    .font = {.name = "Sans", .bold = true},
                    .icon_path = {}};

    void use_icon(int width, int height)
    {
        look.icon_path = folder.at("icon.bmp");
        save_bmp(noise(width, height), look.icon_path);
    }
    void expect_as_by_pixel(const std::string & caption)
    {
        EXPECT_TRUE(same(portrait_frame(desk, look, caption, folder.path()),
                         portrait_frame_by_pixel(desk, look, caption)))
            << "upright: " << caption;
        EXPECT_TRUE(same(landscape_frame(desk, look, caption, folder.path()),
                         landscape_frame_by_pixel(desk, look, caption)))
            << "across: " << caption;
    }
    double drawn_size() const { return desk.drawn_texts.back().font.size; }

    temporary_folder folder;
    scripted_desktop desk;
};

}  // namespace

TEST_F(frame_rendering, is_the_same_as_pixel_by_pixel)
{
    for (const char * caption : {"Sample", "x", "Grandmother's birthday", "   "})
        expect_as_by_pixel(caption);
}

TEST_F(frame_rendering, is_the_same_with_icons_of_every_size)
{
    for (const picture_size & size : {picture_size{100, 90}, {40, 40}, {3, 3}, {2, 2}}) {
        use_icon(size.width, size.height);
        expect_as_by_pixel("Summer");
    }
}

TEST_F(frame_rendering, a_long_caption_shrinks_to_one_point_and_is_cut_at_both_ends)
{
    expect_as_by_pixel(std::string(300, 'm'));
    EXPECT_EQ(drawn_size(), 1);
}

TEST_F(frame_rendering, an_empty_caption_leaves_a_plain_band)
{
    const bitmap frame = portrait_frame(desk, look, "", folder.path());
    EXPECT_EQ(seen(frame, 16, 444), (rgb_triple{0xC0, 0x60, 0x40}));
    EXPECT_EQ(seen(frame, 329, 503), (rgb_triple{0xC0, 0x60, 0x40}));
    EXPECT_EQ(seen(frame, 330, 503), (rgb_triple{0xA0, 0xF0, 0xE0}));
    EXPECT_TRUE(landscape_frame(desk, look, "", folder.path()));
}

TEST_F(frame_rendering, the_bands_are_as_wide_as_the_overdrawing_leaves_them)
{
    const rgb_triple outside{0x30, 0x20, 0x10}, inside{0xA0, 0xF0, 0xE0};
    const bitmap upright = portrait_frame(desk, look, "", folder.path());
    EXPECT_EQ(upright.width(), 347);
    EXPECT_EQ(upright.height(), 520);
    EXPECT_EQ(seen(upright, 100, 8), outside);
    EXPECT_EQ(seen(upright, 100, 9), inside);
    EXPECT_EQ(seen(upright, 100, 512), inside);
    EXPECT_EQ(seen(upright, 100, 513), outside);
    EXPECT_EQ(seen(upright, 7, 100), outside);
    EXPECT_EQ(seen(upright, 8, 100), inside);
    EXPECT_EQ(seen(upright, 338, 100), inside);
    EXPECT_EQ(seen(upright, 339, 100), outside);
    const bitmap across = landscape_frame(desk, look, "", folder.path());
    EXPECT_EQ(across.width(), 520);
    EXPECT_EQ(across.height(), 347);
    EXPECT_EQ(seen(across, 100, 8), outside);
    EXPECT_EQ(seen(across, 100, 9), inside);
    EXPECT_EQ(seen(across, 511, 100), inside);
    EXPECT_EQ(seen(across, 512, 100), outside);
}

TEST_F(frame_rendering, a_caption_grows_until_it_fills_the_band_and_then_shrinks_by_one_and_more)
{
    // A scripted letter is 14/15 of the size wide: "abcde" takes 263 pixels at 56 points; a line is 4/3 high.
    portrait_frame(desk, look, "ab", folder.path());
    EXPECT_EQ(drawn_size(), 46);  // the line: 61 pixels
    portrait_frame(desk, look, "abcdefgh", folder.path());
    EXPECT_EQ(drawn_size(), 34);  // the width: one more takes 33 pixels a letter, 264 in all
    landscape_frame(desk, look, "abcdefghijklmnop", folder.path());
    EXPECT_EQ(drawn_size(), 21);  // 20 pixels a letter, 320 in all: under the wide margin
    landscape_frame(desk, look, "abcdefghijklmnopq", folder.path());
    EXPECT_EQ(drawn_size(), 20);
}

TEST_F(frame_rendering, an_icon_takes_room_from_the_upright_caption_alone)
{
    use_icon(40, 40);
    portrait_frame(desk, look, "abcdefgh", folder.path());
    EXPECT_EQ(drawn_size(), 30);
    landscape_frame(desk, look, "abcdefghijklmnop", folder.path());
    EXPECT_EQ(drawn_size(), 21);
}

TEST_F(frame_rendering, an_icon_that_is_gone_leaves_its_room)
{
    look.icon_path = folder.at("gone.bmp");
    const bitmap frame = portrait_frame(desk, look, "Summer", folder.path());
    EXPECT_EQ(seen(frame, 50, 470), (rgb_triple{0xA0, 0xF0, 0xE0}));
    EXPECT_EQ(seen(frame, 51, 470), (rgb_triple{0xC0, 0x60, 0x40}));
    EXPECT_TRUE(landscape_frame(desk, look, "Summer", folder.path()));
}

TEST_F(frame_rendering, the_key_of_an_icon_is_taken_out_with_all_that_is_near_it)
{
    bitmap icon = plain(20, 20, {100, 100, 100});
    set_pixel(icon, 5, 5, {210, 100, 100});  // 110 away
    set_pixel(icon, 6, 5, {211, 100, 100});
    set_pixel(icon, 17, 17, {255, 0, 0});
    set_pixel(icon, 18, 17, {255, 0, 0});
    bitmap frame = plain(60, 60, {1, 2, 3});
    lay_icon(frame, icon, *pixel_at(icon, 0, 0));
    EXPECT_EQ(pixel_at(frame, 5, 5), (rgb_triple{1, 2, 3}));
    EXPECT_EQ(pixel_at(frame, 6, 5), (rgb_triple{211, 100, 100}));
    EXPECT_EQ(pixel_at(frame, 17, 17), (rgb_triple{255, 0, 0}));
    EXPECT_EQ(pixel_at(frame, 18, 17), (rgb_triple{1, 2, 3}));
}

TEST(split_color, has_blue_in_front)
{
    EXPECT_EQ(split_color(0), (rgb_triple{0, 0, 0}));
    EXPECT_EQ(split_color(255), (rgb_triple{255, 0, 0}));
    EXPECT_EQ(split_color(16711680), (rgb_triple{0, 0, 255}));
    EXPECT_EQ(split_color(0x00FF80), (rgb_triple{0x80, 0xFF, 0x00}));
}
