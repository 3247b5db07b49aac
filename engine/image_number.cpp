#include "engine/image_number.h"

#include "engine/layout/cell_geometry.h"
#include "engine/layout/run_layout.h"

namespace {

// A preview that is there sooner would only flicker.
constexpr std::chrono::milliseconds worth_a_bar{500};

bool is_worth_a_bar(const frmMain & main)
{
    return !main.in_preview || std::chrono::steady_clock::now() - main.run.began > worth_a_bar;
}

int images_of_places(const location_table & table)
{
    int images = 0;
    for (int i = 0; i < table.count; ++i) {
        const location & place = table[i];
        images += place.file.empty() || place.height == 0 || place.width == 0 ? 1 : 0;
    }
    return images;
}

// Photos that take two cells make it fewer.
int images_of_layer(const grid & layer, const grid_limits & limits)
{
    if (is_endless(layer))
        return 0;
    int rows = 1, columns = 1;
    while (!row_ends(layer, columns, limits))
        ++columns;
    while (!grid_ends(layer, rows, limits))
        ++rows;
    return rows * columns;
}

int images_of_grids(const frmMain & main)
{
    const int margin = main.run.collage_margin;
    const grid_limits limits{.right = margin + main.collage_width, .bottom = margin + main.collage_height};
    int images = 0;
    for (int i = 0; i + 1 < main.design_locations.count; i += 2)
        images +=
            images_of_layer(grid_of(main.design_locations[i], main.design_locations[i + 1], margin), limits);
    return images;
}

}  // namespace

void count_images(frmMain & main)
{
    main.run.images_in_all =
        layout_of(main) == layout::grids ? images_of_grids(main) : images_of_places(main.design_locations);
}

void show_image_number(frmMain & main)
{
    main.txtDoing.set_text("Image number " + std::to_string(main.run.image_number));
    main.txtDoing.show(true);
    main.barDoing.tell(main.run.image_number, main.run.images_in_all);
    main.barDoing.show(is_worth_a_bar(main));
    main.desk.pump();
}

void hide_image_number(frmMain & main)
{
    main.txtDoing.show(false);
    main.barDoing.show(false);
    main.barDoing.tell(0, 1);
}
