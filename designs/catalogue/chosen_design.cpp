#include "designs/catalogue/chosen_design.h"

namespace {

bool has_own_background(const design_record & design)
{
    const std::string & image = design.bg_image;
    return image != "Either" && !image.empty() && image != "None" && image != "Solid";
}

option_button & orientation_option(frmMain & main, poster_shape shape)
{
    switch (shape) {
        case poster_shape::landscape:
            return main.optLandscape;
        case poster_shape::square:
            return main.optSquare;
        default:
            return main.optPortrait;
    }
}

}  // namespace

void settle_caption_clear(design_record & design)
{
    if (design.caption_clear.empty())
        design.caption_clear = design.design == "Scatter" ? "Adjust" : "Same";
}

void make_room_for_background(frmMain & main)
{
    if (has_own_background(main.design_record))
        main.collage.forced.select(main.border_options, main.optNone);
}

void take_design(frmMain & main, const chosen_design & chosen)
{
    main.lblDesign.tag = chosen.section;
    main.lblDesign.set_caption(chosen.name);
    main.poster_tall = chosen.shape != poster_shape::landscape;
    main.collage.design_rotated = main.collage.design_rotated || chosen.rotated;
    main.collage.design_flipped = main.collage.design_flipped || chosen.flipped;
    main.collage.design_mirrored = main.collage.design_mirrored || chosen.mirrored;
    option_button & orientation = orientation_option(main, chosen.shape);
    orientation.select(false);
    orientation.select();
}
