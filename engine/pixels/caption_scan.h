#pragma once

#include "support/MFreeImage.h"

/// The caption is drawn on a ground of one colour and laid on the collage without it. Rows count from the
/// bottom; the top four rows and the last four columns hold nothing of the text and are left out.

/// So many rows and columns are left out.
inline constexpr int empty_caption_margin = 4;

/// The colour of the ground: that of the bottom-left pixel, black for no picture.
rgb_triple ground_of(const bitmap & caption);

/// Lays a text of that colour on `target`, the caption's bottom-left corner at (`left`, `low`). How far a
/// pixel of the caption stands from the ground on the way to the colour is the share of the colour that goes
/// to the target: letters drawn with smooth edges have them on any ground. What lies outside the target is
/// ignored.
void print_text(bitmap & target, const bitmap & caption, rgb_triple color, int left, int low);
