#pragma once

#include "support/MFreeImage.h"
#include "support/rectangle.h"

#include <cstdint>
#include <span>

/// The drawing of photos once more, one pixel or one library paste at a time: slow, plain, and what the
/// row-walking code has to agree with. `row` counts from the bottom, `top` from the top.

void draw_frame_by_pixel(bitmap & target, int left, int row, int height, int width, int band,
                         rgb_triple color);

/// `left` is that of the photo, not lowered.
void draw_shadow_by_paste(bitmap & target, int left, int top, int height, int width, int frame,
                          int shadow_size, rgb_triple color);

void soft_edge_by_pixel(bitmap & target, const bitmap & image, const rectangle & place);

void cut_corners_by_pixel(bitmap & photo, const bitmap & canvas, int width, int height, int left,
                          int bottom_row, std::span<const std::uint8_t> table);

/// How a shape is painted: `photo` where it isn't empty, else `fill`.
struct mask_painting {
    rgb_triple fill;
    const bitmap & photo;
    bool outlined = false;
};

/// `column` and `row` are those of the mask's bottom left pixel on the canvas.
void paste_mask_by_pixel(bitmap & canvas, const bitmap & mask, const mask_painting & painting, int size,
                         int column, int row);
