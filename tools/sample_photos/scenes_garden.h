#pragma once

#include "canvas.h"

/// Gardens and feasts in them.

void wedding_couple(canvas & photo);
void lavender_walk(canvas & photo);
void cherry_blossom(canvas & photo);
void butterfly(canvas & photo);
