#include "engine/photo/lay_photo.h"

#include "engine/photo/canvas_steps.h"
#include "engine/photo/photo_steps.h"
#include "engine/photo/rotation_table.h"
#include "engine/photo/shape_mask.h"
#include "engine/pixels/card.h"
#include "engine/pixels/draw_photo.h"
#include "engine/pixels/draw_rotated_photo.h"

#include <algorithm>
#include <utility>

namespace {

bool is_shape(const rectangle & area)
{
    return area.width == 0 || area.height == 0;
}

/// A shape's square.
rectangle drawn_area(const rectangle & area)
{
    return {.left = area.left,
            .top = area.top,
            .width = narrow(area.width == 0 ? area.height : area.width),
            .height = narrow(area.height == 0 ? area.width : area.height)};
}

/// A shape lands its own width further left on a landscape or square canvas, which the templates reckon with;
/// letters don't.
int shape_column(const frmMain & main, const rectangle & place)
{
    const bool upright = main.run.canvas.height() > main.run.canvas.width();
    return upright || main.lblDesign.caption() == "Lettering" ? place.left : place.left - place.width;
}

picture_size drawn_size(const rectangle & place, const photo_place & at)
{
    return {.width = place.width * at.worn.scale, .height = place.height * at.worn.scale};
}

void lay_shape(frmMain & main, run_photo photo, const photo_place & at, const rectangle & place)
{
    const bool painted = at.shape_color != 0;
    bitmap fitted = painted ? bitmap() : fit_photo(main, std::move(photo), place.width, place.height);
    const bool outlined = main.chkOutline.visible() && main.chkOutline.ticked();
    const shape_paint shape{.mask = shape_mask(main, at.mask, place.width * at.worn.scale),
                            .fill = painted ? std::optional(shape_fill(at.shape_color)) : std::nullopt,
                            .border = outlined ? shape_border::outlined : shape_border::lightened,
                            .column = shape_column(main, place)};
    draw_on_canvas(main, drawn_size(place, at),
                   [&](bitmap & canvas) { draw_shape(canvas, std::move(fitted), place, at.worn, shape); });
}

void lay_upright(frmMain & main, run_photo photo, const photo_place & at)
{
    const rectangle place = drawn_area(at.area);
    // A wide gap can leave nothing of a cell: a frame without a photo would stand there as two stray lines.
    if (place.width < 1 || place.height < 1)
        return;
    if (is_shape(at.area)) {
        lay_shape(main, std::move(photo), at, place);
        return;
    }
    bitmap fitted = fit_photo(main, std::move(photo), place.width, place.height);
    draw_on_canvas(main, drawn_size(place, at),
                   [&](bitmap & canvas) { draw_photo(canvas, std::move(fitted), place, at.worn); });
}

rectangle tilted_area(const frmMain & main, picture_size photo, const rectangle & area)
{
    if (!main.chkEvolve.ticked())
        return area;
    return evolved(area, photo);
}

/// `fitted` fills its area.
void tilt_onto_canvas(frmMain & main, bitmap fitted, const photo_place & at, const rectangle & area)
{
    const int rotation = rounded_rotation(at.rotation);
    bitmap pixels;
    const mask_sheet sheet = rotation_sheet(main, pixels);
    const tilt how{.place = area,
                   .rotation = rotation,
                   .worn = at.worn,
                   .numbers = numbers_of_section(main, rotation_section(area.width, area.height, rotation))};
    draw_on_canvas(main, drawn_size(area, at), [&, others = main.workers.idle()](bitmap & canvas) {
        draw_rotated_photo(canvas, std::move(fitted), how, sheet, others);
    });
}

void lay_tilted(frmMain & main, run_photo photo, const photo_place & at)
{
    if (!photo)
        return;
    const rectangle area = tilted_area(main, photo.own, at.area);
    if (area.width < 1 || area.height < 1)
        return;
    // The photo goes before the turn begins, which takes as much memory again.
    bitmap fitted = fit_photo(main, std::move(photo), area.width, area.height);
    const picture_size size = drawn_size(area, at);
    if (fitted.width() != size.width || fitted.height() != size.height)
        fitted = copied(fitted, 0, 0, size.width, size.height);
    tilt_onto_canvas(main, std::move(fitted), at, area);
}

}  // namespace

void lay_photo(frmMain & main, run_photo photo, const photo_place & at)
{
    if (at.rotation == 0)
        lay_upright(main, std::move(photo), at);
    else
        lay_tilted(main, std::move(photo), at);
}

void lay_card(frmMain & main, run_photo photo, const photo_place & at)
{
    const rectangle & area = at.area;
    const rectangle place = photo_on_card(area.width, area.height);
    const bitmap fitted = fit_photo(main, std::move(photo), place.width, place.height);
    bitmap card;
    draw_on_canvas(main, drawn_size(area, at), [&](bitmap & canvas) {
        card = captioned_card({.width = area.width, .height = area.height}, fitted, at.worn.frame_color,
                              at.worn.scale);
        if (at.rotation == 0)
            paste(canvas, card, area.left * at.worn.scale, area.top * at.worn.scale, plain_copy);
    });
    if (at.rotation != 0 && card) {
        const rectangle tilted = tilted_area(main, {.width = area.width, .height = area.height}, area);
        tilt_onto_canvas(main, std::move(card), at, tilted);
    }
}

picture_size fitted_size(const frmMain & main, const photo_place & at, picture_size own)
{
    rectangle place = at.rotation == 0 ? drawn_area(at.area) : at.area;
    if (main.chkCaption.ticked())
        place = photo_on_card(at.area.width, at.area.height);
    else if (at.rotation != 0)
        place = tilted_area(main, own, at.area);
    // Nothing is drawn of a photo without room, which is no reason to fail.
    return {.width = std::max(place.width, 1), .height = std::max(place.height, 1)};
}
