#include "engine/pixels/draw_rotated_photo.h"

#include "engine/pixels/draw_frame.h"
#include "engine/pixels/draw_shadow.h"
#include "engine/pixels/paste_turned.h"
#include "engine/pixels/rectangles.h"
#include "engine/pixels/soft_edge_paste.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int opaque = 255;  // weight of the photo in the turned area
constexpr int margin = 8;    // pixels round the sheet that are turned too: no edge may reach its mask
constexpr double slack = 3;  // pixels by which three shears can smear a mask

/// One tilted photo on its way to the canvas.
struct tilted_photo {
    bitmap photo;
    tilt how;
    int ring = 0;  ///< width of the white sheet beside the photo, for the frame
    tilt_sizes sizes{};
};

/// The photo with its frame takes the photo's place, so that the turn smooths the edges of both. The area
/// knows of no frame then.
void frame_early(tilted_photo & work)
{
    const int width = work.how.worn.frame, scale = work.how.worn.scale;
    const rectangle inner = work.how.place;
    work.how.place = grown(inner, width);
    bitmap framed(work.how.place.width * scale, work.how.place.height * scale);
    paste_weighed(framed, work.photo, {.left = width * scale, .top = width * scale}, opaque);
    draw_frame(framed, {.left = width, .top = width, .width = inner.width, .height = inner.height},
               work.how.worn, work.how.rotation);
    work.photo = std::move(framed);
    work.ring = 0;
    if (work.how.worn.edges == photo_edges::hard)
        work.how.worn.frame = 0;
}

/// The same window in coordinates that count from the other edge of a picture of that height.
pixel_window flipped(const pixel_window & window, int height)
{
    return {
        .left = window.left, .low = height - window.high, .right = window.right, .high = height - window.low};
}

/// Where the white sheet lies in the turned area, from its bottom: photo, frame, shadow and a pixel round
/// them.
pixel_window sheet_window(const tilted_photo & work)
{
    const tilt & how = work.how;
    const int left = how.numbers.put_left - work.ring - 1, top = how.numbers.put_top - work.ring - 1;
    const int more = 2 * work.ring + std::max(how.worn.shadow, 0) + 2;
    return flipped({.left = left,
                    .low = top,
                    .right = left + how.place.width + more,
                    .high = top + how.place.height + more},
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
pixel_window copy_window(const tilted_photo & work)
{
    const rotation_numbers & numbers = work.how.numbers;
    return flipped({.left = numbers.copy_left,
                    .low = numbers.copy_top,
                    .right = numbers.copy_right,
                    .high = numbers.copy_bottom},
                   work.sizes.back.height);
}

/// True when the library would take every copy and paste on the way; otherwise no pixel of the mask is set.
bool can_be_drawn(const tilted_photo & work, const pixel_window & window, picture_size sheet)
{
    return lies_in(window, work.sizes.turned) && lies_in(copy_window(work), work.sizes.back) &&
           window.right - window.left <= sheet.width && window.high - window.low <= sheet.height;
}

pixel color_of(marked_pixel marked)
{
    return rgb_triple{.red = static_cast<std::uint8_t>(marked >> 16),
                      .green = static_cast<std::uint8_t>(marked >> 8),
                      .blue = static_cast<std::uint8_t>(marked)};
}

/// The canvas round the photo, turned so that the photo stands upright in it. What lies outside the canvas is
/// black.
bitmap turned_ground(const bitmap & canvas, const tilted_photo & work, const pixel_window & window)
{
    bitmap ground(window.right - window.left, window.high - window.low);
    const int grab_left = work.how.place.left - work.how.numbers.grab_left,
              grab_top = work.how.place.top - work.how.numbers.grab_top;
    const marked_picture area{.size = work.sizes.grabbed,
                              .part = &canvas,
                              .left = -grab_left,
                              .low = grab_top + work.sizes.grabbed.height - canvas.height(),
                              .marked = {}};
    turn_rows(area, work.how.rotation, spans_of(window),
              [&](int row, int, std::span<const marked_pixel> pixels) {
                  std::ranges::transform(pixels, ground.row(row - window.low).begin(), color_of);
              });
    return ground;
}

void frame_and_shade(bitmap & ground, const rectangle & place, const tilt & how)
{
    draw_frame(ground, place, how.worn, how.rotation);
    draw_shadow(ground, place, how.worn);
    // From ten degrees on a frame reaches one pixel under its shadow. The library's turn blurs that; a larger
    // one would show it as a line.
    if (how.worn.scale > 1)
        draw_frame(ground, place, how.worn, how.rotation);
}

/// Photo, frame and shadow, upright, on a ground of the same scale.
void draw_upright(bitmap & ground, const bitmap & photo, const rectangle & place, const tilt & how)
{
    const int scale = how.worn.scale;
    if (how.worn.edges == photo_edges::soft) {
        soft_edge_paste(ground, photo, place, scale);
        return;
    }
    paste_weighed(ground, photo, {.left = place.left * scale, .top = place.top * scale}, opaque);
    frame_and_shade(ground, place, how);
}

struct plain_photo {
    picture_size size;
    rgb_triple color;
};

/// The same for a photo of one colour, of which no bitmap is needed where its edges are hard.
void draw_upright(bitmap & ground, const plain_photo & photo, const rectangle & place, const tilt & how)
{
    const int scale = how.worn.scale;
    if (how.worn.edges == photo_edges::soft) {
        bitmap drawn(photo.size.width, photo.size.height);
        fill(drawn, photo.color);
        draw_upright(ground, drawn, place, how);
        return;
    }
    blend_rectangle(ground,
                    {.left = place.left * scale,
                     .top = place.top * scale,
                     .width = photo.size.width,
                     .height = photo.size.height},
                    photo.color, opaque);
    frame_and_shade(ground, place, how);
}

/// The photo's place in a part of the turned area.
rectangle place_in(const pixel_window & window, const tilted_photo & work)
{
    return {.left = work.how.numbers.put_left - window.left,
            .top = work.how.numbers.put_top - (work.sizes.turned.height - window.high),
            .width = work.how.place.width,
            .height = work.how.place.height};
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

/// True when nothing of the sheet is lost: turned back it lies where it is copied from.
bool is_wholly_drawn(const tilted_photo & work, picture_size sheet)
{
    const pixel_window window = sheet_window(work), copy = copy_window(work);
    return can_be_drawn(work, window, sheet) &&
           std::ranges::all_of(turned_corners(window, work.sizes.turned, -work.how.rotation),
                               [&](const picture_point & corner) {
                                   return corner.x > copy.left - slack && corner.x < copy.right + slack &&
                                          corner.y > copy.low - slack && corner.y < copy.high + slack;
                               });
}

/// Turns the finished part back and copies what the mask marks to the canvas.
void put_back(bitmap & canvas, const tilted_photo & work, const marked_picture & turned)
{
    const pixel_window copy = copy_window(work);
    const rotation_numbers & numbers = work.how.numbers;
    const int columns = work.how.place.left - numbers.paste_left - copy.left;
    const int bottom_row =
        canvas.height() - (work.how.place.top - numbers.paste_top) - (copy.high - copy.low);
    const row_spans wanted =
        spans_of(turned_corners(turned.marked, work.sizes.turned, -work.how.rotation), slack, copy);
    turn_rows(turned, -work.how.rotation, wanted,
              [&](int row, int first, std::span<const marked_pixel> pixels) {
                  const int y = row - copy.low + bottom_row;
                  if (y < 0 || y >= canvas.height())
                      return;
                  pixel * into = canvas.row(y).data();
                  const int width = canvas.width();
                  int x = first + columns;
                  for (const marked_pixel marked : pixels) {
                      if (marked >> 24 != 0 && x >= 0 && x < width)
                          into[x] = color_of(marked);
                      ++x;
                  }
              });
}

void draw_tilted(bitmap & canvas, const tilted_photo & work, const mask_sheet & sheet)
{
    const pixel_window marked = sheet_window(work);
    if (!can_be_drawn(work, marked, sheet.size))
        return;
    const pixel_window window = common(all_of(work.sizes.turned), {.left = marked.left - margin,
                                                                   .low = marked.low - margin,
                                                                   .right = marked.right + margin,
                                                                   .high = marked.high + margin});
    bitmap ground = turned_ground(canvas, work, window);
    draw_upright(ground, work.photo, place_in(window, work), work.how);
    bitmap marks;
    if (sheet.drawn != nullptr)
        marks = copied(*sheet.drawn, 0, 0, marked.right - marked.left, marked.high - marked.low);
    put_back(canvas, work,
             {.size = work.sizes.turned,
              .part = &ground,
              .left = window.left,
              .low = window.low,
              .marked = marked,
              .marks = marks ? &marks : nullptr});
}

/// Width of the frame round the photo in the sheet.
int framed_by(const tilted_photo & work)
{
    const ornaments & worn = work.how.worn;
    return worn.frame > 0 && worn.corners != photo_corners::rounded && worn.edges == photo_edges::hard
               ? work.ring + 1
               : 0;
}

bool is_seen_through(const ornaments & worn)
{
    return worn.shadow > 0 || worn.edges == photo_edges::soft;
}

bitmap colors_of(const tilted_photo & work, const rectangle & place, picture_size sheet)
{
    bitmap colors(sheet.width, sheet.height);
    draw_upright(colors, work.photo, place, work.how);
    return colors;
}

/// How far each pixel of the sheet is covered: what covers is drawn in white.
bitmap cover_of(const tilted_photo & work, const rectangle & place, picture_size sheet)
{
    constexpr rgb_triple white{255, 255, 255};
    tilt how = work.how;
    how.worn.frame_color = how.worn.shadow_color = white;
    bitmap cover(sheet.width, sheet.height);
    draw_upright(
        cover,
        plain_photo{.size = {.width = work.photo.width(), .height = work.photo.height()}, .color = white},
        place, how);
    return cover;
}

/// Photo, frame and shadow, upright, on a sheet of their own with the photo at `place`.
covered_picture drawn_sheet(const tilted_photo & work, const rectangle & place, const idle_workers & others)
{
    const ornaments & worn = work.how.worn;
    const int scale = worn.scale, behind = place.left + std::max(worn.shadow, 0);
    const picture_size size{.width = (place.right() + behind) * scale,
                            .height = (place.bottom() + behind) * scale};
    covered_picture sheet{
        .colors = {}, .cover = {}, .filled = enlarged(grown(place, framed_by(work)), scale)};
    others.share(is_seen_through(worn) ? 2 : 1, [&](int part) {
        if (part == 0)
            sheet.colors = colors_of(work, place, size);
        else
            sheet.cover = cover_of(work, place, size);
    });
    return sheet;
}

/// A larger photo is turned exactly, about the point to which the tables bring its middle.
void draw_larger(bitmap & canvas, const tilted_photo & work, const mask_sheet & white,
                 const idle_workers & others)
{
    if (!can_be_drawn(work, sheet_window(work), white.size))
        return;
    const tilt & how = work.how;
    const double scale = how.worn.scale, width = how.place.width, height = how.place.height;
    const picture_point middle =
        on_canvas(how.numbers, work.sizes, how.rotation,
                  {.x = how.numbers.put_left + width / 2, .y = how.numbers.put_top + height / 2});
    const int room = std::max(how.worn.frame, 0) + 2;
    const rectangle place{.left = room, .top = room, .width = how.place.width, .height = how.place.height};
    paste_turned(canvas, drawn_sheet(work, place, others),
                 {.from = {.x = scale * (room + width / 2), .y = scale * (room + height / 2)},
                  .to = {.x = scale * (how.place.left + middle.x), .y = scale * (how.place.top + middle.y)},
                  .degrees = how.rotation},
                 others);
}

void take_numbers(tilted_photo & work, const rotation_numbers & of_section, int divisor)
{
    const rectangle & place = work.how.place;
    work.how.numbers = scaled(of_section, reference_factor(place.width, place.height), divisor);
    work.sizes = tilt_sizes_of(work.how.numbers, work.how.rotation);
}

}  // namespace

void draw_rotated_photo(bitmap & canvas, bitmap photo, const tilt & how, const mask_sheet & sheet,
                        const idle_workers & others)
{
    tilted_photo work{.photo = std::move(photo), .how = how};
    work.ring = frame_in_rotation(work.how.worn.frame, work.how.rotation);
    if (work.ring > widest_turned_frame && work.how.worn.corners != photo_corners::rounded)
        frame_early(work);
    const int width = work.how.place.width, height = work.how.place.height;
    const int divisor = work.how.worn.size == run_size::preview ? preview_divisor(width, height) : 1;
    take_numbers(work, how.numbers, divisor);
    // The areas of a preview are meant for the usual sizes; a larger photo takes the area of the full size.
    if (divisor > 1 && !is_wholly_drawn(work, sheet.size))
        take_numbers(work, how.numbers, 1);
    if (work.how.worn.scale == 1)
        draw_tilted(canvas, work, sheet);
    else
        draw_larger(canvas, work, sheet, others);
}
