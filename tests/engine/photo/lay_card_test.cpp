#include "engine/layout/worn_ornaments.h"
#include "engine/photo/lay_photo.h"
#include "tests/engine/tilt_stage.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"

#include <gtest/gtest.h>

namespace {

constexpr rgb_triple board_color{9, 9, 9}, print_color{100, 230, 50}, card_color{200, 0, 0};

struct lay_card_test : testing::Test {
    lay_card_test()
    {
        main.run.canvas = plain(32, 30, board_color);
        main.run.frame_color = card_color;
    }

    /// The picture without its empty rows.
    std::string picture() const
    {
        const std::string all = drawn(main.run.canvas, [](rgb_triple color) {
            return color == board_color ? '.' : color == print_color ? '#' : color == card_color ? 'c' : '?';
        });
        std::string text;
        for (std::size_t at = 0; at < all.size(); at += 33)
            if (all.substr(at, 32) != std::string(32, '.'))
                text += all.substr(at, 33);
        return text;
    }

    void lay(const bitmap & photo, const rectangle & area, int rotation = 0)
    {
        photo_place place{.area = area, .rotation = rotation, .worn = worn_by_boxes(main, rotation)};
        place.worn.frame = 3;
        place.worn.shadow = 5;
        lay_card(main, copied(photo, 0, 0, photo.width(), photo.height()), place);
    }

    scripted_desktop desk;
    frmMain main{desk, listed({})};
};

}  // namespace

TEST_F(lay_card_test, an_upright_card_has_its_room_below_and_neither_frame_nor_shadow)
{
    // 14 / 19 is 1; the photo is 12 wide and 20 - (4 + 2) high.
    lay(plain(30, 30, print_color), {.left = 5, .top = 3, .width = 14, .height = 20});
    std::string expected = ".....cccccccccccccc.............\n";
    for (int i = 0; i < 14; ++i)
        expected += ".....c############c.............\n";
    for (int i = 0; i < 5; ++i)
        expected += ".....cccccccccccccc.............\n";
    EXPECT_EQ(picture(), expected);
    EXPECT_EQ(seen(main.run.canvas, 5, 3), card_color);
    EXPECT_EQ(seen(main.run.canvas, 5, 2), board_color);
}

TEST_F(lay_card_test, a_wide_card_has_its_room_at_the_right)
{
    lay(plain(30, 30, print_color), {.left = 5, .top = 3, .width = 20, .height = 12});
    std::string expected = ".....cccccccccccccccccccc.......\n";
    for (int i = 0; i < 10; ++i)
        expected += ".....c##############ccccc.......\n";
    expected += ".....cccccccccccccccccccc.......\n";
    EXPECT_EQ(picture(), expected);
}

TEST_F(lay_card_test, without_a_photo_the_card_stays_blank)
{
    lay({}, {.left = 5, .top = 3, .width = 14, .height = 20});
    EXPECT_EQ(seen(main.run.canvas, 5, 3), card_color);
    EXPECT_EQ(seen(main.run.canvas, 12, 10), card_color);
    EXPECT_EQ(seen(main.run.canvas, 18, 22), card_color);
}

TEST_F(lay_card_test, a_card_that_leaves_the_canvas_or_has_no_size_is_not_drawn)
{
    for (const int left : {-1, 19, 900})
        lay(plain(30, 30, print_color), {.left = left, .top = 3, .width = 14, .height = 20});
    lay(plain(30, 30, print_color), {.left = 5, .top = 3, .width = 14, .height = 0});
    lay(plain(30, 30, print_color), {.left = 5, .top = 3, .width = 0, .height = 20});
    EXPECT_EQ(picture(), "");
}

TEST_F(lay_card_test, a_tilted_card_without_numbers_for_its_rotation_draws_nothing)
{
    lay(plain(30, 30, print_color), {.left = 5, .top = 3, .width = 14, .height = 20}, 10);
    EXPECT_EQ(picture(), "");
}

TEST(lay_card, a_tilted_card_is_drawn_as_a_photo_of_its_size_would_be)
{
    tilt_stage by_card, by_photo;
    for (frmMain * main : {&by_card.main, &by_photo.main}) {
        main->run.canvas = plain(900, 800, board_color);
        main->run.frame_color = card_color;
    }
    // 190 / 19 is 10: a photo of 240 by 170 on a card of 300 by 190.
    bitmap card = plain(300, 190, card_color);
    paste(card, plain(240, 170, print_color), 10, 10, plain_copy);
    constexpr rectangle area{.left = 300, .top = 250, .width = 300, .height = 190};
    lay_card(by_card.main, plain(50, 50, print_color),
             {.area = area, .rotation = 10, .worn = by_card.worn(10)});
    by_photo.draw(card, area, 10);
    EXPECT_TRUE(same(by_card.main.run.canvas, by_photo.main.run.canvas));
    EXPECT_FALSE(same(by_card.main.run.canvas, plain(900, 800, board_color)));
}
