#include "engine/pixels/mask.h"

#include "engine/photo/mask_path.h"
#include "tests/engine/by_pixel.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

constexpr rgb_triple light{255, 255, 255}, middling{60, 60, 60}, dark{0, 0, 0};

/// Every mixture of a few values of each channel, among them all the limits.
bitmap all_cases()
{
    constexpr std::array<int, 13> values{0, 40, 41, 79, 80, 89, 90, 110, 111, 200, 201, 220, 255};
    const auto value = [&](int index) {
        return static_cast<std::uint8_t>(values[static_cast<std::size_t>(index)]);
    };
    return colored(169, 169, [&](int x, int y) {
        return rgb_triple{value(x % 13), value(x / 13), value(y % 13)};
    });
}

bitmap with_ground(bitmap image, rgb_triple ground)
{
    set_pixel(image, 0, 0, ground);
    return image;
}

}  // namespace

TEST(part_of_mask, magenta_and_yellow_are_keys_on_any_ground)
{
    EXPECT_EQ(part_of_mask({201, 79, 201}, {201, 79, 201}), mask_part::white_key);
    EXPECT_EQ(part_of_mask({201, 201, 79}, {201, 201, 79}), mask_part::black_key);
    EXPECT_NE(part_of_mask({200, 79, 201}, dark), mask_part::white_key);
    EXPECT_NE(part_of_mask({201, 80, 201}, dark), mask_part::white_key);
    EXPECT_NE(part_of_mask({201, 79, 200}, dark), mask_part::white_key);
    EXPECT_NE(part_of_mask({201, 201, 80}, dark), mask_part::black_key);
}

TEST(part_of_mask, is_ground_when_every_channel_is_within_110_of_it)
{
    EXPECT_EQ(part_of_mask({145, 145, 145}, light), mask_part::ground);
    EXPECT_EQ(part_of_mask({144, 255, 255}, light), mask_part::border);
    EXPECT_EQ(part_of_mask({255, 144, 255}, light), mask_part::border);
    EXPECT_EQ(part_of_mask({255, 255, 144}, light), mask_part::border);
    EXPECT_EQ(part_of_mask({110, 110, 110}, dark), mask_part::ground);
    EXPECT_EQ(part_of_mask({111, 110, 110}, dark), mask_part::border);
}

TEST(part_of_mask, one_channel_of_40_or_less_is_inside_else_it_is_the_border)
{
    EXPECT_EQ(part_of_mask({0, 0, 0}, light), mask_part::inside);
    EXPECT_EQ(part_of_mask({255, 40, 255}, {255, 255, 255}), mask_part::white_key);
    EXPECT_EQ(part_of_mask({100, 40, 100}, light), mask_part::inside);
    EXPECT_EQ(part_of_mask({100, 100, 40}, light), mask_part::inside);
    EXPECT_EQ(part_of_mask({41, 41, 41}, light), mask_part::border);
}

TEST(shape_fill, has_seven_colours_and_black_for_the_rest)
{
    EXPECT_EQ(shape_fill(1), (rgb_triple{255, 0, 0}));
    EXPECT_EQ(shape_fill(2), (rgb_triple{0, 0, 255}));
    EXPECT_EQ(shape_fill(3), (rgb_triple{165, 255, 50}));
    EXPECT_EQ(shape_fill(4), (rgb_triple{255, 255, 0}));
    EXPECT_EQ(shape_fill(5), (rgb_triple{255, 255, 255}));
    EXPECT_EQ(shape_fill(6), (rgb_triple{0, 0, 0}));
    EXPECT_EQ(shape_fill(7), (rgb_triple{255, 115, 0}));
    for (const int code : {-1, 0, 8, 10, 32767})
        EXPECT_EQ(shape_fill(code), rgb_triple{}) << code;
}

TEST(border_color, rises_by_33_and_above_220_becomes_254)
{
    EXPECT_EQ(border_color({0, 220, 221}, shape_border::lightened), (rgb_triple{33, 253, 254}));
    EXPECT_EQ(border_color({255, 10, 254}, shape_border::lightened), (rgb_triple{254, 43, 254}));
    EXPECT_EQ(border_color({0, 220, 221}, shape_border::outlined), rgb_triple{});
}

TEST(paint_mask, paints_inside_and_border_in_one_colour_and_leaves_the_ground)
{
    bitmap mask = plain(4, 3, light), canvas = plain(6, 5, {9, 9, 9});
    set_pixel(mask, 1, 0, dark);
    set_pixel(mask, 2, 1, middling);
    set_pixel(mask, 3, 2, {255, 0, 255});
    set_pixel(mask, 0, 2, {255, 255, 0});
    paint_mask(canvas, mask, {165, 255, 50}, {1, 1});
    EXPECT_EQ(
        drawn(
            canvas,
            [](rgb_triple color) {
                return color == rgb_triple{9, 9, 9} ? '.' : color == light ? 'w' : color == dark ? 'b' : 'c';
            }),
        "......\n"
        ".b..w.\n"
        "...c..\n"
        "..c...\n"
        "......\n");
}

TEST(paint_mask, agrees_with_its_slow_twin)
{
    const bitmap photo = graded(169, 169), none;
    for (const rgb_triple ground : {light, dark, rgb_triple{128, 128, 128}, rgb_triple{0, 200, 255}}) {
        const bitmap mask = with_ground(all_cases(), ground);
        for (const int column : {5, -60, 80, 400, -400})
            for (const shape_border drawn_border : {shape_border::lightened, shape_border::outlined}) {
                bitmap found = plain(190, 180, {1, 2, 3}), expected = plain(190, 180, {1, 2, 3});
                paint_mask(found, mask, photo, drawn_border, {column, column / 2});
                paste_mask_by_pixel(
                    expected, mask,
                    {.fill = {}, .photo = photo, .outlined = drawn_border == shape_border::outlined}, 169,
                    column, column / 2);
                EXPECT_TRUE(same(found, expected)) << column;
                paint_mask(found, mask, rgb_triple{255, 115, 0}, {column, column / 2});
                paste_mask_by_pixel(expected, mask, {.fill = {255, 115, 0}, .photo = none}, 169, column,
                                    column / 2);
                EXPECT_TRUE(same(found, expected)) << column;
            }
    }
}

TEST(paint_mask, without_a_mask_a_canvas_or_a_photo_nothing_happens)
{
    bitmap canvas = plain(20, 20, {9, 9, 9}), none;
    paint_mask(canvas, none, light, {2, 2});
    paint_mask(none, plain(5, 5, light), light, {2, 2});
    paint_mask(canvas, with_ground(plain(5, 5, dark), light), none, shape_border::lightened, {2, 2});
    paint_mask(canvas, with_ground(plain(5, 5, dark), light), bitmap(5, 4), shape_border::lightened, {2, 2});
    EXPECT_TRUE(same(canvas, plain(20, 20, {9, 9, 9})));
    EXPECT_FALSE(none);
}

TEST(mask_path, a_bare_name_lies_beside_the_program)
{
    EXPECT_EQ(mask_path("star.gif", "/program", "/data"), "/program/images/star.gif");
}

TEST(mask_path, the_users_own_shape_lies_in_the_data_folder)
{
    EXPECT_EQ(mask_path("custom_shape.gif", "/program", "/data"), "/data/user_images/custom_shape.gif");
}

TEST(found_mask, a_data_folder_without_the_letter_gets_that_of_the_program)
{
    const temporary_folder folder;
    const std::string program = folder.at("program"), data = folder.at("data");
    const std::string name = "alpha/serif/char_a.gif";
    EXPECT_EQ(found_mask(name, program, data), data + "/" + name);
    folder.write("program/" + name, "supplied");
    EXPECT_EQ(found_mask(name, program, data), program + "/" + name);
    folder.write("data/" + name, "own");
    EXPECT_EQ(found_mask(name, program, data), data + "/" + name);
}

TEST(found_mask, a_name_that_leads_outside_is_found_nowhere)
{
    EXPECT_EQ(found_mask("alpha/../../char_a.gif", "/program", "/data"), "");
    EXPECT_EQ(found_mask("", "/program", "/data"), "");
}

TEST(mask_path, a_name_with_a_folder_lies_below_the_data_folder)
{
    EXPECT_EQ(mask_path("alpha/char_a.gif", "/program", "/data"), "/data/alpha/char_a.gif");
    EXPECT_EQ(mask_path("/puzzle/puzzle4.gif", "/program", "/data"), "/data/puzzle/puzzle4.gif");
    EXPECT_EQ(mask_path("puzzle\\puz_11.gif", "/program", "/data"), "/data/puzzle/puz_11.gif");
}

TEST(mask_path, never_leads_outside)
{
    EXPECT_EQ(mask_path("../secret.gif", "/program", "/data"), "");
    EXPECT_EQ(mask_path("alpha/../../secret.gif", "/program", "/data"), "");
    EXPECT_EQ(mask_path("", "/program", "/data"), "");
}
