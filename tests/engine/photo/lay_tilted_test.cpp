#include "engine/photo/lay_photo.h"
#include "engine/photo/rotation_table.h"
#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/resize_image.h"
#include "engine/pixels/rotation_numbers.h"
#include "engine/pixels/soft_edge_paste.h"
#include "support/files/text_file.h"
#include "tests/engine/tilt_stage.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

bitmap patterned(int width, int height)
{
    bitmap image = graded(width, height);
    for (int y = 0; y < height; y += 3)
        for (int x = y % 7; x < width; x += 5)
            set_pixel(image, x, y, {.red = 240, .green = 30, .blue = 90});
    return image;
}

/// The part of the canvas; black where it leaves the canvas.
bitmap grabbed(const bitmap & canvas, int left, int top, int width, int height)
{
    bitmap area(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (const auto color = pixel_at(canvas, left + x, canvas.height() - 1 - (top + height - 1 - y)))
                set_pixel(area, x, y, *color);
    return area;
}

template <typename Test>
int count_of(const bitmap & image, Test is_wanted)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += is_wanted(seen(image, x, y)) ? 1 : 0;
    return count;
}

/// A photo in one of the upright steps: nothing was framed before.
struct placed {
    int width, height, top, left, rotation;

    rectangle area() const { return {.left = left, .top = top, .width = width, .height = height}; }
};

/// The slow way with the library's own calls on whole bitmaps, for a photo that fits and has no early frame.
void draw_by_steps(tilt_stage & stage, const bitmap & photo, const placed & place)
{
    frmMain & main = stage.main;
    const ornaments worn = stage.worn(place.rotation);
    const std::string section = rotation_section(place.width, place.height, place.rotation);
    const rotation_numbers numbers =
        scaled(numbers_of_section(main, section), reference_factor(place.width, place.height),
               main.in_preview ? preview_divisor(place.width, place.height) : 1);
    const int ring = frame_in_rotation(worn.frame, place.rotation);
    const int extra = std::max(worn.shadow, 0);
    const bitmap white =
        copied(load_picture(picture_format::jpeg, main.install_folder + "/images/white.jpg"), 0, 0,
               2 * ring + place.width + extra + 2, 2 * ring + place.height + extra + 2);
    bitmap mask = rotated(bitmap(numbers.grab_width, numbers.grab_height), place.rotation);
    paste(mask, white, numbers.put_left - ring - 1, numbers.put_top - ring - 1, 255);
    mask = rotated(mask, -place.rotation);
    bitmap turned = rotated(grabbed(main.run.canvas, place.left - numbers.grab_left,
                                    place.top - numbers.grab_top, numbers.grab_width, numbers.grab_height),
                            place.rotation);
    const rectangle upright{
        .left = numbers.put_left, .top = numbers.put_top, .width = place.width, .height = place.height};
    if (main.chkSoftEdge.ticked()) {
        soft_edge_paste(turned, photo, upright);
    } else {
        paste(turned, photo, upright.left, upright.top, 255);
        draw_frame(turned, upright, worn, place.rotation);
        draw_shadow(turned, upright, worn);
    }
    const bitmap back = rotated(turned, -place.rotation);
    const auto part = [&](const bitmap & whole) {
        return copied(whole, numbers.copy_left, numbers.copy_top, numbers.copy_right, numbers.copy_bottom);
    };
    const bitmap photo_part = part(back), mask_part = part(mask);
    const int bottom_row = main.run.canvas.height() - (place.top - numbers.paste_top) - mask_part.height();
    for (int x = 0; x < mask_part.width(); ++x)
        for (int y = 0; y < mask_part.height(); ++y)
            if (*pixel_at(mask_part, x, y) != rgb_triple{})
                set_pixel(main.run.canvas, x + place.left - numbers.paste_left, y + bottom_row,
                          *pixel_at(photo_part, x, y));
}

/// Both ways on a busy canvas.
void expect_same_as_by_steps(tilt_stage & stage, const placed & place, const std::string & what)
{
    const bitmap photo = graded(place.width, place.height);
    stage.main.run.canvas = patterned(700, 500);
    draw_by_steps(stage, photo, place);
    const bitmap expected = std::move(stage.main.run.canvas);
    stage.main.run.canvas = patterned(700, 500);
    stage.draw(photo, place.area(), place.rotation);
    EXPECT_TRUE(same(stage.main.run.canvas, expected)) << what << " at " << place.rotation;
    EXPECT_FALSE(same(expected, patterned(700, 500))) << what << " at " << place.rotation;
}

}  // namespace

TEST(lay_tilted_photo, gives_the_pixels_of_the_librarys_own_calls_on_whole_areas)
{
    tilt_stage stage;
    stage.main.in_preview = true;  // where the areas are small
    stage.wear(30, 20);
    for (int rotation : {-90, -60, -45, -5, 5, 30, 85})
        expect_same_as_by_steps(stage, {43, 64, 170, 300, rotation}, "framed");
    stage.wear(0, 0);
    for (int rotation : {-30, 10, 50})
        expect_same_as_by_steps(stage, {64, 43, 190, 260, rotation}, "bare");
}

TEST(lay_tilted_photo, gives_them_at_full_size_and_with_soft_edges)
{
    tilt_stage stage;
    stage.wear(7, 20);
    expect_same_as_by_steps(stage, {330, 340, 50, 200, -10}, "large");
    stage.main.chkSoftEdge.tick(true);
    expect_same_as_by_steps(stage, {200, 110, 150, 250, 15}, "soft");
}

TEST(lay_tilted_photo, is_drawn_where_it_hangs_over_the_canvas)
{
    tilt_stage stage;
    stage.main.in_preview = true;
    stage.wear(30, 40);
    for (const auto & [top, left] : {std::pair{-60, 250}, {430, 300}, {200, -80}, {180, 670}, {-60, -20}})
        expect_same_as_by_steps(stage, {90, 110, top, left, 10}, "over the edge");
}

TEST(lay_tilted_photo, draws_nothing_where_the_table_has_no_section)
{
    tilt_stage stage;
    stage.main.run.canvas = patterned(300, 300);
    stage.draw(graded(60, 40), {.left = 100, .top = 100, .width = 60, .height = 40}, 8);  // looks for "L13"
    EXPECT_TRUE(same(stage.main.run.canvas, patterned(300, 300)));
    stage.main.install_folder = tilt_folder().at("nothing_here");
    stage.draw(graded(60, 40), {.left = 100, .top = 100, .width = 60, .height = 40}, 10);
    EXPECT_TRUE(same(stage.main.run.canvas, patterned(300, 300)));
}

TEST(lay_tilted_photo, draws_nothing_without_a_white_sheet_or_with_one_that_is_too_small)
{
    const temporary_folder folder;
    folder.write("rotate.ini", read_file(SEED_FOLDER "/rotate.ini"));
    tilt_stage stage;
    stage.main.install_folder = folder.path();
    stage.main.run.canvas = patterned(300, 300);
    stage.draw(graded(60, 40), {.left = 100, .top = 100, .width = 60, .height = 40}, 10);
    EXPECT_TRUE(same(stage.main.run.canvas, patterned(300, 300)));
    save_jpeg(plain(61, 42, {255, 255, 255}), folder.at("images/white.jpg"));
    stage.draw(graded(60, 40), {.left = 100, .top = 100, .width = 60, .height = 40}, 10);
    EXPECT_TRUE(same(stage.main.run.canvas, patterned(300, 300)));
    save_jpeg(plain(62, 42, {255, 255, 255}), folder.at("images/white.jpg"));
    stage.draw(graded(60, 40), {.left = 100, .top = 100, .width = 60, .height = 40}, 10);
    EXPECT_FALSE(same(stage.main.run.canvas, patterned(300, 300)));
}

TEST(lay_tilted_photo, takes_its_mask_from_the_sheet_even_where_that_is_not_white)
{
    const temporary_folder folder;
    folder.write("rotate.ini", read_file(SEED_FOLDER "/rotate.ini"));
    const bitmap half = colored(80, 80, [](int x, int) {
        return x < 40 ? rgb_triple{} : rgb_triple{255, 255, 255};
    });
    save_jpeg(half, folder.at("images/white.jpg"));
    tilt_stage stage;
    stage.main.install_folder = folder.path();
    stage.main.run.canvas = bitmap(300, 300);
    stage.draw(plain(60, 40, {0, 200, 0}), {.left = 100, .top = 100, .width = 60, .height = 40}, 90);
    // Upright the left part of the photo lies on the black of the sheet; turned to the right that is the
    // upper part.
    EXPECT_EQ(seen(stage.main.run.canvas, 80, 110), (rgb_triple{}));
    EXPECT_GT(seen(stage.main.run.canvas, 80, 150).green, 190);
}

TEST(lay_tilted_photo, draws_nothing_of_a_photo_that_could_not_be_loaded)
{
    tilt_stage stage;
    stage.wear(10, 10);
    stage.main.run.canvas = patterned(300, 300);
    stage.draw({}, {.left = 100, .top = 100, .width = 60, .height = 40}, 10);
    EXPECT_TRUE(same(stage.main.run.canvas, patterned(300, 300)));
}

TEST(lay_tilted_photo, fits_the_photo_to_its_place)
{
    tilt_stage stage;
    bitmap whole = graded(200, 400);
    stage.main.run.canvas = patterned(300, 300);
    stage.draw(whole, {.left = 100, .top = 100, .width = 60, .height = 40}, -15);
    const bitmap fitted = std::move(stage.main.run.canvas);
    stage.main.run.canvas = patterned(300, 300);
    stage.draw(resize_image(whole, 60, 40), {.left = 100, .top = 100, .width = 60, .height = 40}, -15);
    EXPECT_TRUE(same(fitted, stage.main.run.canvas));
    EXPECT_FALSE(same(fitted, patterned(300, 300)));
}

TEST(lay_tilted_photo, a_frame_of_13_is_drawn_in_the_turned_area_at_5_degrees_and_before_the_turn_at_10)
{
    for (const auto & [rotation, early] : {std::pair{5, false}, {-20, false}, {10, true}}) {
        tilt_stage stage;
        bitmap pixels;
        const mask_sheet sheet = rotation_sheet(stage.main, pixels);
        // Soft photos have no frame but one that has become part of them.
        const tilt how{.place = {.left = 200, .top = 200, .width = 60, .height = 40},
                       .rotation = rotation,
                       .worn = {.frame = 13, .frame_color = {250, 0, 0}, .edges = photo_edges::soft},
                       .numbers = numbers_of_section(stage.main, rotation_section(60, 40, rotation))};
        bitmap canvas(500, 500);
        draw_rotated_photo(canvas, plain(60, 40, {0, 0, 250}), how, sheet);
        EXPECT_EQ(count_of(canvas, [](rgb_triple color) { return color.red > 100; }) > 0, early) << rotation;
    }
}

TEST(lay_tilted_photo, a_wide_frame_moves_the_corner_out_and_has_the_width_of_the_list)
{
    tilt_stage stage;
    stage.wear(30, 0);
    stage.main.run.canvas = bitmap(400, 400);
    stage.draw(plain(100, 60, {0, 200, 0}), {.left = 200, .top = 200, .width = 100, .height = 60}, 90);
    // The frame's corner at (170, 170), from there 120 to the left and 160 down.
    const auto framed = [](const rgb_triple & color) { return color.red > 240; };
    EXPECT_TRUE(framed(seen(stage.main.run.canvas, 168, 172)));
    EXPECT_TRUE(framed(seen(stage.main.run.canvas, 52, 328)));
    EXPECT_TRUE(framed(seen(stage.main.run.canvas, 110, 198)));
    EXPECT_FALSE(framed(seen(stage.main.run.canvas, 110, 202)));
    EXPECT_EQ(seen(stage.main.run.canvas, 172, 172), (rgb_triple{}));
    EXPECT_EQ(seen(stage.main.run.canvas, 46, 200), (rgb_triple{}));
    EXPECT_EQ(seen(stage.main.run.canvas, 110, 334), (rgb_triple{}));
}

TEST(lay_tilted_photo, wears_the_frame_of_its_location_whatever_the_list_holds)
{
    const auto framed = [](int of_list, int of_location) {
        tilt_stage stage;
        stage.wear(of_list, 0);
        stage.frame = of_location;
        stage.main.run.canvas = bitmap(500, 500);
        stage.draw(plain(100, 60, {0, 200, 0}), {.left = 300, .top = 200, .width = 100, .height = 60}, 90);
        return std::move(stage.main.run.canvas);
    };
    for (const int of_location : {13, 30, 60}) {
        const bitmap expected = framed(of_location, of_location);
        const int ring = 4 * of_location * (80 + of_location);
        const int drawn = count_of(expected, [](rgb_triple color) { return color.red > 240; });
        EXPECT_NEAR(drawn, ring, 0.05 * ring) << of_location;
        for (const int of_list : {0, 4, 45})
            EXPECT_TRUE(same(framed(of_list, of_location), expected)) << of_list << ", " << of_location;
    }
}

TEST(lay_tilted_photo, is_whole_in_a_preview_however_large_it_is)
{
    // Places of 2400 by 1600, 2900 by 300 and 300 by 2900 pixels of the poster.
    for (const picture_size size : {picture_size{343, 229}, {414, 43}, {43, 414}})
        for (const int rotation : {-5, 25}) {
            tilt_stage stage;
            stage.main.in_preview = true;
            stage.frame = 6;
            stage.main.run.canvas = bitmap(650, 650);
            stage.draw(plain(size.width, size.height, {0, 200, 0}),
                       {.left = 200, .top = 100, .width = size.width, .height = size.height}, rotation);
            const int green = count_of(stage.main.run.canvas,
                                       [](rgb_triple color) { return color.green > 100 && color.red < 100; });
            EXPECT_GT(green, size.width * size.height * 98 / 100)
                << size.width << " by " << size.height << " at " << rotation;
        }
}

TEST(lay_tilted_photo, stands_on_no_black_where_the_list_holds_a_wider_frame_than_the_location)
{
    tilt_stage stage;
    stage.wear(60, 0);
    stage.frame = 20;
    stage.main.run.canvas = plain(500, 500, {90, 90, 90});
    stage.draw(plain(100, 60, {0, 200, 0}), {.left = 200, .top = 200, .width = 100, .height = 60}, 90);
    int dark = 0;
    for (int y = 0; y < 500; ++y)
        for (int x = 0; x < 500; ++x) {
            const rgb_triple color = seen(stage.main.run.canvas, x, y);
            dark += color.red < 80 && color.green < 80 ? 1 : 0;
        }
    EXPECT_EQ(dark, 0);
}

TEST(lay_tilted_photo, evolves_with_the_box_ticked)
{
    tilt_stage stage;
    stage.main.chkEvolve.tick(true);
    stage.main.run.canvas = patterned(400, 400);
    stage.draw(graded(50, 90), {.left = 150, .top = 150, .width = 90, .height = 60}, 20);
    const bitmap turned = std::move(stage.main.run.canvas);
    stage.main.chkEvolve.tick(false);
    stage.main.run.canvas = patterned(400, 400);
    stage.draw(graded(50, 90), {.left = 165, .top = 128, .width = 60, .height = 90},
               20);  // 127.5 is 128, to even
    EXPECT_TRUE(same(turned, stage.main.run.canvas));
}

TEST(GetRotateValue, reads_numbers_by_their_beginning_and_is_0_for_what_is_missing)
{
    const temporary_folder folder;
    const std::string path = folder.write("rotate.ini", "[L05]\r\nPut_Top= 12 px\r\nPut_Left=-7\r\n");
    tilt_stage stage;
    stage.main.install_folder = folder.path();
    EXPECT_EQ(GetRotateValue(stage.main, "L05", "Put_Top"), 12);
    EXPECT_EQ(GetRotateValue(stage.main, "l05", "put_left"), -7);
    EXPECT_EQ(GetRotateValue(stage.main, "L05", "Grab_Top"), 0);
    EXPECT_EQ(GetRotateValue(stage.main, "L10", "Put_Top"), 0);
    folder.write("rotate.ini", "[L05]\r\nPut_Top=112\r\n");
    EXPECT_EQ(GetRotateValue(stage.main, "L05", "Put_Top"), 112);
}
