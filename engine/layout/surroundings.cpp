#include "engine/layout/surroundings.h"

#include "engine/layout/border.h"
#include "engine/layout/caption_room.h"
#include "engine/layout/run_layout.h"
#include "engine/photo/canvas_steps.h"
#include "engine/pixels/caption_scan.h"
#include "support/files/paths.h"

#include <array>
#include <utility>

namespace {

constexpr int points_divisor = 6;  // preview
constexpr int caption_extra_width = 50;
constexpr std::uint32_t light_text = 6'000'000;
constexpr rgb_triple white{.red = 255, .green = 255, .blue = 255};

border_size selected_border(const frmMain & main)
{
    const std::array<std::pair<const option_button *, border_size>, 5> sizes{
        {{&main.optTiny, border_size::tiny},
         {&main.optSmall, border_size::small},
         {&main.optMedium, border_size::medium},
         {&main.optLarge, border_size::large},
         {&main.optHuge, border_size::huge}}};
    for (const auto & [option, size] : sizes)
        if (option->selected())
            return size;
    return border_size::none;
}

bool has_cleared_caption(const frmMain & main)
{
    return !main.txtCaption.text().empty() && main.chkClear.ticked();
}

struct extent {
    int width = 0, height = 0;
};

// Of the layout as it stands: upright, unless it was drawn for the output's own shape.
extent layout_extent(const frmMain & main)
{
    const int long_side = main.in_preview ? 450 : 3000;
    const int short_side = main.in_preview ? 300 : 2000;
    if (main.optSquare.selected())
        return {.width = short_side, .height = short_side};
    if (main.optLandscape.selected() && !is_turned_afterwards(main))
        return {.width = long_side, .height = short_side};
    return {.width = short_side, .height = long_side};
}

room_setting room_setting_of(const frmMain & main)
{
    const std::string & file = main.design_record.file;
    const bool stays = file == "__lettering" || file == "__puzzle" || main.optSquare.selected() ||
                       (main.collage.borders_free && !is_turned_afterwards(main));
    return {.turned_afterwards = !stays,
            .block = main.design_record.design == "Block" || file == "__quick",
            .at_bottom = main.optBottom.selected(),
            .square = main.optSquare.selected()};
}

// A grid seen in a mirror is the same grid, filled in the same order.
void turn_over(frmMain & main)
{
    const extent size = layout_extent(main);
    change_locations(main, [&](location place, location_role role) {
        if (role == location_role::place && main.collage.design_mirrored)
            place = mirrored(place, size.width);
        if (role == location_role::place && main.collage.design_flipped)
            place = flipped(place, size.height);
        return place;
    });
}

// The caption with that many pixels for one of the layout.
text_request caption_request(const frmMain & main, int scale)
{
    text_request request{.text = main.txtCaption.text(),
                         .font = main.txtCaption.font(),
                         .color = get_rgb_triple(main.txtCaption.fore_color()),
                         .background = {},
                         .extra_width = caption_extra_width * scale};
    // The ground must not be the text's own colour: it is what is left out later.
    if (main.txtCaption.fore_color() < light_text)
        request.background = white;
    request.font.size = leading_number(main.txtCaption.tag);
    if (main.in_preview)
        request.font.size /= points_divisor;
    request.font.size *= scale;
    return request;
}

bool is_visible(const text_request & caption)
{
    return !caption.text.empty() && caption.font.size > 0;
}

bitmap drawn_caption(const frmMain & main, int scale)
{
    const text_request request = caption_request(main, scale);
    return is_visible(request) ? main.desk.draw_text(request) : bitmap();
}

double caption_border(const frmMain & main)
{
    const std::array<std::pair<const option_button *, double>, 5> offsets{{{&main.optTiny, 100},
                                                                           {&main.optSmall, 150},
                                                                           {&main.optMedium, 200},
                                                                           {&main.optLarge, 250},
                                                                           {&main.optHuge, 300}}};
    double offset = 0;
    for (const auto & [option, pixels] : offsets)
        if (option->selected() && option->visible())
            offset = pixels;
    if (main.chkClear.ticked() && !main.optNone.selected())
        offset *= 0.9;
    return main.in_preview ? offset / 7 : offset;
}

int room_below(const frmMain & main)
{
    if (main.optPortrait.selected())
        return 80;
    return main.optLandscape.selected() ? 60 : 50;
}

// Row of the layout's canvas, from the bottom, of the caption's lowest row.
int caption_row(const frmMain & main, picture_size canvas, picture_size caption)
{
    const double border = caption_border(main);
    const int margin = main.run.collage_margin;
    if (main.optBottom.selected())
        return nearest(border + margin + room_below(main));
    const int row = nearest(canvas.height - (caption.height + 75) - margin - border);
    return main.in_preview ? row + 65 : row;
}

int caption_column(const frmMain & main, picture_size canvas, picture_size caption)
{
    const int column = nearest((canvas.width - caption.width) / 2.0);
    return main.in_preview ? column + 10 : column;
}

struct caption_spot {
    int left = 0, low = 0;
};

// The margins that are left out of a caption grow with it: what they have more goes off before.
bitmap without_larger_margins(const bitmap & caption, int scale)
{
    const int more = empty_caption_margin * (scale - 1);
    return copied(caption, 0, more, caption.width() - more, caption.height());
}

// Of a caption of that size, where it begins on the canvas: column and row, the latter from the bottom.
// Larger letters are not exactly as much larger: they stand about the middle of those of the layout.
caption_spot spot_of_caption(const frmMain & main, picture_size drawn)
{
    const int scale = main.run.drawn_at.canvas();
    const picture_size own = scale == 1 ? drawn : main.desk.text_size(caption_request(main, 1));
    const picture_size canvas{.width = main.run.canvas.width() / scale,
                              .height = main.run.canvas.height() / scale};
    return {.left = scale * caption_column(main, canvas, own) + (scale * own.width - drawn.width) / 2,
            .low = scale * caption_row(main, canvas, own) + (scale * own.height - drawn.height) / 2};
}

}  // namespace

void apply_border(frmMain & main, run_size size)
{
    const bool scattered = main.design_record.design == "Scatter" || main.optScatter.selected();
    const location_bend by = border_bend(
        {.size = selected_border(main), .square = main.optSquare.selected(), .scattered = scattered}, size);
    change_locations(main, [&](const location & place, location_role role) { return bent(place, role, by); });
}

void make_caption_room(frmMain & main)
{
    if (main.collage.design_mirrored || main.collage.design_flipped)
        turn_over(main);
    if (!has_cleared_caption(main))
        return;
    const location_bend by = caption_room_bend(room_setting_of(main), size_of_run(main));
    change_locations(main, [&](const location & place, location_role role) { return bent(place, role, by); });
}

void prepare_caption(frmMain & main)
{
    main.run.caption_height = narrow(drawn_caption(main, 1).height());
}

void add_caption(frmMain & main)
{
    const std::string folder = work_path(main, "tmp");
    const int scale = main.run.drawn_at.canvas();
    const bitmap drawn = drawn_caption(main, scale);
    // Without its work folder a collage goes without its caption.
    if (!drawn || !folder_exists(folder))
        return;
    const picture_size size{.width = drawn.width(), .height = drawn.height()};
    draw_on_canvas(main, size,
                   [&drawn, path = joined(folder, "caption.bmp"), at = spot_of_caption(main, size),
                    color = get_rgb_triple(main.txtCaption.fore_color()), scale](bitmap & canvas) {
                       save_bmp(drawn, path);
                       if (const bitmap caption = load_picture(picture_format::bmp, path))
                           print_text(canvas, without_larger_margins(caption, scale), color, at.left, at.low);
                   });
}
