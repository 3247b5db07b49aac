#pragma once

#include "support/MFreeImage.h"

/// The caption is drawn on a ground of one colour and laid on the collage without it. Rows count from the
/// bottom; the top four rows and the last four columns hold nothing of the text and are left out, of a
/// caption at a larger scale so many times four.

/// The colour of the ground: that of the bottom-left pixel, black for no picture.
rgb_triple ground_of(const bitmap & caption);

/// True when the colour differs from the ground by more than 110 in a channel.
bool is_text(rgb_triple color, rgb_triple ground);

/// The first row that holds text, 0 when none does.
int first_text_row(const bitmap & caption, int scale = 1);

/// Copies the pixels of the text to `target`, the caption's bottom-left corner at (`left`, `low`). What lies
/// outside the target is ignored.
void print_text(bitmap & target, const bitmap & caption, int left, int low, int scale = 1);
