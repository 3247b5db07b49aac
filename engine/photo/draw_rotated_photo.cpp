#include "engine/photo/draw_rotated_photo.h"

#include "engine/photo/photo_steps.h"
#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/rotation_numbers.h"
#include "engine/pixels/soft_edge_paste.h"
#include "support/files/paths.h"

#include <algorithm>

namespace {

constexpr int opaque = 255;  // weight of the photo in the turned area
constexpr int margin = 8;    // pixels round the sheet that are turned too: no edge may reach its mask
constexpr double slack = 3;  // pixels by which three shears can smear a mask

/// One tilted photo on its way to the canvas.
struct tilt {
    bitmap photo;
    tilted_place place;
    int rotation = 0;
    int ring = 0;  ///< width of the white sheet beside the photo, for the frame
    rotation_numbers numbers;
    tilt_sizes sizes;
};

picture_size size_of(const bitmap & image)
{
    return {.width = image.width(), .height = image.height()};
}

rotation_numbers section_numbers(frmMain & main, const std::string & section)
{
    rotation_numbers numbers;
    for (const rotation_key & key : rotation_keys)
        numbers.*key.number = GetRotateValue(main, section, key.name);
    return numbers;
}

/// Width of the frame that is drawn before the turn. Beyond the size in force the photo would stand on black.
int early_frame(const frmMain & main)
{
    const double chosen = number_in(main.cmbFrame);
    const int width = !main.in_preview ? nearest(chosen) : chosen < 1 ? 0 : std::max(nearest(chosen / 8), 1);
    return std::clamp<int>(width, 0, main.run.frame_size);
}

/// The photo with its frame takes the photo's place, so that the turn smooths the edges of both.
void frame_early(const frmMain & main, tilt & work)
{
    const int width = early_frame(main);
    const tilted_place inner = work.place;
    work.place = {.width = inner.width + 2 * width,
                  .height = inner.height + 2 * width,
                  .top = inner.top - width,
                  .left = inner.left - width};
    bitmap framed(work.place.width, work.place.height);
    paste(framed, work.photo, width, width, opaque);
    int left = width, row = width;
    draw_frame(main, framed, left, row, inner.height, inner.width, work.rotation);
    work.photo = std::move(framed);
    work.ring = 0;
}

std::string sheet_path(const frmMain & main)
{
    return joined(main.install_folder, "images/white.jpg");
}

white_sheet loaded_sheet(const std::string & path)
{
    const bitmap image = load_picture(picture_format::jpeg, path);
    white_sheet sheet{.size = size_of(image)};
    for (int y = 0; y < sheet.size.height && sheet.plain; ++y)
        sheet.plain = std::ranges::all_of(image.row(y), [](std::uint8_t byte) { return byte == 255; });
    return sheet;
}

/// A sheet of ten million pixels is too much to load for each photo.
const white_sheet & sheet_of(frmMain & main)
{
    rotation_files & kept = main.tilting;
    const std::string path = sheet_path(main);
    const std::optional<file_stamp> stamp = stamp_of(path);
    if (!kept.sheet || kept.sheet_path != path || kept.sheet_stamp != stamp) {
        kept.sheet = loaded_sheet(path);
        kept.sheet_path = path;
        kept.sheet_stamp = stamp;
    }
    return *kept.sheet;
}

/// The same window in coordinates that count from the other edge of a picture of that height.
pixel_window flipped(const pixel_window & window, int height)
{
    return {
        .left = window.left, .low = height - window.high, .right = window.right, .high = height - window.low};
}

/// Where the white sheet lies in the turned area, from its bottom: photo, frame, shadow and a pixel round
/// them.
pixel_window sheet_window(const frmMain & main, const tilt & work)
{
    const int left = work.numbers.put_left - work.ring - 1, top = work.numbers.put_top - work.ring - 1;
    const int more = 2 * work.ring + std::max<int>(main.run.shadow_size, 0) + 2;
    return flipped({.left = left,
                    .low = top,
                    .right = left + work.place.width + more,
                    .high = top + work.place.height + more},
                   work.sizes.turned.height);
}

pixel_window all_of(picture_size size)
{
    return {.left = 0, .low = 0, .right = size.width, .high = size.height};
}

bool lies_in(const pixel_window & window, picture_size size)
{
    return !is_empty(window) && common(window, all_of(size)) == window;
}

/// What is copied back of the area that was turned back, from its bottom.
pixel_window copy_window(const tilt & work)
{
    const rotation_numbers & numbers = work.numbers;
    return flipped({.left = numbers.copy_left,
                    .low = numbers.copy_top,
                    .right = numbers.copy_right,
                    .high = numbers.copy_bottom},
                   work.sizes.back.height);
}

/// True when the library would take every copy and paste on the way; otherwise no pixel of the mask is set.
bool can_be_drawn(frmMain & main, const tilt & work, const pixel_window & sheet)
{
    const picture_size white = sheet_of(main).size;
    return lies_in(sheet, work.sizes.turned) && lies_in(copy_window(work), work.sizes.back) &&
           sheet.right - sheet.left <= white.width && sheet.high - sheet.low <= white.height;
}

void put_pixel(std::uint8_t * into, marked_pixel pixel)
{
    into[0] = static_cast<std::uint8_t>(pixel);
    into[1] = static_cast<std::uint8_t>(pixel >> 8);
    into[2] = static_cast<std::uint8_t>(pixel >> 16);
}

/// The canvas round the photo, turned so that the photo stands upright in it. What lies outside the canvas is
/// black.
bitmap turned_ground(const frmMain & main, const tilt & work, const pixel_window & window)
{
    bitmap ground(window.right - window.left, window.high - window.low);
    const int grab_left = work.place.left - work.numbers.grab_left,
              grab_top = work.place.top - work.numbers.grab_top;
    const marked_picture area{.size = work.sizes.grabbed,
                              .part = &main.run.canvas,
                              .left = -grab_left,
                              .low = grab_top + work.sizes.grabbed.height - main.run.canvas.height(),
                              .marked = {}};
    turn_rows(area, work.rotation, spans_of(window), [&](int row, int, std::span<const marked_pixel> pixels) {
        std::uint8_t * into = ground.row(row - window.low).data();
        for (const marked_pixel & pixel : pixels)
            put_pixel(into + (&pixel - pixels.data()) * pixel_bytes, pixel);
    });
    return ground;
}

/// Photo, frame and shadow, upright, on a part of the turned area.
void draw_upright(frmMain & main, const tilt & work, const pixel_window & window, bitmap & ground)
{
    int left = work.numbers.put_left - window.left;
    const int top = work.numbers.put_top - (work.sizes.turned.height - window.high);
    if (main.chkSoftEdge.ticked()) {
        soft_edge_paste(ground, work.photo, work.place.width, work.place.height, top, left);
        return;
    }
    paste(ground, work.photo, left, top, opaque);
    int row = ground.height() - (top + work.place.height);
    draw_frame(main, ground, left, row, work.place.height, work.place.width, work.rotation);
    draw_shadow(main, ground, left, top, work.place.height, work.place.width, work.rotation);
}

std::vector<picture_point> turned_corners(const pixel_window & window, picture_size size, int degrees)
{
    std::vector<picture_point> corners;
    for (const auto & [x, y] : {std::pair{window.left, window.low},
                                {window.right, window.low},
                                {window.right, window.high},
                                {window.left, window.high}})
        corners.push_back(
            turned_point(size, degrees, {.x = static_cast<double>(x), .y = static_cast<double>(y)}));
    return corners;
}

/// Turns the finished part back and copies what the mask marks to the canvas.
void put_back(frmMain & main, const tilt & work, const marked_picture & turned)
{
    const pixel_window copy = copy_window(work);
    const int columns = work.place.left - work.numbers.paste_left - copy.left;
    const int bottom_row =
        main.run.canvas.height() - (work.place.top - work.numbers.paste_top) - (copy.high - copy.low);
    bitmap & canvas = main.run.canvas;
    const row_spans wanted =
        spans_of(turned_corners(turned.marked, work.sizes.turned, -work.rotation), slack, copy);
    turn_rows(turned, -work.rotation, wanted, [&](int row, int first, std::span<const marked_pixel> pixels) {
        const int y = row - copy.low + bottom_row;
        if (y < 0 || y >= canvas.height())
            return;
        std::uint8_t * into = canvas.row(y).data();
        const int width = canvas.width();
        int x = first + columns;
        for (const marked_pixel pixel : pixels) {
            if (pixel >> 24 != 0 && x >= 0 && x < width)
                put_pixel(into + static_cast<std::ptrdiff_t>(x) * pixel_bytes, pixel);
            ++x;
        }
    });
}

void draw_tilted(frmMain & main, const tilt & work)
{
    const pixel_window sheet = sheet_window(main, work);
    if (!can_be_drawn(main, work, sheet))
        return;
    const pixel_window window = common(all_of(work.sizes.turned), {.left = sheet.left - margin,
                                                                   .low = sheet.low - margin,
                                                                   .right = sheet.right + margin,
                                                                   .high = sheet.high + margin});
    bitmap ground = turned_ground(main, work, window);
    draw_upright(main, work, window, ground);
    bitmap marks;
    if (!sheet_of(main).plain)
        marks = copied(load_picture(picture_format::jpeg, sheet_path(main)), 0, 0, sheet.right - sheet.left,
                       sheet.high - sheet.low);
    put_back(main, work,
             {.size = work.sizes.turned,
              .part = &ground,
              .left = window.left,
              .low = window.low,
              .marked = sheet,
              .marks = marks ? &marks : nullptr});
}

}  // namespace

int GetRotateValue(frmMain & main, const std::string & section, const std::string & key)
{
    rotation_files & kept = main.tilting;
    const std::string path = joined(main.install_folder, "rotate.ini");
    const std::optional<file_stamp> stamp = stamp_of(path);
    if (!kept.table || kept.table_path != path || kept.table_stamp != stamp) {
        kept.table.emplace(path);
        kept.table_path = path;
        kept.table_stamp = stamp;
    }
    return nearest(leading_number(kept.table->value(section, key)));
}

void draw_rotated_photo(frmMain & main, bitmap image, int width, int height, int top, int left, int rotation,
                        fitting fit)
{
    if (!image)
        return;
    tilt work{.photo = std::move(image),
              .place = {.width = width, .height = height, .top = top, .left = left},
              .rotation = rounded_rotation(rotation),
              .numbers = {},
              .sizes = {}};
    if (main.chkEvolve.ticked())
        work.place = evolved(work.place, size_of(work.photo));
    if (fit == fitting::to_fit)
        work.photo = copied(fit_photo(main, work.photo, work.place.width, work.place.height), 0, 0,
                            work.place.width, work.place.height);
    const std::string section = rotation_section(work.place.width, work.place.height, work.rotation);
    work.ring = frame_in_rotation(main.run.frame_size, work.rotation);
    const bool framed_early = work.ring > widest_turned_frame && !rounded_photos(main);
    if (framed_early)
        frame_early(main, work);
    work.numbers =
        scaled(section_numbers(main, section), reference_factor(work.place.width, work.place.height),
               main.in_preview ? preview_divisor(work.place.width, work.place.height) : 1);
    work.sizes = tilt_sizes_of(work.numbers, work.rotation);
    // The frame is on the photo already: the area knows of none.
    if (framed_early && !main.chkSoftEdge.ticked())
        main.run.frame_size = 0;
    draw_tilted(main, work);
}
