#include "engine/photo/draw_captioned_photo.h"

#include "engine/photo/draw_rotated_photo.h"
#include "engine/photo/photo_steps.h"
#include "engine/pixels/card.h"

void draw_captioned_photo(frmMain & main, const bitmap & image, int width, int height, int top, int left,
                          int rotation)
{
    const card_layout layout = laid_out_card(width, height);
    bitmap card(width, height);
    fill(card, main.run.frame_color);
    paste(card, fit_photo(main, image, layout.width, layout.height), layout.margin, layout.margin,
          plain_copy);
    if (rotation == 0)
        paste(main.run.canvas, card, left, top, plain_copy);
    else
        draw_rotated_photo(main, std::move(card), width, height, top, left, rotation, fitting::fitted);
}
