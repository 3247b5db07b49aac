#include "engine/photo/lay_photo.h"
#include "support/files/paths.h"
#include "tests/engine/gif_file.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

constexpr rgb_triple paper_color{9, 9, 9}, shape_color{100, 230, 50};

struct lay_shape_test : testing::Test {
    lay_shape_test()
    {
        main.install_folder = folder.at("program");
        main.data_folder = folder.at("data");
        main.run.canvas = plain(12, 14, paper_color);
        folder.write("program/images/shape.gif", mask());
    }

    /// '.' ground, '#' inside, '+' border, 'w' and 'b' the keys.
    static std::string mask()
    {
        return gif_of({".#w.", ".#+.", ".#b.", ".##."}, {{'.', {255, 255, 255}},
                                                         {'#', {0, 0, 0}},
                                                         {'+', {90, 90, 90}},
                                                         {'w', {255, 0, 255}},
                                                         {'b', {255, 255, 0}}});
    }

    std::string painted(int color, const bitmap & photo, int left, int top)
    {
        lay_photo(main, copied(photo, 0, 0, photo.width(), photo.height()),
                  {.area = {.left = left, .top = top, .width = 4, .height = 0},
                   .mask = shape,
                   .shape_color = color});
        return drawn(main.run.canvas, [](rgb_triple seen_there) {
            return seen_there == paper_color                 ? '.'
                   : seen_there == shape_color               ? '#'
                   : seen_there == rgb_triple{133, 254, 83}  ? '+'
                   : seen_there == rgb_triple{255, 255, 255} ? 'w'
                   : seen_there == rgb_triple{}              ? 'b'
                   : seen_there == rgb_triple{255, 115, 0}   ? '7'
                                                             : '?';
        });
    }

    temporary_folder folder;
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    std::string shape = "shape.gif";
};

const std::string blank_row = "............\n";

std::string rows(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += blank_row;
    return text;
}

}  // namespace

TEST_F(lay_shape_test, a_photo_shows_inside_and_lightens_along_the_border)
{
    EXPECT_EQ(painted(0, plain(4, 4, shape_color), 3, 2), rows(2) +
                                                              "....#w......\n"
                                                              "....#+......\n"
                                                              "....#b......\n"
                                                              "....##......\n" +
                                                              rows(8));
}

TEST_F(lay_shape_test, a_colour_fills_inside_and_border_alike)
{
    EXPECT_EQ(painted(7, {}, 3, 2), rows(2) +
                                        "....7w......\n"
                                        "....77......\n"
                                        "....7b......\n"
                                        "....77......\n" +
                                        rows(8));
}

TEST_F(lay_shape_test, code_5_is_white)
{
    EXPECT_EQ(painted(5, {}, 3, 2).substr(blank_row.size() * 3, 12), "....ww......");
}

TEST_F(lay_shape_test, an_outline_makes_the_border_black)
{
    main.chkOutline.tick(true);
    EXPECT_EQ(painted(0, plain(4, 4, shape_color), 3, 2).substr(blank_row.size() * 3, 12), "....#b......");
    main.chkOutline.show(false);
    EXPECT_EQ(painted(0, plain(4, 4, shape_color), 3, 2).substr(blank_row.size() * 3, 12), "....#+......");
}

TEST_F(lay_shape_test, lands_one_width_further_left_on_a_landscape_canvas)
{
    main.run.canvas = plain(14, 6, paper_color);
    EXPECT_EQ(painted(7, {}, 8, 1),
              "..............\n"
              ".....7w.......\n"
              ".....77.......\n"
              ".....7b.......\n"
              ".....77.......\n"
              "..............\n");
}

TEST_F(lay_shape_test, lands_one_width_further_left_on_a_square_canvas)
{
    main.run.canvas = plain(6, 6, paper_color);
    EXPECT_EQ(painted(7, {}, 4, 1),
              "......\n"
              ".7w...\n"
              ".77...\n"
              ".7b...\n"
              ".77...\n"
              "......\n");
}

TEST_F(lay_shape_test, letters_stay_where_they_are_on_a_landscape_canvas)
{
    main.run.canvas = plain(14, 6, paper_color);
    main.lblDesign.set_caption("Lettering");
    EXPECT_EQ(painted(7, {}, 8, 1).substr(15, 14), ".........7w...");
}

TEST_F(lay_shape_test, is_cut_at_the_edge_of_the_canvas)
{
    EXPECT_EQ(painted(7, {}, -1, -2), "7b..........\n77..........\n" + rows(12));
    EXPECT_EQ(painted(7, {}, 900, -900), "7b..........\n77..........\n" + rows(12));
}

TEST_F(lay_shape_test, a_mask_that_is_missing_or_damaged_paints_nothing)
{
    for (const std::string name :
         {"none.gif", "", "../data/shape.gif", "shape.jpg", "shape.png", "broken.gif"}) {
        folder.write("program/images/broken.gif", "GIF89a");
        shape = name;
        EXPECT_EQ(painted(7, {}, 3, 2), rows(14)) << name;
        EXPECT_EQ(painted(0, plain(4, 4, shape_color), 3, 2), rows(14)) << name;
    }
}

TEST_F(lay_shape_test, without_a_photo_nothing_is_painted)
{
    EXPECT_EQ(painted(0, {}, 3, 2), rows(14));
}

TEST_F(lay_shape_test, masks_lie_in_three_places)
{
    folder.write("data/user_images/custom_shape.gif", mask());
    folder.write("data/alpha/char_a.gif", mask());
    for (const std::string name : {"custom_shape.gif", "alpha/char_a.gif", "/alpha/char_a.gif"}) {
        shape = name;
        main.run.canvas = plain(12, 14, paper_color);
        EXPECT_EQ(painted(7, {}, 3, 2).substr(blank_row.size() * 2, 12), "....7w......") << name;
    }
}

TEST_F(lay_shape_test, a_name_ending_in_g_is_a_jpeg)
{
    const bitmap half = colored(16, 16, [](int x, int) {
        return x < 8 ? rgb_triple{255, 255, 255} : rgb_triple{};
    });
    for (const std::string name : {"half.jpg", "half.JPG"}) {
        save_jpeg(half, folder.at("program/images/" + name));
        shape = name;
        main.run.canvas = plain(12, 14, paper_color);
        EXPECT_EQ(painted(7, {}, 3, 2).substr(blank_row.size() * 2, 12), ".....77.....") << name;
    }
}

TEST_F(lay_shape_test, the_mask_is_scaled_to_the_size)
{
    std::vector<std::string> large;
    for (int y = 0; y < 40; ++y)
        large.push_back(std::string(20, '.') + std::string(20, '#'));
    folder.write("program/images/shape.gif", gif_of(large, {{'.', {255, 255, 255}}, {'#', {0, 0, 0}}}));
    EXPECT_EQ(painted(7, {}, 3, 2),
              rows(2) + ".....77.....\n.....77.....\n.....77.....\n.....77.....\n" + rows(8));
}

TEST_F(lay_shape_test, a_mask_that_was_used_before_paints_the_same_and_a_changed_one_anew)
{
    const std::string first = painted(7, {}, 3, 2);
    main.run.canvas = plain(12, 14, paper_color);
    EXPECT_EQ(painted(7, {}, 3, 2), first);
    folder.write("program/images/shape.gif",
                 gif_of({"..", ".#"}, {{'.', {255, 255, 255}}, {'#', {0, 0, 0}}}));
    main.run.canvas = plain(12, 14, paper_color);
    EXPECT_NE(painted(7, {}, 3, 2), first);
    delete_file(folder.at("program/images/shape.gif"));
    main.run.canvas = plain(12, 14, paper_color);
    EXPECT_EQ(painted(7, {}, 3, 2), rows(14));
}
