#include "engine/draw_rotated_photo.h"

#include "engine/draw_frame.h"
#include "engine/draw_shadow.h"
#include "engine/resize_image.h"
#include "engine/rotation_numbers.h"
#include "engine/soft_edge_paste.h"
#include "support/text_file.h"
#include "tests/engine/tilt_stage.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

bitmap busy(int width, int height)
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
            if (const auto color = pixel(canvas, left + x, canvas.height() - 1 - (top + height - 1 - y)))
                set_pixel(area, x, y, *color);
    return area;
}

/// A photo in one of the upright steps: nothing was framed before.
struct placed {
    int width, height, top, left, rotation;
};

/// The slow way with the library's own calls on whole bitmaps, for a photo that fits and has no early frame.
void draw_by_steps(frmMain & main, const bitmap & photo, const placed & place)
{
    const std::string section = rotation_section(place.width, place.height, place.rotation);
    rotation_numbers numbers;
    for (const rotation_key & key : rotation_keys)
        numbers.*key.number = GetRotateValue(main, section, key.name);
    numbers = scaled(numbers, reference_factor(place.width, place.height),
                     main.in_preview ? preview_divisor(place.width, place.height) : 1);
    const int ring = frame_in_rotation(main.run.frame_size, place.rotation);
    const int extra = std::max<int>(main.run.shadow_size, 0);
    const bitmap white =
        copied(load_picture(picture_format::jpeg, main.install_folder + "/images/white.jpg"), 0, 0,
               2 * ring + place.width + extra + 2, 2 * ring + place.height + extra + 2);
    bitmap mask = rotated(bitmap(numbers.grab_width, numbers.grab_height), place.rotation);
    paste(mask, white, numbers.put_left - ring - 1, numbers.put_top - ring - 1, 255);
    mask = rotated(mask, -place.rotation);
    bitmap turned = rotated(grabbed(main.run.canvas, place.left - numbers.grab_left,
                                    place.top - numbers.grab_top, numbers.grab_width, numbers.grab_height),
                            place.rotation);
    int left = numbers.put_left, row = turned.height() - (numbers.put_top + place.height);
    if (main.chkSoftEdge.ticked()) {
        soft_edge_paste(turned, photo, place.width, place.height, numbers.put_top, left);
    } else {
        paste(turned, photo, left, numbers.put_top, 255);
        draw_frame(main, turned, left, row, place.height, place.width, place.rotation);
        draw_shadow(main, turned, left, numbers.put_top, place.height, place.width, place.rotation);
    }
    const bitmap back = rotated(turned, -place.rotation);
    const auto part = [&](const bitmap & whole) {
        return copied(whole, numbers.copy_left, numbers.copy_top, numbers.copy_right, numbers.copy_bottom);
    };
    const bitmap photo_part = part(back), mask_part = part(mask);
    const int bottom_row = main.run.canvas.height() - (place.top - numbers.paste_top) - mask_part.height();
    for (int x = 0; x < mask_part.width(); ++x)
        for (int y = 0; y < mask_part.height(); ++y)
            if (*pixel(mask_part, x, y) != rgb_triple{})
                set_pixel(main.run.canvas, x + place.left - numbers.paste_left, y + bottom_row,
                          *pixel(photo_part, x, y));
}

/// Both ways on a busy canvas.
void expect_same_as_by_steps(tilt_stage & stage, const placed & place, const std::string & what)
{
    const bitmap photo = graded(place.width, place.height);
    stage.main.run.canvas = busy(700, 500);
    draw_by_steps(stage.main, photo, place);
    const bitmap expected = std::move(stage.main.run.canvas);
    stage.main.run.canvas = busy(700, 500);
    draw_rotated_photo(stage.main, copied(photo, 0, 0, place.width, place.height), place.width, place.height,
                       place.top, place.left, place.rotation, fitting::fitted);
    EXPECT_TRUE(same(stage.main.run.canvas, expected)) << what << " at " << place.rotation;
    EXPECT_FALSE(same(expected, busy(700, 500))) << what << " at " << place.rotation;
}

}  // namespace

TEST(draw_rotated_photo, gives_the_pixels_of_the_librarys_own_calls_on_whole_areas)
{
    tilt_stage stage;
    stage.main.in_preview = true;  // where the areas are small
    stage.wear(30, 20);
    for (int rotation : {-90, -60, -45, -15, -5, 5, 30, 45, 85})
        expect_same_as_by_steps(stage, {43, 64, 170, 300, rotation}, "framed");
    stage.wear(0, 0);
    for (int rotation : {-30, -5, 10, 50, 90})
        expect_same_as_by_steps(stage, {64, 43, 190, 260, rotation}, "bare");
}

TEST(draw_rotated_photo, gives_them_at_full_size_and_with_soft_edges)
{
    tilt_stage stage;
    stage.wear(7, 20);
    expect_same_as_by_steps(stage, {330, 340, 50, 200, -10}, "large");
    stage.main.chkSoftEdge.tick(true);
    expect_same_as_by_steps(stage, {200, 110, 150, 250, 15}, "soft");
}

TEST(draw_rotated_photo, is_drawn_where_it_hangs_over_the_canvas)
{
    tilt_stage stage;
    stage.main.in_preview = true;
    stage.wear(30, 40);
    for (const auto & [top, left] : {std::pair{-60, 250}, {430, 300}, {200, -80}, {180, 670}, {-60, -20}})
        expect_same_as_by_steps(stage, {90, 110, top, left, 10}, "over the edge");
}
