#pragma once

#include "support/MFreeImage.h"

/// Shapes cut out by a mask: a picture whose bottom left pixel is the ground, dark or coloured where the
/// photo shows, in between along its soft border.

/// What a pixel of a mask stands for.
enum class mask_part { ground, white_key, black_key, inside, border };

/// Magenta and yellow are keys, whatever the ground is.
mask_part part_of_mask(rgb_triple seen, rgb_triple ground);

/// The colour of a shape by its code, 1 to 7; any other code is black.
rgb_triple shape_fill(int code);

enum class shape_border { lightened, outlined };

/// A photo's pixel on the soft border of a mask: lightened, the brightest almost to white, or black.
rgb_triple border_color(rgb_triple photo, shape_border drawn);

/// The canvas pixel on which a mask's bottom left one lies, row 0 at the bottom.
struct mask_spot {
    int column = 0, row = 0;
};

/// Paints the mask with one colour. What lies outside the canvas is ignored.
void paint_mask(bitmap & canvas, const bitmap & mask, rgb_triple color, mask_spot at);

/// The same with a photo of the mask's size.
void paint_mask(bitmap & canvas, const bitmap & mask, const bitmap & photo, shape_border drawn, mask_spot at);
