#include "engine/canvas.h"

#include "engine/layout/surroundings.h"
#include "engine/photo/canvas_steps.h"

#include <utility>

namespace {

constexpr int full_bleed = 360;
constexpr int poster_to_preview = 6;

void size_preview(frmMain & main)
{
    const auto sixth = [](int pixels) { return nearest16(pixels / static_cast<double>(poster_to_preview)); };
    main.collage_width = sixth(main.collage_width);
    main.collage_height = sixth(main.collage_height);
    main.run.collage_margin = sixth(main.run.collage_margin);
    if (main.optLandscape.selected() && main.collage_width < main.collage_height)
        std::swap(main.collage_width, main.collage_height);
}

void size_full(frmMain & main)
{
    if (main.collage_width > main.collage_height) {
        main.collage_width = 3000;
        main.collage_height = 2000;
    } else {
        main.collage_width = 2000;
        main.collage_height = main.optSquare.selected() ? 2000 : 3000;
    }
    main.run.collage_margin = narrow(main.run.collage_margin + full_bleed);
}

}  // namespace

rgb_triple ground_color(const frmMain & main)
{
    if (main.optBGimage.selected() && number_in(main.cmbBlend) >= 100)
        return {};  // black, for the picture to cover
    return get_rgb_triple(main.optSolid.selected() ? main.picBGcolor.back_color() : main.bg_color);
}

void allocate_canvas(frmMain & main, run_size size)
{
    prepare_caption(main);
    if (size == run_size::preview)
        size_preview(main);
    else
        size_full(main);
    const int bleed = 2 * main.run.collage_margin;
    const int scale = main.run.drawn_at.canvas();
    main.run.canvas = {};
    const picture_size canvas{.width = (main.collage_width + bleed) * scale,
                              .height = (main.collage_height + bleed) * scale};
    draw_on_canvas(main, canvas, [canvas, color = ground_color(main)](bitmap & made) {
        made = bitmap(canvas.width, canvas.height);
        fill(made, color);
    });
}
